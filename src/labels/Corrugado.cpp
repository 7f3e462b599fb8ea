#include "labels/Corrugado.h"

#include "barcodes/Code39.h"
#include "base/Numbers.h"
#include "labels/LabelLayout.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

using enum Weight;

bool hasShortCode(const LabelTexts& label) {
    constexpr std::size_t characters = 10;
    return label.barra.size() <= characters;
}

bool hasLongCode(const LabelTexts& label) {
    return !hasShortCode(label);
}

bool hasShortVolume(const LabelTexts& label) {
    constexpr std::size_t characters = 5;
    return label.volume.size() <= characters;
}

bool hasLongVolume(const LabelTexts& label) {
    return !hasShortVolume(label);
}

// While the EAN field is hidden the bars hold the barcode without its check digit.
void drawCode39(FrmPadrao& form, const LabelTexts& label, const Point& /*origin*/) {
    constexpr std::int16_t escala = 1;
    constexpr std::size_t without_check_digit = 12;
    form.txtbarra.text = label.barra;
    const TextView barra = form.txtbarra.text;
    Text code(form.txtean.visible ? barra : left(barra, without_check_digit));
    DesenhaCode39(form.Picture1, escala, code, false, false);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
}

constexpr float shrink_step = 0.3F; // points

// One step down from the size that the surface really holds. False where there is no smaller size.
bool shrink(PrintSurface& surface) {
    if (surface.FontSize() <= shrink_step) {
        return false;
    }
    surface.FontSize(surface.FontSize() - shrink_step);
    return true;
}

void drawDescription(FrmPadrao& form, const LabelTexts& label, const Point& origin) {
    constexpr float widest = 92; // mm
    PrintSurface& surface = form.platform.surface;
    useFont(surface, {bold, 14});
    while (surface.TextWidth(label.descricao) > widest && shrink(surface)) {
    }
    printAt(surface, at(origin, Point{1.5F, 68.4F}), label.descricao);
}

// Ends at a fixed place.
void drawTotal(FrmPadrao& form, const LabelTexts& label, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    useFont(surface, {bold, 25});
    const Point end = at(origin, Point{93.0F, 117.0F});
    printAt(surface, {end.x - surface.TextWidth(label.totgrade), end.y}, label.totgrade);
}

// The size at which the first row of the size run fits. It is counted apart from the surface, which
// may hold another size than it was set to.
float sizeRunPoints(FrmPadrao& form) {
    constexpr float widest = 60; // mm
    PrintSurface& surface = form.platform.surface;
    float points = 24;
    useFont(surface, {bold, points});
    while (surface.TextWidth(form.txtgrade1.text) > widest && shrink(surface)) {
        points -= shrink_step;
    }
    return points;
}

// Both rows in the size that the first one takes, each centred on the same line.
void drawSizeRun(FrmPadrao& form, const LabelTexts& /*label*/, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    const float points = sizeRunPoints(form);
    const auto print_centred = [&](const Point& offset, TextView row) {
        surface.FontSize(points);
        const Point centre = at(origin, offset);
        printAt(surface, {centre.x - surface.TextWidth(row) / 2.0F, centre.y}, row);
    };
    print_centred({35.0F, 108.0F}, form.txtgrade1.text);
    print_centred({35.0F, 117.0F}, form.txtgrade2.text);
}

constexpr LogoStamp logo_of_either{{{3.0F, 6.5F}, 70.0F, 17.0F}, 300.0F};

