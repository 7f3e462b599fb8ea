#include "labels/Frente100x40.h"

#include "labels/DescriptionBreak.h"
#include "labels/LabelLayout.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

using enum Weight;

void drawPhotograph(FrmPadrao& form, const LabelTexts& /*label*/, const Point& origin) {
    constexpr Box photograph{{6.0F, 18.0F}, 20.0F, 20.0F};
    if (form.tem_imagem) {
        stamp(form.platform.surface, form.pctimage.picture, at(origin, photograph));
    }
}

constexpr float line_points = 11;

constexpr Logo logo{.lumira = {{{58.0F, 3.2F}, 20.0F, 10.0F}},
                    .brisako = {{{55.0F, 3.2F}, 24.0F, 10.0F}}};

// All texts are in the one face that is set before the first label.
constexpr auto layout = std::to_array<Row>({
    {logo},
    {drawPhotograph},
    {Entry{{5.0F, 5.0F}, {bold, line_points}, &LabelTexts::linha1}},
    {Entry{{5.0F, 10.0F}, {bold, line_points}, &LabelTexts::linha2}},
    {Entry{{83.0F, 3.5F}, {plain, 26}, &LabelTexts::ref3}},
    {Entry{{34.0F, 28.0F}, {bold, 26}, &LabelTexts::numero}, hasSize},
    {Rule{{32.0F, 25.0F}, {45.0F, 25.5F}}, hasSize}, // top of the size box
    {Rule{{32.0F, 36.0F}, {45.0F, 36.5F}}, hasSize}, // bottom
    {Rule{{32.0F, 25.0F}, {32.5F, 36.5F}}, hasSize}, // left
    {Rule{{45.0F, 25.0F}, {45.5F, 36.5F}}, hasSize}, // right
    {drawBars},
    {Bars{{{47.0F, 17.0F}, 60.0F, 20.0F}}},
    {Entry{{70.0F, 16.5F}, {bold, 14}, &LabelTexts::preco}, hasPrice},
    {Entry{{63.0F, 22.2F}, {plain, 10}, &LabelTexts::codigo, u"COD: "}},
    {Digits{{51.0F, 35.0F}, {plain, 9.5F}, 1, 1}},
    {Digits{{60.0F, 35.0F}, {plain, 9.5F}, 2, 6}},
    {Digits{{80.0F, 35.0F}, {plain, 9.5F}, 8, 6}},
    {Rule{{81.0F, 2.7F}, {81.5F, 12.0F}}},  // left of the item code
    {Rule{{81.0F, 12.0F}, {98.0F, 12.5F}}}, // under it
});

constexpr float line_limit = 50; // mm

// Breaks at the last blank that fits, or within a word that is too long by itself. Measured in the
// size that the lines print in, and in the weight that stands.
std::array<TextView, 2> brokenDescription(FrmPadrao& form, TextView descricao) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(line_points);
    std::array<TextView, 2> lines{descricao, {}};
    if (surface.TextWidth(descricao) > line_limit) {
        const std::size_t overflow =
            firstPrefix(surface, descricao, [](float width) { return width >= line_limit; });
        const std::size_t blank = left(descricao, overflow).rfind(u' ');
        const std::size_t end = blank == TextView::npos ? overflow : blank + 1;
        lines = {trimmed(left(descricao, end)), trimmed(descricao.substr(end))};
    }
    surface.ScaleMode(ScaleMode::millimetres);
    return lines;
}

} // namespace

void Eti100_40_1(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3, TextView codigo,
                 TextView barra, TextView numero, TextView preco, std::int16_t quantidade) {
    const auto [linha1, linha2] = brokenDescription(form, descricao);
    const LabelTexts label{.flag = flag,
                           .linha1 = linha1,
                           .linha2 = linha2,
                           .ref3 = ref3,
                           .codigo = codigo,
                           .barra = barra,
                           .numero = numero,
                           .preco = preco};
    const Point origin{form.PackLinhaX, form.PackLinhaY};
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawLayout(form, layout, label, {.texts = origin, .rules = origin});
        form.platform.surface.NewPage();
    }
}

} // namespace etiquetas
