#pragma once

namespace etiquetas {

/// The mouse pointer.
class Pointer {
  public:
    virtual ~Pointer() = default;

    virtual void busy() = 0;
    virtual void normal() = 0;

  protected:
    Pointer() = default;
    Pointer(const Pointer&) = default;
    Pointer(Pointer&&) = default;
    Pointer& operator=(const Pointer&) = default;
    Pointer& operator=(Pointer&&) = default;
};

} // namespace etiquetas
