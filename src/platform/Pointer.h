#pragma once

#include "platform/Interface.h"

namespace etiquetas {

/// The mouse pointer.
class Pointer : public Interface {
  public:
    virtual void busy() = 0;
    virtual void normal() = 0;
};

} // namespace etiquetas
