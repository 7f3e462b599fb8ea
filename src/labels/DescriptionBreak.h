#pragma once

#include "base/Text.h"
#include "platform/PrintSurface.h"

#include <algorithm>
#include <cstddef>

namespace etiquetas {

// What the renderers share where they break a description; each has a rule of its own.

/// After these characters a description may be broken.
inline constexpr TextView separators = u" -/.";

/// Count of the first characters whose width together, in the font and unit that are set, passes a
/// test; one more than there are characters where none does. A text is never narrower than its
/// beginnings, so that the count is found by doubling and halving: a long text costs a few
/// measurements, not one for each character.
template <typename Test>
[[nodiscard]] std::size_t firstPrefix(const PrintSurface& surface, TextView text, Test&& test) {
    const auto passes = [&](std::size_t count) {
        return test(surface.TextWidth(left(text, count)));
    };
    std::size_t too_few = 0;
    std::size_t enough = 1;
    while (enough <= text.size() && !passes(enough)) {
        too_few = enough;
        enough = enough == text.size() ? enough + 1 : std::min(2 * enough, text.size());
    }
    while (enough - too_few > 1) {
        const std::size_t middle = too_few + (enough - too_few) / 2;
        (passes(middle) ? enough : too_few) = middle;
    }
    return enough;
}

} // namespace etiquetas
