#pragma once

#include "platform/MessageBoxes.h"

#include <QWidget>

#include <functional>

namespace etiquetas {

/// Message boxes over a window, with the texts of their buttons in Portuguese.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// The title of boxes that name none.
    static constexpr TextView default_title = u"Etiquetas";

    /// The window that boxes stand over, and what is to run before each box: the window must show
    /// what the fields hold by then.
    void standOver(QWidget* window, std::function<void()> before_box);

    Answer show(const Message& message) override;

  private:
    QWidget* window_ = nullptr;
    std::function<void()> before_box_ = [] {};
};

} // namespace etiquetas
