#pragma once

#include "base/Text.h"
#include "channel/MarginKeys.h"

namespace etiquetas {

// Lines of programs in ZPL.

/// A field of a label: its place ("x,y" in dots), its command and its data.
[[nodiscard]] Text zplField(TextView place, TextView command, TextView data);

/// The line with each point turned into a double quote.
[[nodiscard]] Text withQuotes(TextView line);

/// Top margin of the second box front label. PPLA takes it too.
inline constexpr MarginKey zpl_box_front2_top{u"Margem_frente_zpl_A2_superior", u"25"};

} // namespace etiquetas
