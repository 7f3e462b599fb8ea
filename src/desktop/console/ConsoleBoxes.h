#pragma once

#include "platform/MessageBoxes.h"

#include <optional>

namespace etiquetas {

/// Message boxes of a run without an operator: what they tell goes to the standard error with its
/// title, and questions are answered beforehand. One that has no answer counts as No and is open
/// from then on.
class ConsoleBoxes final : public MessageBoxes {
  public:
    /// The answer to questions on the way, if there is one, and that to the closing question.
    ConsoleBoxes(std::optional<Answer> answer, bool confirms)
        : answer_(answer), closing_answer_(confirms ? Answer::yes : Answer::no) {}

    Answer show(const Message& message) override;

    /// True once a question found no answer.
    [[nodiscard]] bool hasOpenQuestion() const { return open_question_; }
    /// True where the closing question was asked since the last call.
    [[nodiscard]] bool takeClosing();

  private:
    std::optional<Answer> answer_;
    Answer closing_answer_;
    bool open_question_ = false;
    bool closing_asked_ = false;
};

} // namespace etiquetas
