#pragma once

#include "base/Text.h"

#include <cstddef>
#include <vector>

namespace etiquetas {

/// The printers of the machine, in its order, and the one that jobs go to.
class Printers {
  public:
    virtual ~Printers() = default;

    /// Device names of all printers.
    [[nodiscard]] virtual std::vector<Text> names() const = 0;
    /// Device name of the machine's default printer; empty where there is no printer.
    [[nodiscard]] virtual Text defaultName() const = 0;
    /// Makes the printer at this place of the list the one that the next job goes to.
    virtual void makeCurrent(std::size_t index) = 0;

  protected:
    Printers() = default;
    Printers(const Printers&) = default;
    Printers(Printers&&) = default;
    Printers& operator=(const Printers&) = default;
    Printers& operator=(Printers&&) = default;
};

} // namespace etiquetas
