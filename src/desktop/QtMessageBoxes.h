#pragma once

#include "platform/MessageBoxes.h"

#include <QWidget>

#include <functional>

namespace etiquetas {

/// Message boxes over the active window of the program, with the texts of their buttons in
/// Portuguese.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The title of boxes that name none.
    static constexpr TextView default_title = u"Etiquetas";

    /// The window that boxes stand over while none is active, and what is to run before each box:
    /// the windows must show what the fields hold by then.
    void standOver(QWidget* window, std::function<void()> before_box);

    Answer show(const Message& message) override;

  private:
    QWidget* window_ = nullptr;
    std::function<void()> before_box_ = [] {};
};

} // namespace etiquetas
