#include "labels/Corrugado.h"

#include "barcodes/Code39.h"
#include "base/Numbers.h"
#include "labels/LabelLayout.h"
#include "labels/LabelPictures.h"
#include "model/FrmPadrao.h"

#include <array>
#include <variant>

namespace etiquetas {

namespace {

// The texts of one label.
struct PackLabel {
    TextView flag;
    TextView destino;
    TextView pedido;
    TextView codigo;
    TextView fornecedor;
    TextView descricao;
    TextView cor;
    TextView barra;
    TextView totgrade;
    Text volume;
    TextView semana;
};

// Size and weight of a text; the face is the label's one.
struct Style {
    float points;
    bool bold;
};
constexpr bool plain = false;
constexpr bool bold = true;

// What the form says on every label.
struct Heading {
    Point offset;
    Style style;
    TextView text;
};

// What this label says.
struct Entry {
    Point offset;
    Style style;
    TextView PackLabel::*text;
};

// What is drawn by a rule of its own.
using Special = void (*)(FrmPadrao&, const PackLabel&);

using Item = std::variant<Rule, Heading, Entry, Special>;

// Texts and bars stand from one origin, rules and logo from another.
Point textOrigin(const FrmPadrao& form) {
    return {form.PackX, form.PackY};
}

Point ruleOrigin(const FrmPadrao& form) {
    return {form.PackLinhaX, form.PackLinhaY};
}

void print(FrmPadrao& form, const Style& style, const Point& offset, TextView text) {
    PrintSurface& surface = form.platform.surface;
    surface.FontSize(style.points);
    surface.FontBold(style.bold);
    printAt(surface, at(textOrigin(form), offset), text);
}

// One step down from the size that the surface really holds. False where there is no smaller size.
bool shrink(PrintSurface& surface) {
    constexpr float step = 0.3F;
    if (surface.FontSize() <= step) {
        return false;
    }
    surface.FontSize(surface.FontSize() - step);
    return true;
}

void drawBars(FrmPadrao& form, const PackLabel& label) {
    constexpr std::int16_t escala = 1;
    constexpr std::size_t without_ean_length = 12;
    constexpr Box box{{16.0F, 74.0F}, 60.0F, 40.0F};
    form.txtbarra.text = label.barra;
    const TextView barra = form.txtbarra.text;
    Text code(form.txtean.visible ? barra : left(barra, without_ean_length));
    DesenhaCode39(form.Picture1, escala, code, false, false);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
    stampBars(form, at(textOrigin(form), box));
}

void drawDescription(FrmPadrao& form, const PackLabel& label) {
    constexpr float widest = 92;
    PrintSurface& surface = form.platform.surface;
    surface.FontSize(14);
    surface.FontBold(true);
    while (surface.TextWidth(label.descricao) > widest && shrink(surface)) {
    }
    printAt(surface, at(textOrigin(form), Point{1.5F, 68.4F}), label.descricao);
}

void drawCode(FrmPadrao& form, const PackLabel& label) {
    constexpr std::size_t short_code = 10;
    const float points = label.barra.size() > short_code ? 11 : 14;
    print(form, {points, bold}, {64.5F, 81.0F}, label.barra);
}

// Ends at a fixed place.
void drawTotal(FrmPadrao& form, const PackLabel& label) {
    PrintSurface& surface = form.platform.surface;
    surface.FontSize(25);
    surface.FontBold(true);
    const Point end = at(textOrigin(form), Point{93.0F, 117.0F});
    printAt(surface, {end.x - surface.TextWidth(label.totgrade), end.y}, label.totgrade);
}

// The size at which the first row of the size run fits; the second row takes the same.
float sizeRunPoints(FrmPadrao& form) {
    constexpr float widest = 60;
    constexpr float step = 0.3F;
    PrintSurface& surface = form.platform.surface;
    float points = 24;
    surface.FontSize(points);
    surface.FontBold(true);
    while (surface.TextWidth(form.txtgrade1.text) > widest && shrink(surface)) {
        points -= step;
    }
    return points;
}

void drawSizeRun(FrmPadrao& form, const PackLabel& /*label*/) {
    PrintSurface& surface = form.platform.surface;
    const float points = sizeRunPoints(form);
    const auto printCentred = [&](float y, TextView row) {
        surface.FontSize(points);
        const Point centre = at(textOrigin(form), Point{35.0F, y});
        printAt(surface, {centre.x - surface.TextWidth(row) / 2.0F, centre.y}, row);
    };
    printCentred(108.0F, form.txtgrade1.text);
    printCentred(117.0F, form.txtgrade2.text);
}

void drawVolume(FrmPadrao& form, const PackLabel& label) {
    constexpr std::size_t short_volume = 5;
    if (label.volume.size() <= short_volume) {
        print(form, {16, bold}, {30.0F, 130.0F}, label.volume);
    } else {
        print(form, {12, bold}, {25.2F, 131.7F}, label.volume);
    }
}

constexpr LogoLayout logo{.lumira = {{{3.0F, 6.5F}, 70.0F, 17.0F}, 300.0F},
                          .brisako = {{{3.0F, 6.5F}, 70.0F, 17.0F}, 300.0F}};

// The layout behind the logo, in drawing order; millimetres from the item's origin.
constexpr std::array<Item, 41> layout{
    Rule{{2.0F, 5.0F}, {99.0F, 5.4F}},
    Rule{{2.0F, 23.0F}, {99.0F, 23.4F}},
    Rule{{35.6F, 5.0F}, {35.9F, 23.4F}},
    Heading{{34.0F, 5.0F}, {14, plain}, u"CD - DESTINO"},
    Entry{{34.0F, 11.7F}, {18, bold}, &PackLabel::destino},
    Heading{{14.0F, 21.0F}, {16, plain}, u"PEDIDO"},
    Heading{{55.0F, 21.0F}, {16, plain}, u"Cód. Master"},
    Entry{{4.5F, 26.7F}, {20, bold}, &PackLabel::pedido},
    Entry{{55.0F, 26.7F}, {20, bold}, &PackLabel::codigo},
    Rule{{2.0F, 37.0F}, {99.0F, 37.3F}},
    Rule{{53.0F, 23.0F}, {53.3F, 37.0F}},
    Heading{{26.0F, 34.4F}, {16, plain}, u"FORNECEDOR"},
    Entry{{15.0F, 39.7F}, {20, bold}, &PackLabel::fornecedor},
    Rule{{2.0F, 49.7F}, {99.0F, 50.0F}},
    drawBars,
    Heading{{2.0F, 50.0F}, {16, plain}, u"NOTA FISCAL:"},
    Rule{{2.0F, 64.0F}, {99.0F, 64.3F}},
    Heading{{36.0F, 62.5F}, {14, plain}, u"Descrição"},
    drawDescription,
    Rule{{2.0F, 77.0F}, {99.0F, 77.3F}},
    Heading{{2.0F, 74.5F}, {14, plain}, u"COR"},
    Entry{{2.0F, 79.7F}, {16, bold}, &PackLabel::cor},
    Heading{{64.5F, 74.5F}, {14, plain}, u"CÓDIGO"},
    drawCode,
    Rule{{2.0F, 110.5F}, {99.0F, 110.8F}},
    Heading{{77.0F, 110.0F}, {16, bold}, u"TOTAL"},
    drawTotal,
    drawSizeRun, // two rows
    Rule{{2.0F, 119.5F}, {74.0F, 119.8F}},
    Rule{{74.0F, 110.5F}, {74.3F, 129.8F}},
    Rule{{2.0F, 129.5F}, {99.0F, 129.8F}},
    Rule{{51.0F, 129.5F}, {51.3F, 140.3F}},
    Heading{{2.0F, 130.0F}, {18, plain}, u"Volume:"},
    drawVolume,
    Heading{{50.0F, 130.0F}, {18, plain}, u"Semana:"},
    Entry{{75.0F, 130.0F}, {18, bold}, &PackLabel::semana},
    Rule{{2.0F, 89.0F}, {99.0F, 89.3F}},
    Rule{{64.0F, 77.0F}, {64.3F, 89.3F}},
    Rule{{2.0F, 5.0F}, {2.2F, 140.0F}},
    Rule{{99.0F, 5.0F}, {99.2F, 140.0F}},
    Rule{{2.0F, 140.0F}, {99.2F, 140.3F}},
};

// Draws the items of the layout, each by its kind.
struct ItemDrawer {
    FrmPadrao& form;
    const PackLabel& label;

