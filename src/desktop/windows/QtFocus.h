#pragma once

#include "platform/Focus.h"

#include <utility>

namespace etiquetas {

/// Keeps the moves that an event asks for until the event has ended.
class QtFocus final : public Focus {
  public:
    void tabForward() override { ++steps_; }
    void tabBackward() override { --steps_; }
    void moveTo(const TextField& field) override { target_ = &field; }

    /// The fields to move on by, negative for back; the next call starts from none.
    int takeSteps() { return std::exchange(steps_, 0); }
    /// The field that the focus was given to; the next call finds none.
    const TextField* takeTarget() { return std::exchange(target_, nullptr); }

  private:
    int steps_ = 0;
    const TextField* target_ = nullptr;
};

} // namespace etiquetas
