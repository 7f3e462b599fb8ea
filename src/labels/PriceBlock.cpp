#include "labels/PriceBlock.h"

#include <initializer_list>

namespace etiquetas {

namespace {

float widthIn(PrintSurface& surface, const Font& font, TextView text) {
    useFont(surface, font);
    return surface.TextWidth(text);
}

// Prints a text to the left of those with these widths, its own being one of them.
void printBefore(PrintSurface& surface, const PriceText& item, const Point& origin,
                 std::initializer_list<float> widths, TextView text) {
    float x = origin.x + item.edge;
    for (const float width : widths) {
        x -= width;
    }
    useFont(surface, item.font);
    printAt(surface, {x + item.shift, origin.y + item.y}, text);
}

} // namespace

void printPrice(PrintSurface& surface, const PriceBlock& block, const Point& origin,
                TextView preco) {
    constexpr TextView currency = u"R$";
    constexpr TextView terms = u"À VISTA";
    constexpr std::size_t cents_length = 2;
    // Without a comma the whole part is empty: npos + 1 is 0.
    const TextView whole = left(preco, preco.find(u',') + 1);
    const TextView cents = right(preco, cents_length);
    const float cents_width = widthIn(surface, block.cents_measure, cents);
    const float whole_width = widthIn(surface, block.whole.font, whole);
    printBefore(surface, block.whole, origin, {cents_width, whole_width}, whole);
    printBefore(surface, block.cents, origin, {cents_width}, cents);
    const float currency_width = widthIn(surface, block.currency.font, currency);
    printBefore(surface, block.currency, origin, {cents_width, whole_width, currency_width},
                currency);
    const float terms_width = widthIn(surface, block.terms.font, terms);
    printBefore(surface, block.terms, origin,
                {cents_width, whole_width, currency_width, terms_width}, terms);
}

} // namespace etiquetas
