#include "labels/PriceBlock.h"

#include <array>
#include <span>

namespace etiquetas {

namespace {

constexpr std::size_t cents_length = 2;

float widthIn(PrintSurface& surface, const Font& font, TextView text) {
    useFont(surface, font);
    return surface.TextWidth(text);
}

// Prints a text to the left of those with these widths, its own being one of them.
void printBefore(PrintSurface& surface, const PriceItem& item, const Point& origin,
                 std::span<const float> widths, TextView text) {
    float x = origin.x + item.edge;
    for (const float width : widths) {
        x -= width;
    }
    useFont(surface, item.font);
    printAt(surface, {x + item.shift, origin.y + item.y}, text);
}

} // namespace

bool hasPrice(TextView preco) {
    return trimmed(preco) != sem_preco;
}

void printPrice(PrintSurface& surface, const PriceLayout& layout, const Point& origin,
                TextView preco) {
    constexpr TextView currency = u"R$";
    constexpr TextView terms = u"À VISTA";
    // Without a comma the whole part is empty.
    const TextView whole = left(preco, preco.find(u',') + 1);
    const TextView cents = right(preco, cents_length);
    std::array<float, 4> widths{}; // from the right: cents, whole part, "R$", "À VISTA"
    widths[0] = widthIn(surface, layout.cents_measure, cents);
    widths[1] = widthIn(surface, layout.whole.font, whole);
    printBefore(surface, layout.whole, origin, std::span(widths).first(2), whole);
    printBefore(surface, layout.cents, origin, std::span(widths).first(1), cents);
    widths[2] = widthIn(surface, layout.currency.font, currency);
    printBefore(surface, layout.currency, origin, std::span(widths).first(3), currency);
    widths[3] = widthIn(surface, layout.terms.font, terms);
    printBefore(surface, layout.terms, origin, widths, terms);
}

} // namespace etiquetas
