#pragma once

namespace etiquetas {

/// What every interface of the machine is: destroyed through itself, copied only as a whole by the
/// class that implements it.
class Interface {
  public:
    virtual ~Interface() = default;

  protected:
    Interface() = default;
    Interface(const Interface&) = default;
    Interface(Interface&&) = default;
    Interface& operator=(const Interface&) = default;
    Interface& operator=(Interface&&) = default;
};

} // namespace etiquetas