    void operator()(const Rule& rule) const {
        drawRule(form.platform.surface, rule, ruleOrigin(form));
    }
    void operator()(const Heading& heading) const {
        print(form, heading.style, heading.offset, heading.text);
    }
    void operator()(const Entry& entry) const {
        print(form, entry.style, entry.offset, label.*entry.text);
    }
    void operator()(const Special& draw) const { draw(form, label); }
};

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

void drawLabel(FrmPadrao& form, const PackLabel& label) {
    stampLogo(form, label.flag, logo, ruleOrigin(form));
    for (const Item& item : layout) {
        std::visit(ItemDrawer{form, label}, item);
    }
    form.platform.surface.NewPage();
}

// Rules and logo have an origin of their own, by the calibration of this label.
void setOrigins(FrmPadrao& form) {
    form.PackLinhaX = form.PackX - 2.7F;
    form.PackLinhaY = form.PackY - 3.0F;
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
    setOrigins(form);
    for (std::int32_t n = de; n <= ate; ++n) {
        drawLabel(form, {.flag = flag,
                         .destino = destino,
                         .pedido = pedido,
                         .codigo = codigo,
                         .fornecedor = fornecedor,
                         .descricao = descricao,
                         .cor = cor,
                         .barra = barra,
                         .totgrade = totgrade,
                         .volume = volumeText(form, n, ate),
                         .semana = semana});
    }
}

} // namespace etiquetas
