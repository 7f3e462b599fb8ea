#pragma once

#include "base/Text.h"
#include "platform/PictureBox.h"

#include <cstdint>

namespace etiquetas {

/// Draws an EAN-13 symbol in a picture, one pixel to a module, ready to be stamped: 11 white
/// columns, the 95 modules, and guards that run 5 pixels longer than the other bars (GS1 General
/// Specifications). The check digit is reckoned from the 12 digits. At scale 1 the picture is 141
/// by 27 pixels.
///
/// `escala` is the bar height in tens of pixels, up to 3276; from 14 on the guards are cut off at
/// the picture's bottom. `mostra_texto` prints the digits under the bars, in the picture font, but
/// for the first one. A text that is not exactly 12 digits is a failure with number 0x80040201 and
/// source "EAN-13", and leaves the picture empty.
void DesenhaEan13(PictureBox& pic, std::int16_t escala, TextView texto, bool mostra_texto);

} // namespace etiquetas
