#pragma once

#include "desktop/console/ConsoleOptions.h"

namespace etiquetas {

/// Lists the label kinds, the orders in the order folder, the items of an order or the printers, as
/// a table or in JSON. Returns the exit code.
[[nodiscard]] int listAsked(const ConsoleOptions& options);

/// Lists what was printed, of one order or of all. Returns the exit code.
[[nodiscard]] int listHistory(const ConsoleOptions& options);

} // namespace etiquetas
