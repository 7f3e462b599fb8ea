#pragma once

#include "desktop/machine/Log.h"
#include "platform/MessageBoxes.h"

namespace etiquetas {

/// Shows boxes through others and writes into the log what they said and what was answered.
class LoggedMessageBoxes final : public MessageBoxes {
  public:
    /// Both must outlive this object.
    LoggedMessageBoxes(MessageBoxes& shown, Log& log) : shown_(&shown), log_(&log) {}

    Answer show(const Message& message) override;

  private:
    MessageBoxes* shown_;
    Log* log_;
};

} // namespace etiquetas
