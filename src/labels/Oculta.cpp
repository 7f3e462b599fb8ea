#include "labels/Oculta.h"

#include "base/Numbers.h"
#include "labels/DescriptionBreak.h"
#include "labels/LabelLayout.h"
#include "labels/LabelStrip.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

using enum Weight;

// Only the LUMIRA label has its description where the size is missing.
bool hasDescription(const LabelTexts& label) {
    return label.flag == u"L" || hasSize(label);
}

constexpr Font small_text{plain, 6, face::franklin_medium};

constexpr auto layout = std::to_array<Row>({
    {Size{7}},
    {Face{face::calibri}},
    {bold},
    {Entry{{28.0F, -1.0F}, {bold, 20, face::calibri}, &LabelTexts::ref3}},
    {plain}, // where a barcode is refused, the next description is measured in this weight
    {drawBars},
    {Bars{{{9.3F, 10.0F}, 35.0F, 8.0F}}},
    {Entry{{18.3F, 7.5F}, small_text, &LabelTexts::master}},
    {Digits{{14.2F, 13.8F}, small_text, 1, 6}},
    {Digits{{25.4F, 13.8F}, small_text, 7, 7}},
    {Entry{{4.0F, 8.5F}, {bold, 20, face::calibri}, &LabelTexts::numero}, hasSizeOf<1>},
    {Entry{{1.0F, 7.0F}, {bold, 26, face::calibri}, &LabelTexts::numero}, hasSizeOf<2>},
    {Entry{{0.2F, 7.8F}, {bold, 20, face::calibri}, &LabelTexts::numero}, hasSizeOf<3>},
    {TrimmedEntry{{0.5F, 0.2F}, small_text, &LabelTexts::linha1}, hasDescription},
    {TrimmedEntry{{0.5F, 2.4F}, small_text, &LabelTexts::linha2}, hasDescription},
    {TrimmedEntry{{0.5F, 4.7F}, small_text, &LabelTexts::linha3}, hasDescription},
});

constexpr float measuring_points = 7; // above the size that the lines print in
constexpr float line_limit = 23;      // mm

bool isSeparator(char16_t character) {
    return separators.find(character) != TextView::npos;
}

// A digit that begins a number, be it the first character of all.
bool beginsNumber(TextView text, std::size_t position) {
    const bool after_digit = position > 1 && isNumeric(text[position - 2]);
    return !after_digit && isNumeric(text[position - 1]);
}

// Count of the characters that stay on the first line: up to the first separator at the limit or
// after it, or up to the first number that begins there; the whole text when there is neither.
std::size_t breakOf(const PrintSurface& surface, TextView text) {
    // Widths only grow with the text, so that nothing beyond the first overflow is measured.
    const std::size_t overflow =
        firstPrefix(surface, text, [](float width) { return width > line_limit; });
    for (std::size_t i = overflow; i <= text.size(); ++i) {
        if (isSeparator(text[i - 1])) {
            return i;
        }
        if (beginsNumber(text, i)) {
            return i - 1;
        }
    }
    return text.size();
}

// Measured in the weight that stands. A description of one line lets the colour move up.
std::array<TextView, 3> brokenDescription(FrmPadrao& form, TextView descricao, TextView cor) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(measuring_points);
    if (surface.TextWidth(descricao) < line_limit) {
        return {descricao, cor, {}};
    }
    const std::size_t end = breakOf(surface, descricao);
    const TextView first = left(descricao, end);
    const TextView second = descricao.substr(end);
    return second.empty() ? std::array{first, cor, TextView()} : std::array{first, second, cor};
}

Columns columnsOf(const FrmPadrao& form) {
    return {.first = form.Margem_oculta1 + 2.3F,
            .second = form.Margem_oculta11 + 5.0F,
            .top = form.Margem_oculta2};
}

} // namespace

void Imprime_Oculta_40_20_2(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3,
                            TextView master, TextView barra, TextView numero,
                            std::int16_t quantidade, TextView cor) {
    form.NomeFonte = face::franklin_medium;
    const auto [linha1, linha2, linha3] = brokenDescription(form, descricao, cor);
    const LabelTexts label{.flag = flag,
                           .linha1 = linha1,
                           .linha2 = linha2,
                           .linha3 = linha3,
                           .ref3 = ref3,
                           .master = master,
                           .barra = barra,
                           .numero = numero};
    drawStrips(form, layout, label, columnsOf(form), quantidade);
}

} // namespace etiquetas
