#pragma once

#include "base/Text.h"
#include "platform/PictureBox.h"

#include <cstdint>

namespace etiquetas {

/// Draws a Code 39 symbol (ISO/IEC 16388) in a picture, one pixel to a module, ready to be stamped:
/// bars from column 12 and row 10 on, between two "*", with one white pixel after each character. A
/// symbol of more than 54 characters, those two included, is cut off at the picture's right edge.
///
/// `escala` is the bar height in tens of pixels, up to 3276. `texto` comes back as it is drawn:
/// without any "*", in upper case. `com_digito` adds the check character of modulo 43, which
/// `mostra_texto`, the text under the bars, does not show. A character that the symbology lacks is
/// a failure with number 0x80040201 and source "Bar 39", and leaves the picture empty.
void DesenhaCode39(PictureBox& pic, std::int16_t escala, Text& texto, bool com_digito,
                   bool mostra_texto);

} // namespace etiquetas
