#pragma once

#include "platform/Interface.h"

namespace etiquetas {

/// Moving of the focus between the fields of the window. The move takes place once the event that
/// asks for it has ended.
class Focus : public Interface {
  public:
    /// What a Tab key does: the focus goes to the next field in tab order.
    virtual void tabForward() = 0;
    /// What Shift+Tab does: the focus goes to the previous field.
    virtual void tabBackward() = 0;
};

} // namespace etiquetas
