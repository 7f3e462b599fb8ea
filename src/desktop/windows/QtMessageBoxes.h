#pragma once

#include "platform/MessageBoxes.h"

#include <QWidget>

#include <functional>

namespace etiquetas {

/// Message boxes with the texts of their buttons in Portuguese. A key that is held down answers
/// none.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The title of boxes that name none.
    static constexpr TextView default_title = u"Etiquetas";

    /// The window that a box is to stand over, if there is one, and what is to run before each box:
    /// the windows must show what the fields hold by then.
    void standOver(std::function<QWidget*()> window, std::function<void()> before_box);

    Answer show(const Message& message) override;

  private:
    std::function<QWidget*()> window_ = [] { return nullptr; };
    std::function<void()> before_box_ = [] {};
};

} // namespace etiquetas
