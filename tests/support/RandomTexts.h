#pragma once

#include "base/Text.h"
#include "labels/DescriptionBreak.h"
#include "platform/PrintSurface.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <random>

namespace etiquetas::test {

/// A text of up to so many characters that occur in descriptions, and some without a width.
inline Text randomText(std::mt19937& chance, std::size_t most) {
    constexpr TextView characters = u"AWiÇãé 1-/.,\"()\u00A0\u200B\u0301";
    Text text(chance() % (most + 1), u' ');
    for (char16_t& character : text) {
        character = characters[chance() % characters.size()];
    }
    return text;
}

/// Count of the first characters that reach a width, found by measuring all beginnings in turn.
inline std::size_t walkedPrefix(const PrintSurface& surface, TextView text, float limit) {
    std::size_t count = 1;
    while (count <= text.size() && surface.TextWidth(left(text, count)) < limit) {
        ++count;
    }
    return count;
}

/// Random texts break on the surface, in the font that is set, where a walk through all their
/// beginnings breaks them.
inline void expectBreaksOfAWalk(const PrintSurface& surface) {
    constexpr int texts = 500;
    constexpr std::size_t most_characters = 90;
    std::mt19937 chance(1);
    for (int i = 0; i < texts; ++i) {
        const Text text = randomText(chance, most_characters);
        const auto limit = static_cast<float>(chance() % 80);
        EXPECT_EQ(firstPrefix(surface, text, [&](float width) { return width >= limit; }),
                  walkedPrefix(surface, text, limit))
            << utf8(text) << " at " << limit;
    }
}

} // namespace etiquetas::test
