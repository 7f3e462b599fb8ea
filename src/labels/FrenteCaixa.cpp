#include "labels/FrenteCaixa.h"

#include "labels/LabelLayout.h"
#include "labels/LabelPictures.h"
#include "labels/LabelStrip.h"
#include "labels/PriceBlock.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

// The layout, in drawing order; millimetres from the label's origin.
constexpr float measuring_points = 7;
constexpr float very_wide = 45;
constexpr float line_limit = 32;

constexpr Font plain{face::franklin_medium, false, 7};
constexpr Font bold{face::franklin_medium, true, 7};

constexpr TextItem item_week{{face::calibri, false, 8}, {17.0F, 29.4F}};
constexpr Point place_promotion{30.0F, 27.0F};
constexpr Font font_promotion{face::calibri, true, 16};
constexpr Font font_long_promotion{face::calibri, true, 14};
constexpr std::size_t short_promotion = 2; // characters, blanks included
constexpr Box item_bars{{10.6F, 33.0F}, 35.0F, 14.0F};
constexpr LogoLayout logo{.lumira = {{{2.5F, 0.0F}, 38.0F, 10.0F}, 300.0F},
                          .brisako = {{{2.5F, 1.5F}, 38.0F, 6.0F}, 355.0F}};
constexpr TextItem item_ref3_with_price{{face::franklin_medium, true, 12}, {30.0F, -0.3F}};
constexpr TextItem item_ref3_alone{{face::franklin_medium, true, 30}, {20.0F, -2.5F}};
constexpr PriceLayout price{
    .cents_measure = {face::calibri, true, 9},
    .whole = {{face::calibri, true, 30}, 39.3F, 0.1F, 6.7F},
    .cents = {{face::calibri, true, 9}, 39.3F, -0.1F, 9.0F},
    .currency = {{face::malgun_semilight, true, 7}, 38.5F, -0.35F, 13.4F},
    .terms = {{face::franklin_medium, false, 6}, 38.5F, -1.0F, 14.4F},
};
constexpr TextItem item_banner{plain, {35.0F, 18.7F}};
constexpr TextItem item_master_of_three{bold, {2.3F, 19.0F}};
constexpr TextItem item_master_of_four{bold, {2.3F, 18.0F}};
constexpr std::array<TextItem, 3> items_behind_master{{
    {plain, {2.3F, 21.0F}},
    {plain, {2.3F, 24.0F}},
    {plain, {2.3F, 27.0F}},
}};

struct SizeItem {
    Point offset;
    float points;
};
constexpr std::array<SizeItem, 3> items_size{{
    {{4.1F, 31.0F}, 32}, // one character
    {{1.6F, 31.0F}, 32}, // two
    {{1.2F, 34.0F}, 22}, // three; a longer size is not drawn
}};
constexpr float digits_points = 7;
constexpr Point place_digits_left{15.8F, 39.5F};
constexpr Point place_digits_right{27.2F, 39.5F};

// The texts of one run of labels.
struct BoxFrontLabel {
    TextView flag;
    std::array<TextView, 2> lines;
    TextView cor;
    TextView ref3;
    TextView master;
    TextView barra;
    TextView numero;
    TextView preco;
    TextView promocao;
    TextView semana;
    TextView bandeira;
};

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

Point nextOrigin(const FrmPadrao& form) {
    return {form.coluna_etiqueta == 1 ? form.Mx4045_1 : form.Mx4045_2, form.Mx4045};
}

// The unit is back at millimetres before the bars are drawn, unlike on the other labels.
void beginLabel(FrmPadrao& form, const BoxFrontLabel& label) {
    PrintSurface& surface = form.platform.surface;
    ++form.coluna_etiqueta;
    surface.FontBold(false);
    surface.ScaleMode(ScaleMode::pixels);
    form.txtbarra.text = label.barra;
    surface.ScaleMode(ScaleMode::millimetres);
}

void drawWeekAndPromotion(PrintSurface& surface, const BoxFrontLabel& label, const Point& origin) {
    printItem(surface, item_week, origin, trimmed(label.semana));
    const bool is_short = label.promocao.size() <= short_promotion;
    printItem(surface, {is_short ? font_promotion : font_long_promotion, place_promotion}, origin,
              trimmed(label.promocao));
}

void drawCodeAndPrice(PrintSurface& surface, const BoxFrontLabel& label, const Point& origin) {
    const bool has_price = hasPrice(label.preco);
    printItem(surface, has_price ? item_ref3_with_price : item_ref3_alone, origin, label.ref3);
    if (has_price) {
        printPrice(surface, price, origin, label.preco);
    }
    printItem(surface, item_banner, origin, label.bandeira);
}

void drawDescription(PrintSurface& surface, const BoxFrontLabel& label, const Point& origin) {
    const auto& [first, second, third] = items_behind_master;
    if (isBlank(label.lines[1])) {
        printItem(surface, item_master_of_three, origin, label.master);
        printItem(surface, first, origin, label.lines[0]);
        printItem(surface, second, origin, trimmed(label.cor));
    } else {
        printItem(surface, item_master_of_four, origin, label.master);
        printItem(surface, first, origin, label.lines[0]);
        printItem(surface, second, origin, label.lines[1]);
        printItem(surface, third, origin, trimmed(label.cor));
    }
}

void drawSize(PrintSurface& surface, const BoxFrontLabel& label, const Point& origin) {
    if (isBlank(label.numero)) {
        return;
    }
    surface.FontName(face::calibri);
    surface.FontBold(true);
    const std::size_t length = label.numero.size();
    if (length <= items_size.size()) {
        const SizeItem& item = items_size[length - 1];
        surface.FontSize(item.points);
        printAt(surface, at(origin, item.offset), label.numero);
    }
}

// In the face of the size, or in that of the description where there is no size.
void drawDigits(FrmPadrao& form, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    surface.FontBold(false);
    surface.FontSize(digits_points);
    printAt(surface, at(origin, place_digits_left), mid(form.txtbarra.text, 1, 6));
    printAt(surface, at(origin, place_digits_right), mid(form.txtbarra.text, 7, 7));
}

void drawLabel(FrmPadrao& form, const BoxFrontLabel& label) {
    PrintSurface& surface = form.platform.surface;
    const Point origin = nextOrigin(form);
    beginLabel(form, label);
    drawWeekAndPromotion(surface, label, origin);
    drawEan(form);
    stampBars(form, at(origin, item_bars));
    stampLogo(form, label.flag, logo, origin);
    drawCodeAndPrice(surface, label, origin);
    drawDescription(surface, label, origin);
    drawSize(surface, label, origin);
    drawDigits(form, origin);
    endLabel(form);
}

} // namespace

// NOLINTNEXTLINE(readability-function-size)
void Imprime_40_45_2(FrmPadrao& form, TextView flag, Text& descricao, TextView cor, TextView ref3,
                     TextView master, TextView barra, TextView numero, TextView preco,
                     std::int16_t quantidade, TextView promocao, TextView semana,
                     TextView bandeira) {
    dropLineEnds(descricao);
    form.NomeFonte = face::franklin_semilight;
    const BoxFrontLabel label{.flag = flag,
                              .lines = cutDescription(form, descricao),
                              .cor = cor,
                              .ref3 = ref3,
                              .master = master,
                              .barra = barra,
                              .numero = numero,
                              .preco = preco,
                              .promocao = promocao,
                              .semana = semana,
                              .bandeira = bandeira};
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawLabel(form, label);
    }
}

} // namespace etiquetas
