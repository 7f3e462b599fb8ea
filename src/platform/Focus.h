#pragma once

#include "platform/Interface.h"

namespace etiquetas {

struct TextField;

/// Moving of the focus between the fields of a window. The move takes place once the event that
/// asks for it has ended.
class Focus : public Interface {
  public:
    /// What a Tab key does: the focus goes to the next field in tab order.
    virtual void tabForward() = 0;
    /// What Shift+Tab does: the focus goes to the previous field.
    virtual void tabBackward() = 0;
    /// Gives the focus to a field.
    virtual void moveTo(const TextField& field) = 0;
};

} // namespace etiquetas
