#pragma once

#include "base/Text.h"
#include "platform/Interface.h"

#include <cstddef>
#include <vector>

namespace etiquetas {

/// The printers of the machine, in its order, and the one that jobs go to.
class Printers : public Interface {
  public:
    /// Device names of all printers.
    [[nodiscard]] virtual std::vector<Text> names() const = 0;
    /// Device name of the machine's default printer; empty where there is no printer.
    [[nodiscard]] virtual Text defaultName() const = 0;
    /// Makes the printer at this place of the list the one that the next job goes to.
    virtual void makeCurrent(std::size_t index) = 0;
};

} // namespace etiquetas
