#pragma once

#include "base/Text.h"
#include "labels/LabelDrawing.h"

namespace etiquetas {

/// What an item without a price has in `txtpreco`.
inline constexpr TextView sem_preco = u"0,00";

/// A text of the price block. It ends at `edge` from the label's origin, less the widths of the
/// texts that stand right of it, plus `shift`; its top is at `y`. Millimetres.
struct PriceText {
    Font font;
    float edge;
    float shift;
    float y;
};

/// The price of a label, whole part and cents apart, with "R$" and "À VISTA" before it.
struct PriceBlock {
    /// The font that the place of the cents is reckoned in, which need not be the one they print
    /// in.
    Font cents_measure;
    PriceText whole;
    PriceText cents;
    PriceText currency;
    PriceText terms;
};

/// Prints the price block of a layout. The whole part of the price ends with its first comma, which
/// it keeps, and is empty where there is none; the cents are the last two characters.
void printPrice(PrintSurface& surface, const PriceBlock& block, const Point& origin,
                TextView preco);

} // namespace etiquetas
