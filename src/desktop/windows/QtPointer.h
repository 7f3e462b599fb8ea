#pragma once

#include "platform/Pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace etiquetas {

/// The pointer over all windows of the program.
class QtPointer final : public Pointer {
  public:
    void busy() override { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    void normal() override { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace etiquetas
