#pragma once

#include <QDateTime>
#include <QString>

namespace etiquetas {

/// The name of a job's file, without its suffix: the time, to the second, and the title. What a
/// file system does not take becomes "-", and a long title is cut: 120 characters in all.
[[nodiscard]] QString fileStem(const QDateTime& time, const QString& title);

} // namespace etiquetas
