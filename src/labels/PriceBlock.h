#pragma once

#include "base/Text.h"
#include "labels/LabelLayout.h"

namespace etiquetas {

/// What an item without a price has in `txtpreco`.
inline constexpr TextView sem_preco = u"0,00";

/// False where the price, trimmed, is "0,00".
[[nodiscard]] bool hasPrice(TextView preco);

/// A text of the price block. It ends at `edge` from the label's origin, less the widths of the
/// texts that stand right of it, plus `shift`; its top is at `y`.
struct PriceItem {
    Font font;
    float edge;
    float shift;
    float y;
};

/// The price of a label, whole part and cents apart, with "R$" and "À VISTA" before it.
struct PriceLayout {
    /// The font that the place of the cents is reckoned in, which need not be the one they print
    /// in.
    Font cents_measure;
    PriceItem whole;
    PriceItem cents;
    PriceItem currency;
    PriceItem terms;
};

/// Prints the price block of a layout; the price has a comma and two digits behind it.
void printPrice(PrintSurface& surface, const PriceLayout& layout, const Point& origin,
                TextView preco);

} // namespace etiquetas
