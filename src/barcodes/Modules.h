#pragma once

#include "base/Text.h"
#include "platform/PictureBox.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace etiquetas {

// How symbols come into their picture. Modules are the narrowest bars and spaces of a symbol, from
// left to right as "1" (dark) and "0" (white); each is one pixel wide.

/// Height of the bars at a scale: ten pixels to one. Fails with an overflow above 3276.
[[nodiscard]] int barHeight(std::int16_t escala);

/// Makes the picture a white raster of pixels that keeps what is drawn.
void beginSymbol(PictureBox& pic);

/// The modules as columns of pixels.
[[nodiscard]] std::vector<Pixel> pixelsOf(TextView modules);

/// Prints a text with its top-left corner at (`x`, `y`), in pixels.
void printAt(PictureBox& pic, double x, double y, TextView text);

/// Shows a symbol, ready to be stamped: the one that `draw` draws in the picture, which has its
/// size. Labels with the same bars mostly follow one another, so that a symbol without a text under
/// it is kept by what tells all of it, and drawn only where another one was drawn before.
template <typename Draw>
void showSymbol(PictureBox& pic, TextView symbology, std::int16_t escala, TextView texto,
                const Draw& draw) {
    Text name;
    name.reserve(symbology.size() + 1 + texto.size());
    name.append(symbology).append(1, static_cast<char16_t>(escala)).append(texto);
    if (!pic.showKept(name)) {
        draw();
        pic.showDrawing(std::move(name));
    }
}

} // namespace etiquetas
