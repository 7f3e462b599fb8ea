#include "labels/Acessorio.h"

#include "labels/LabelLayout.h"
#include "labels/LabelPictures.h"
#include "labels/LabelStrip.h"
#include "labels/PriceBlock.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

// This label stands left of the others on the same stock, each column by its own calibration.
constexpr float left_shift_1 = 4.8F;
constexpr float left_shift_11 = 1.5F;

// The layout, in drawing order; millimetres from the label's origin.
constexpr float base_points = 7;
constexpr float line_limit = 52;

constexpr Font small_text{face::franklin_medium, true, 5};
constexpr LogoLayout logo{.lumira = {{{9.0F, 0.5F}, 28.0F, 6.0F}, 300.0F},
                          .brisako = {{{7.7F, -0.4F}, 22.0F, 5.0F}, 300.0F}};
constexpr PriceLayout price{
    .cents_measure = {face::calibri, true, 5},
    .whole = {{face::calibri, true, 24}, 44.4F, -0.3F, -1.1F},
    .cents = {{face::calibri, true, 12}, 43.0F, 0.0F, 0.3F},
    .currency = {{face::malgun_semilight, true, 7}, 44.4F, -0.35F, 3.9F},
    .terms = {{face::franklin_medium, false, 6}, 44.4F, -1.0F, 4.55F},
};

// What changes its place between a description of two lines and one of one line.
struct BodyLayout {
    Point line1;
    Point line2;
    Box bars;
    Point code;
    Point banner;
    Point week;
    Point digits_left;
    Point digits_right;
};
constexpr BodyLayout two_lines{
    .line1 = {7.0F, 7.2F},
    .line2 = {7.0F, 9.0F},
    .bars = {{4.6F, 12.9F}, 35.0F, 8.0F},
    .code = {7.0F, 10.8F},
    .banner = {18.7F, 10.8F},
    .week = {23.2F, 10.8F},
    .digits_left = {9.5F, 16.1F},
    .digits_right = {21.2F, 16.1F},
};
constexpr BodyLayout one_line{
    .line1 = {7.0F, 7.2F},
    .line2 = {}, // not drawn
    .bars = {{4.6F, 12.0F}, 35.0F, 8.0F},
    .code = {7.0F, 9.3F},
    .banner = {18.7F, 9.4F},
    .week = {23.2F, 9.3F},
    .digits_left = {9.5F, 15.6F},
    .digits_right = {21.2F, 15.8F},
};

// What changes its place and size between a label with a price and one without.
struct EndLayout {
    TextItem promotion;
    TextItem ref3;
};
constexpr EndLayout end_with_price{{{face::franklin_medium, true, 14}, {37.5F, 9.1F}},
                                   {{face::franklin_medium, true, 8}, {35.4F, 14.5F}}};
constexpr EndLayout end_without_price{{{face::franklin_medium, true, 14}, {37.5F, 8.1F}},
                                      {{face::franklin_medium, true, 12}, {34.0F, 13.0F}}};
constexpr std::size_t ref3_length = 3;

// The texts of one run of labels.
struct AccessoryLabel {
    TextView flag;
    std::array<TextView, 2> lines;
    TextView codigo;
    TextView barra;
    TextView preco;
    TextView bandeira;
    TextView semana;
    TextView promocao;
};

// Breaks behind the last separator of what is too wide. Without one there is no line at all.
std::array<TextView, 2> brokenAt(std::size_t overflow, TextView text) {
    const std::size_t separator = left(text, overflow).find_last_of(separators);
    if (separator == TextView::npos) {
        return {};
    }
    const TextView first = trimmed(left(text, separator + 1));
    return {first, text.substr(first.size())};
}

// Measured in a size above the one that the lines print in, and in the weight that stands.
std::array<TextView, 2> brokenDescription(FrmPadrao& form, TextView descricao_cor) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(base_points);
    if (surface.TextWidth(descricao_cor) < line_limit) {
        return {descricao_cor, {}};
    }
    const std::size_t overflow =
        firstPrefix(surface, descricao_cor, [](float width) { return width > line_limit; });
    // A text that is just as wide as the limit has nothing beyond it, and stays whole.
    return overflow > descricao_cor.size() ? std::array<TextView, 2>{descricao_cor, {}}
                                           : brokenAt(overflow, descricao_cor);
}

Point nextOrigin(const FrmPadrao& form) {
    return {form.coluna_etiqueta == 1 ? form.Margem_oculta1 : form.Margem_oculta11,
            form.Margem_oculta2};
}

void drawBody(FrmPadrao& form, const AccessoryLabel& label, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    const bool has_two_lines = !isBlank(label.lines[1]);
    const BodyLayout& body = has_two_lines ? two_lines : one_line;
    const auto print = [&](const Point& offset, TextView text) {
        printItem(surface, {small_text, offset}, origin, text);
    };
    print(body.line1, trimmed(label.lines[0]));
    if (has_two_lines) {
        print(body.line2, trimmed(label.lines[1]));
    }
    surface.FontBold(true);
    drawBars(form);
    stampBars(form, at(origin, body.bars));
    print(body.code, label.codigo);
    print(body.banner, trimmed(label.bandeira));
    print(body.week, trimmed(label.semana));
    print(body.digits_left, mid(label.barra, 1, 6));
    print(body.digits_right, mid(label.barra, 7, 7));
}

void drawEnd(PrintSurface& surface, const AccessoryLabel& label, const Point& origin) {
    const EndLayout& end = hasPrice(label.preco) ? end_with_price : end_without_price;
    printItem(surface, end.promotion, origin, label.promocao);
    printItem(surface, end.ref3, origin, right(label.codigo, ref3_length));
}

void drawLabel(FrmPadrao& form, const AccessoryLabel& label) {
    PrintSurface& surface = form.platform.surface;
    const Point origin = nextOrigin(form);
    surface.FontSize(base_points);
    ++form.coluna_etiqueta;
    stampLogo(form, label.flag, logo, origin);
    if (hasPrice(label.preco)) {
        printPrice(surface, price, origin, label.preco);
    }
    drawBody(form, label, origin);
    drawEnd(surface, label, origin);
    endLabel(form);
}

} // namespace

// NOLINTNEXTLINE(readability-function-size)
void Imprime_Acessorio_40_20_2(FrmPadrao& form, TextView flag, TextView descricao_cor,
                               TextView /*ref3*/, TextView codigo, TextView barra,
                               TextView /*pares*/, TextView preco, std::int16_t quantidade,
                               TextView bandeira, TextView semana, TextView promocao) {
    form.NomeFonte = face::franklin_medium;
    form.txtbarra.text = barra;
    form.Margem_oculta1 -= left_shift_1;
    form.Margem_oculta11 -= left_shift_11;
    const AccessoryLabel label{.flag = flag,
                               .lines = brokenDescription(form, descricao_cor),
                               .codigo = codigo,
                               .barra = barra,
                               .preco = preco,
                               .bandeira = bandeira,
                               .semana = semana,
                               .promocao = promocao};
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawLabel(form, label);
    }
}

} // namespace etiquetas
