#pragma once

#include "platform/Interface.h"

namespace etiquetas {

/// The running program.
class Process : public Interface {
  public:
    /// Ends the program at once, with success: no further event runs.
    virtual void end() = 0;
};

} // namespace etiquetas
