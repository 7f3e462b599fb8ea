#include "labels/Frente100x40.h"

#include "labels/LabelLayout.h"
#include "labels/LabelPictures.h"
#include "labels/PriceBlock.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

// The layout, in drawing order; millimetres from the label's origin. All texts are in the one face
// that is set before the first label.
constexpr float line_points = 11;
constexpr float line_limit = 50;

struct Item {
    bool bold;
    float points;
    Point offset;
};
constexpr LogoLayout logo{.lumira = {{{58.0F, 3.2F}, 20.0F, 10.0F}, {}},
                          .brisako = {{{55.0F, 3.2F}, 24.0F, 10.0F}, {}}};
constexpr Box item_photograph{{6.0F, 18.0F}, 20.0F, 20.0F};
constexpr Item item_line1{true, line_points, {5.0F, 5.0F}};
constexpr Item item_line2{true, line_points, {5.0F, 10.0F}};
constexpr Item item_ref3{false, 26, {83.0F, 3.5F}};
constexpr Item item_size{true, 26, {34.0F, 28.0F}};
constexpr std::array<Rule, 4> size_box{{
    {{32.0F, 25.0F}, {45.0F, 25.5F}}, // top
    {{32.0F, 36.0F}, {45.0F, 36.5F}}, // bottom
    {{32.0F, 25.0F}, {32.5F, 36.5F}}, // left
    {{45.0F, 25.0F}, {45.5F, 36.5F}}, // right
}};
constexpr Box item_bars{{47.0F, 17.0F}, 60.0F, 20.0F};
constexpr Item item_price{true, 14, {70.0F, 16.5F}};
constexpr Item item_code{false, 10, {63.0F, 22.2F}};
constexpr Item item_first_digit{false, 9.5F, {51.0F, 35.0F}};
constexpr Item item_digits_left{false, 9.5F, {60.0F, 35.0F}};
constexpr Item item_digits_right{false, 9.5F, {80.0F, 35.0F}};
constexpr std::array<Rule, 2> corner{{
    {{81.0F, 2.7F}, {81.5F, 12.0F}},  // left of the item code
    {{81.0F, 12.0F}, {98.0F, 12.5F}}, // under it
}};

// The texts of one run of labels.
struct PhotographLabel {
    TextView flag;
    std::array<TextView, 2> lines;
    TextView ref3;
    TextView codigo;
    TextView barra;
    TextView numero;
    TextView preco;
};

// Breaks at the last blank that fits, or within a word that is too long by itself.
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

void print(PrintSurface& surface, const Item& item, const Point& origin, TextView text) {
    surface.FontBold(item.bold);
    surface.FontSize(item.points);
    printAt(surface, at(origin, item.offset), text);
}

void drawPhotograph(FrmPadrao& form, const Point& origin) {
    if (form.tem_imagem) {
        stamp(form.platform.surface, form.pctimage.picture, at(origin, item_photograph));
    }
}

void drawSize(PrintSurface& surface, const PhotographLabel& label, const Point& origin) {
    if (isBlank(label.numero)) {
        return;
    }
    print(surface, item_size, origin, label.numero);
    for (const Rule& rule : size_box) {
        drawRule(surface, rule, origin);
    }
}

void drawCodes(FrmPadrao& form, const PhotographLabel& label, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    drawBars(form, label.barra);
    stampBars(form, at(origin, item_bars));
    if (hasPrice(label.preco)) {
        print(surface, item_price, origin, label.preco);
    }
    print(surface, item_code, origin, Text(u"COD: ").append(label.codigo));
    print(surface, item_first_digit, origin, mid(form.txtbarra.text, 1, 1));
    print(surface, item_digits_left, origin, mid(form.txtbarra.text, 2, 6));
    print(surface, item_digits_right, origin, mid(form.txtbarra.text, 8, 6));
}

void drawLabel(FrmPadrao& form, const PhotographLabel& label) {
    PrintSurface& surface = form.platform.surface;
    const Point origin{form.PackLinhaX, form.PackLinhaY};
    stampLogo(form, label.flag, logo, origin);
    drawPhotograph(form, origin);
    print(surface, item_line1, origin, label.lines[0]);
    print(surface, item_line2, origin, label.lines[1]);
    print(surface, item_ref3, origin, label.ref3);
    drawSize(surface, label, origin);
    drawCodes(form, label, origin);
    for (const Rule& rule : corner) {
        drawRule(surface, rule, origin);
    }
    surface.NewPage();
}

} // namespace

void Eti100_40_1(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3, TextView codigo,
                 TextView barra, TextView numero, TextView preco, std::int16_t quantidade) {
    const PhotographLabel label{.flag = flag,
                                .lines = brokenDescription(form, descricao),
                                .ref3 = ref3,
                                .codigo = codigo,
                                .barra = barra,
                                .numero = numero,
                                .preco = preco};
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawLabel(form, label);
    }
}

} // namespace etiquetas
