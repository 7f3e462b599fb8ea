#pragma once

#include "base/Text.h"

namespace etiquetas {

// Lines of programs in ZPL.

/// A field of a label: its place ("x,y" in dots), its command and its data.
[[nodiscard]] Text zplField(TextView place, TextView command, TextView data);

/// The line with each point turned into a double quote.
[[nodiscard]] Text withQuotes(TextView line);

} // namespace etiquetas
