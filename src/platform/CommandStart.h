#pragma once

#include "base/Text.h"
#include "platform/Interface.h"

namespace etiquetas {

/// Starting of command files, which run beside the program.
class CommandStart : public Interface {
  public:
    /// Starts a command file, given by its full path, in its own folder, and goes on at once: it is
    /// not waited for, and what goes wrong in it is not told.
    virtual void start(TextView command_file) = 0;
};

} // namespace etiquetas
