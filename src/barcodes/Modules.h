#pragma once

#include "base/Text.h"
#include "platform/PictureBox.h"

#include <cstdint>

namespace etiquetas {

// How symbols come into their picture. Modules are the narrowest bars and spaces of a symbol, from
// left to right as "1" (dark) and "0" (white); each is one pixel wide.

/// Height of the bars at a scale: ten pixels to one. Fails with an overflow above 3276.
[[nodiscard]] int barHeight(std::int16_t escala);

/// Makes the picture a white raster of pixels that keeps what is drawn.
void beginSymbol(PictureBox& pic);

/// Draws modules from column `x` on, from row `top` down over `height` rows; pixels, from 0.
void drawModules(PictureBox& pic, TextView modules, int x, int top, int height);

/// Prints a text with its top-left corner at (`x`, `y`), in pixels.
void printAt(PictureBox& pic, double x, double y, TextView text);

/// Shows what was drawn, ready to be stamped.
void endSymbol(PictureBox& pic);

} // namespace etiquetas
