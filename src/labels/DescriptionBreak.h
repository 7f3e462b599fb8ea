#pragma once

#include "base/Text.h"
#include "platform/PrintSurface.h"

#include <cstddef>

namespace etiquetas {

// What the renderers share where they break a description; each has a rule of its own.

/// After these characters a description may be broken.
inline constexpr TextView separators = u" -/.";

/// Count of the first characters whose width together, in the font and unit that are set, passes a
/// test; one more than there are characters where none does.
template <typename Test>
[[nodiscard]] std::size_t firstPrefix(const PrintSurface& surface, TextView text, Test&& test) {
    std::size_t count = 1;
    while (count <= text.size() && !test(surface.TextWidth(left(text, count)))) {
        ++count;
    }
    return count;
}

} // namespace etiquetas
