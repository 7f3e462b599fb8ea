#pragma once

#include "platform/MessageBoxes.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <utility>

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

    /// What tells of a question why its answer may well be No; empty where it knows nothing. It
    /// stands under the question, and No is the ready answer then.
    void doubtBy(std::function<QString(const Message&)> doubt) { doubt_ = std::move(doubt); }

    /// What tells of a question whether the windows that it does not stand over, and that have no
    /// fields, are of use for its answer: they stay usable then.
    void lookBesideBy(std::function<bool(const Message&)> looks) { looks_ = std::move(looks); }

    Answer show(const Message& message) override;

  private:
    void ask(QMessageBox& box);

    std::function<bool(const Message&)> looks_ = [](const Message&) { return false; };
    std::function<QString(const Message&)> doubt_ = [](const Message&) { return QString(); };
    std::function<QWidget*()> window_ = [] { return nullptr; };
    std::function<void()> before_box_ = [] {};
    std::function<void()> after_box_ = [] {};
};

} // namespace etiquetas
