#pragma once

#include "platform/MessageBoxes.h"

#include <QWidget>

#include <functional>

class QMessageBox;

namespace etiquetas {

/// Message boxes with the texts of their buttons in Portuguese. A key that is held down answers
/// none.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The title of boxes that name none.
    static constexpr TextView default_title = u"Etiquetas";

    /// The window that a box is to stand over, if there is one, what is to run before each box, as
    /// the windows must show what the fields hold by then, and what once it has been answered.
    void standOver(std::function<QWidget*()> window, std::function<void()> before_box,
                   std::function<void()> after_box);

    Answer show(const Message& message) override;

  private:
    void ask(QMessageBox& box);

    std::function<QWidget*()> window_ = [] { return nullptr; };
    std::function<void()> before_box_ = [] {};
    std::function<void()> after_box_ = [] {};
};

} // namespace etiquetas
