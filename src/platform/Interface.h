#pragma once

namespace etiquetas {

/// Base of the machine's interfaces: one can be deleted through its base, and only the class that
/// implements it can be copied.
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