// All texts are in the one face that is set before the first label.
constexpr auto layout = std::to_array<Row>({
    {Logo{.lumira = logo_of_either, .brisako = logo_of_either}},
    {Rule{{2.0F, 5.0F}, {99.0F, 5.4F}}},
    {Rule{{2.0F, 23.0F}, {99.0F, 23.4F}}},
    {Rule{{35.6F, 5.0F}, {35.9F, 23.4F}}},
    {Heading{{34.0F, 5.0F}, {plain, 14}, u"CD - DESTINO"}},
    {Entry{{34.0F, 11.7F}, {bold, 18}, &LabelTexts::destino}},
    {Heading{{14.0F, 21.0F}, {plain, 16}, u"PEDIDO"}},
    {Heading{{55.0F, 21.0F}, {plain, 16}, u"Cód. Master"}},
    {Entry{{4.5F, 26.7F}, {bold, 20}, &LabelTexts::pedido}},
    {Entry{{55.0F, 26.7F}, {bold, 20}, &LabelTexts::codigo}},
    {Rule{{2.0F, 37.0F}, {99.0F, 37.3F}}},
    {Rule{{53.0F, 23.0F}, {53.3F, 37.0F}}},
    {Heading{{26.0F, 34.4F}, {plain, 16}, u"FORNECEDOR"}},
    {Entry{{15.0F, 39.7F}, {bold, 20}, &LabelTexts::fornecedor}},
    {Rule{{2.0F, 49.7F}, {99.0F, 50.0F}}},
    {drawCode39},
    {Bars{{{16.0F, 74.0F}, 60.0F, 40.0F}}},
    {Heading{{2.0F, 50.0F}, {plain, 16}, u"NOTA FISCAL:"}},
    {Rule{{2.0F, 64.0F}, {99.0F, 64.3F}}},
    {Heading{{36.0F, 62.5F}, {plain, 14}, u"Descrição"}},
    {drawDescription},
    {Rule{{2.0F, 77.0F}, {99.0F, 77.3F}}},
    {Heading{{2.0F, 74.5F}, {plain, 14}, u"COR"}},
    {Entry{{2.0F, 79.7F}, {bold, 16}, &LabelTexts::cor}},
    {Heading{{64.5F, 74.5F}, {plain, 14}, u"CÓDIGO"}},
    {Entry{{64.5F, 81.0F}, {bold, 14}, &LabelTexts::barra}, hasShortCode},
    {Entry{{64.5F, 81.0F}, {bold, 11}, &LabelTexts::barra}, hasLongCode},
    {Rule{{2.0F, 110.5F}, {99.0F, 110.8F}}},
    {Heading{{77.0F, 110.0F}, {bold, 16}, u"TOTAL"}},
    {drawTotal},
    {drawSizeRun},
    {Rule{{2.0F, 119.5F}, {74.0F, 119.8F}}},
    {Rule{{74.0F, 110.5F}, {74.3F, 129.8F}}},
    {Rule{{2.0F, 129.5F}, {99.0F, 129.8F}}},
    {Rule{{51.0F, 129.5F}, {51.3F, 140.3F}}},
    {Heading{{2.0F, 130.0F}, {plain, 18}, u"Volume:"}},
    {Entry{{30.0F, 130.0F}, {bold, 16}, &LabelTexts::volume}, hasShortVolume},
    {Entry{{25.2F, 131.7F}, {bold, 12}, &LabelTexts::volume}, hasLongVolume},
    {Heading{{50.0F, 130.0F}, {plain, 18}, u"Semana:"}},
    {Entry{{75.0F, 130.0F}, {bold, 18}, &LabelTexts::semana}},
    {Rule{{2.0F, 89.0F}, {99.0F, 89.3F}}},
    {Rule{{64.0F, 77.0F}, {64.3F, 89.3F}}},
    {Rule{{2.0F, 5.0F}, {2.2F, 140.0F}}},
    {Rule{{99.0F, 5.0F}, {99.2F, 140.0F}}},
    {Rule{{2.0F, 140.0F}, {99.2F, 140.3F}}},
});

// "007/123": the number is padded to the length of the last one, up to three digits. Without a
// known last one it stands plain before the last of this run.
Text volumeText(const FrmPadrao& form, std::int32_t number, std::int16_t ate) {
    constexpr std::array<TextView, 4> patterns{u"#0", u"#00", u"#000", u"#000"};
    const Text& last = form.lblmax.caption;
    if (last.empty() || last.size() > patterns.size()) {
        return numberText(number).append(u"/").append(numberText(ate));
    }
    return formatted(number, patterns[last.size() - 1]).append(u"/").append(last);
}

// Rules and logo have an origin of their own, by the calibration of this label.
Origins takeOrigins(FrmPadrao& form) {
    form.PackLinhaX = form.PackX - 2.7F;
    form.PackLinhaY = form.PackY - 3.0F;
    return {.texts = {form.PackX, form.PackY}, .rules = {form.PackLinhaX, form.PackLinhaY}};
}

} // namespace

// NOLINTNEXTLINE(readability-function-size)
void EtiPack(FrmPadrao& form, TextView flag, TextView destino, TextView pedido, TextView codigo,
             TextView fornecedor, TextView descricao, TextView cor, TextView barra,
             TextView /*grade1*/, TextView /*grade2*/, TextView totgrade, std::int16_t de,
             std::int16_t ate, TextView semana) {
    form.NomeFonte = face::franklin_medium;
    form.platform.surface.FontName(form.NomeFonte);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
    const Origins origins = takeOrigins(form);
    for (std::int32_t n = de; n <= ate; ++n) {
        const Text volume = volumeText(form, n, ate);
        const LabelTexts label{.flag = flag,
                               .descricao = descricao,
                               .cor = cor,
                               .codigo = codigo,
                               .barra = barra,
                               .semana = semana,
                               .destino = destino,
                               .pedido = pedido,
                               .fornecedor = fornecedor,
                               .totgrade = totgrade,
                               .volume = volume};
        drawLayout(form, layout, label, origins);
        form.platform.surface.NewPage();
    }
}

} // namespace etiquetas
