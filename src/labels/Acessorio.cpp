#include "labels/Acessorio.h"

#include "labels/DescriptionBreak.h"
#include "labels/LabelLayout.h"
#include "labels/LabelStrip.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

using enum Weight;

constexpr Font small_text{bold, 5, face::franklin_medium};

constexpr Logo logo{.lumira = {{{9.0F, 0.5F}, 28.0F, 6.0F}, 300.0F},
                    .brisako = {{{7.7F, -0.4F}, 22.0F, 5.0F}, 300.0F}};

constexpr PriceBlock price{
    .cents_measure = {bold, 5, face::calibri},
    .whole = {{bold, 24, face::calibri}, 44.4F, -0.3F, -1.1F},
    .cents = {{bold, 12, face::calibri}, 43.0F, 0.0F, 0.3F},
    .currency = {{bold, 7, face::malgun_semilight}, 44.4F, -0.35F, 3.9F},
    .terms = {{plain, 6, face::franklin_medium}, 44.4F, -1.0F, 4.55F},
};

constexpr auto layout = std::to_array<Row>({
    {Size{7}},
    {logo},
    {price, hasPrice},

    // Two lines of description
    {TrimmedEntry{{7.0F, 7.2F}, small_text, &LabelTexts::linha1}, hasTwoLines},
    {TrimmedEntry{{7.0F, 9.0F}, small_text, &LabelTexts::linha2}, hasTwoLines},
    {bold, hasTwoLines},
    {drawBars, hasTwoLines},
    {Bars{{{4.6F, 12.9F}, 35.0F, 8.0F}}, hasTwoLines},
    {Entry{{7.0F, 10.8F}, small_text, &LabelTexts::codigo}, hasTwoLines},
    {TrimmedEntry{{18.7F, 10.8F}, small_text, &LabelTexts::bandeira}, hasTwoLines},
    {TrimmedEntry{{23.2F, 10.8F}, small_text, &LabelTexts::semana}, hasTwoLines},
    {Digits{{9.5F, 16.1F}, small_text, 1, 6}, hasTwoLines},
    {Digits{{21.2F, 16.1F}, small_text, 7, 7}, hasTwoLines},

    // One line, with the rest moved up
    {TrimmedEntry{{7.0F, 7.2F}, small_text, &LabelTexts::linha1}, hasOneLine},
    {bold, hasOneLine},
    {drawBars, hasOneLine},
    {Bars{{{4.6F, 12.0F}, 35.0F, 8.0F}}, hasOneLine},
    {Entry{{7.0F, 9.3F}, small_text, &LabelTexts::codigo}, hasOneLine},
    {TrimmedEntry{{18.7F, 9.4F}, small_text, &LabelTexts::bandeira}, hasOneLine},
    {TrimmedEntry{{23.2F, 9.3F}, small_text, &LabelTexts::semana}, hasOneLine},
    {Digits{{9.5F, 15.6F}, small_text, 1, 6}, hasOneLine},
    {Digits{{21.2F, 15.8F}, small_text, 7, 7}, hasOneLine},

    // Promotion and end of the item code
    {Entry{{37.5F, 9.1F}, {bold, 14, face::franklin_medium}, &LabelTexts::promocao}, hasPrice},
    {Entry{{35.4F, 14.5F}, {bold, 8, face::franklin_medium}, &LabelTexts::ref3}, hasPrice},
    {Entry{{37.5F, 8.1F}, {bold, 14, face::franklin_medium}, &LabelTexts::promocao}, hasNoPrice},
    {Entry{{34.0F, 13.0F}, {bold, 12, face::franklin_medium}, &LabelTexts::ref3}, hasNoPrice},
});

constexpr float measuring_points = 7; // above the size that the lines print in
constexpr float line_limit = 52;      // mm
constexpr std::size_t ref3_length = 3;

using Lines = std::array<TextView, 2>;

// Breaks after the last separator of what is too wide. Without one there is no line at all.
Lines brokenAt(std::size_t overflow, TextView text) {
    const std::size_t separator = left(text, overflow).find_last_of(separators);
    if (separator == TextView::npos) {
        return {};
    }
    // The second line is counted from the length of the trimmed first one: it repeats as many
    // characters as the first one loses blanks at its start.
    const TextView first = trimmed(left(text, separator + 1));
    return {first, text.substr(first.size())};
}

// Measured in the weight that stands.
Lines brokenDescription(FrmPadrao& form, TextView descricao_cor) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(measuring_points);
    const Lines unbroken{descricao_cor, {}};
    if (surface.TextWidth(descricao_cor) < line_limit) {
        return unbroken;
    }
    const std::size_t overflow =
        firstPrefix(surface, descricao_cor, [](float width) { return width > line_limit; });
    // A text that is just as wide as the limit has nothing beyond it.
    return overflow > descricao_cor.size() ? unbroken : brokenAt(overflow, descricao_cor);
}

// This label stands left of the others on the same stock, each column by its own calibration.
void moveMargins(FrmPadrao& form) {
    form.Margem_oculta1 -= 4.8F;
    form.Margem_oculta11 -= 1.5F;
}

Columns columnsOf(const FrmPadrao& form) {
    return {
        .first = form.Margem_oculta1, .second = form.Margem_oculta11, .top = form.Margem_oculta2};
}

} // namespace

// NOLINTNEXTLINE(readability-function-size)
void Imprime_Acessorio_40_20_2(FrmPadrao& form, TextView flag, TextView descricao_cor,
                               TextView /*ref3*/, TextView codigo, TextView barra,
                               TextView /*pares*/, TextView preco, std::int16_t quantidade,
                               TextView bandeira, TextView semana, TextView promocao) {
    form.NomeFonte = face::franklin_medium;
    form.txtbarra.text = barra;
    moveMargins(form);
    const auto [linha1, linha2] = brokenDescription(form, descricao_cor);
    const LabelTexts label{.flag = flag,
                           .linha1 = linha1,
                           .linha2 = linha2,
                           .ref3 = right(codigo, ref3_length),
                           .codigo = codigo,
                           .barra = barra,
                           .preco = preco,
                           .promocao = promocao,
                           .semana = semana,
                           .bandeira = bandeira};
    drawStrips(form, layout, label, columnsOf(form), quantidade);
}

} // namespace etiquetas
