#pragma once

namespace etiquetas {

/// Moving of the focus between the fields of the window. The move takes place once the event that
/// asks for it has ended.
class Focus {
  public:
    virtual ~Focus() = default;

    /// What a Tab key does: the focus goes to the next field in tab order.
    virtual void tabForward() = 0;
    /// What Shift+Tab does: the focus goes to the previous field.
    virtual void tabBackward() = 0;

  protected:
    Focus() = default;
    Focus(const Focus&) = default;
    Focus(Focus&&) = default;
    Focus& operator=(const Focus&) = default;
    Focus& operator=(Focus&&) = default;
};

} // namespace etiquetas
