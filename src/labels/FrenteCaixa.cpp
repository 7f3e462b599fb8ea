#include "labels/FrenteCaixa.h"

#include "labels/DescriptionBreak.h"
#include "labels/LabelLayout.h"
#include "labels/LabelStrip.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

using enum Weight;

// Blanks included.
bool hasShortPromotion(const LabelTexts& label) {
    constexpr std::size_t characters = 2;
    return label.promocao.size() <= characters;
}

bool hasLongPromotion(const LabelTexts& label) {
    return !hasShortPromotion(label);
}

// The unit is back at millimetres before the bars are drawn, unlike on the other labels.
void takeBarcode(FrmPadrao& form, const LabelTexts& label, const Point& /*origin*/) {
    PrintSurface& surface = form.platform.surface;
    surface.ScaleMode(ScaleMode::pixels);
    form.txtbarra.text = label.barra;
    surface.ScaleMode(ScaleMode::millimetres);
}

constexpr Font line_text{plain, 7, face::franklin_medium};
constexpr Font master_text{bold, 7, face::franklin_medium};

constexpr Logo logo{.lumira = {{{2.5F, 0.0F}, 38.0F, 10.0F}, 300.0F},
                    .brisako = {{{2.5F, 1.5F}, 38.0F, 6.0F}, 355.0F}};

constexpr PriceBlock price{
    .cents_measure = {bold, 9, face::calibri},
    .whole = {{bold, 30, face::calibri}, 39.3F, 0.1F, 6.7F},
    .cents = {{bold, 9, face::calibri}, 39.3F, -0.1F, 9.0F},
    .currency = {{bold, 7, face::malgun_semilight}, 38.5F, -0.35F, 13.4F},
    .terms = {{plain, 6, face::franklin_medium}, 38.5F, -1.0F, 14.4F},
};

constexpr auto layout = std::to_array<Row>({
    {plain},
    {takeBarcode},
    {TrimmedEntry{{17.0F, 29.4F}, {plain, 8, face::calibri}, &LabelTexts::semana}},
    {TrimmedEntry{{30.0F, 27.0F}, {bold, 16, face::calibri}, &LabelTexts::promocao},
     hasShortPromotion},
    {TrimmedEntry{{30.0F, 27.0F}, {bold, 14, face::calibri}, &LabelTexts::promocao},
     hasLongPromotion},
    {drawEan},
    {Bars{{{10.6F, 33.0F}, 35.0F, 14.0F}}},
    {logo},
    {Entry{{30.0F, -0.3F}, {bold, 12, face::franklin_medium}, &LabelTexts::ref3}, hasPrice},
    {Entry{{20.0F, -2.5F}, {bold, 30, face::franklin_medium}, &LabelTexts::ref3}, hasNoPrice},
    {price, hasPrice},
    {Entry{{35.0F, 18.7F}, line_text, &LabelTexts::bandeira}},
    {Entry{{2.3F, 19.0F}, master_text, &LabelTexts::master}, hasOneLine},
    {Entry{{2.3F, 21.0F}, line_text, &LabelTexts::linha1}, hasOneLine},
    {TrimmedEntry{{2.3F, 24.0F}, line_text, &LabelTexts::cor}, hasOneLine},
    {Entry{{2.3F, 18.0F}, master_text, &LabelTexts::master}, hasTwoLines},
    {Entry{{2.3F, 21.0F}, line_text, &LabelTexts::linha1}, hasTwoLines},
    {Entry{{2.3F, 24.0F}, line_text, &LabelTexts::linha2}, hasTwoLines},
    {TrimmedEntry{{2.3F, 27.0F}, line_text, &LabelTexts::cor}, hasTwoLines},
    {Face{face::calibri}, hasSize}, // of the digits as well, which are in the face above otherwise
    {bold, hasSize},
    {Entry{{4.1F, 31.0F}, {bold, 32}, &LabelTexts::numero}, hasSizeOf<1>},
    {Entry{{1.6F, 31.0F}, {bold, 32}, &LabelTexts::numero}, hasSizeOf<2>},
    {Entry{{1.2F, 34.0F}, {bold, 22}, &LabelTexts::numero}, hasSizeOf<3>},
    {Digits{{15.8F, 39.5F}, {plain, 7}, 1, 6}},
    {Digits{{27.2F, 39.5F}, {plain, 7}, 7, 7}},
});

constexpr float measuring_points = 7;
constexpr float very_wide = 45;  // mm
constexpr float line_limit = 32; // mm

void dropLineEnds(Text& text) {
    std::erase_if(text,
                  [](char16_t character) { return character == u'\r' || character == u'\n'; });
}

// Measured in a face that the lines do not print in, and in the weight that stands.
std::array<TextView, 2> cutDescription(FrmPadrao& form, TextView descricao) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(measuring_points);
    if (surface.TextWidth(descricao) > very_wide) {
        surface.FontSize(measuring_points); // no description gets a smaller size
    }
    std::array<TextView, 2> lines{descricao, {}};
    if (surface.TextWidth(descricao) > line_limit) {
        const std::size_t end =
            firstPrefix(surface, descricao, [](float width) { return width >= line_limit; });
        lines = {left(descricao, end), descricao.substr(end)};
    }
    surface.ScaleMode(ScaleMode::millimetres);
    return lines;
}

Columns columnsOf(const FrmPadrao& form) {
    return {.first = form.Mx4045_1, .second = form.Mx4045_2, .top = form.Mx4045};
}

} // namespace

// NOLINTNEXTLINE(readability-function-size)
void Imprime_40_45_2(FrmPadrao& form, TextView flag, Text& descricao, TextView cor, TextView ref3,
                     TextView master, TextView barra, TextView numero, TextView preco,
                     std::int16_t quantidade, TextView promocao, TextView semana,
                     TextView bandeira) {
    dropLineEnds(descricao);
    form.NomeFonte = face::franklin_semilight;
    const auto [linha1, linha2] = cutDescription(form, descricao);
    const LabelTexts label{.flag = flag,
                           .linha1 = linha1,
                           .linha2 = linha2,
                           .cor = cor,
                           .ref3 = ref3,
                           .master = master,
                           .barra = barra,
                           .numero = numero,
                           .preco = preco,
                           .promocao = promocao,
                           .semana = semana,
                           .bandeira = bandeira};
    drawStrips(form, layout, label, columnsOf(form), quantidade);
}

} // namespace etiquetas
