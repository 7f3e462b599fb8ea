#pragma once

#include "desktop/console/ConsoleOptions.h"

namespace etiquetas {

/// Reads an order without printing, for the kind that is named or for all kinds that it has a file
/// of, and prints what an operator would stumble over. Returns the exit code.
[[nodiscard]] int reportReview(const ConsoleOptions& options);

} // namespace etiquetas
