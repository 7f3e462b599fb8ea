#include "labels/Oculta.h"

#include "base/Numbers.h"
#include "labels/LabelLayout.h"
#include "labels/LabelPictures.h"
#include "labels/LabelStrip.h"
#include "model/FrmPadrao.h"

#include <array>

namespace etiquetas {

namespace {

// The layout, in drawing order; millimetres from the label's origin.
constexpr float measuring_points = 7;
constexpr float line_limit = 23;

constexpr Font small_text{face::franklin_medium, false, 6};
constexpr TextItem item_ref3{{face::calibri, true, 20}, {28.0F, -1.0F}};
constexpr Box item_bars{{9.3F, 10.0F}, 35.0F, 8.0F};
constexpr TextItem item_master{small_text, {18.3F, 7.5F}};
constexpr TextItem item_digits_left{small_text, {14.2F, 13.8F}};
constexpr TextItem item_digits_right{small_text, {25.4F, 13.8F}};
constexpr std::array<TextItem, 3> items_size{{
    {{face::calibri, true, 20}, {4.0F, 8.5F}}, // one character
    {{face::calibri, true, 26}, {1.0F, 7.0F}}, // two
    {{face::calibri, true, 20}, {0.2F, 7.8F}}, // three; a longer size is not drawn
}};
constexpr std::array<TextItem, 3> items_lines{{
    {small_text, {0.5F, 0.2F}},
    {small_text, {0.5F, 2.4F}},
    {small_text, {0.5F, 4.7F}},
}};

using DescriptionLines = std::array<TextView, 3>;

bool isSeparator(char16_t character) {
    return separators.find(character) != TextView::npos;
}

bool isDigitBehindLetter(TextView text, std::size_t position) {
    const bool behind_number = position > 1 && isNumeric(text[position - 2]);
    return !behind_number && isNumeric(text[position - 1]);
}

// Count of the characters that stay on the first line: up to the first separator at or behind the
// limit, or up to the letter before the first digit there; the whole text when there is neither.
std::size_t breakOf(const PrintSurface& surface, TextView text) {
    // Widths only grow with the text, so that nothing beyond the first overflow is measured.
    const std::size_t overflow =
        firstPrefix(surface, text, [](float width) { return width > line_limit; });
    for (std::size_t i = overflow; i <= text.size(); ++i) {
        if (isSeparator(text[i - 1])) {
            return i;
        }
        if (isDigitBehindLetter(text, i)) {
            return i - 1;
        }
    }
    return text.size();
}

// Measured in a size above the one that the lines print in, and in the weight that stands.
DescriptionLines brokenDescription(FrmPadrao& form, TextView descricao, TextView cor) {
    PrintSurface& surface = form.platform.surface;
    surface.FontName(form.NomeFonte);
    surface.FontSize(measuring_points);
    DescriptionLines lines{descricao, {}, cor};
    if (surface.TextWidth(descricao) >= line_limit) {
        const std::size_t end = breakOf(surface, descricao);
        lines[0] = left(descricao, end);
        lines[1] = descricao.substr(end);
    }
    if (lines[1].empty()) {
        lines[1] = cor;
        lines[2] = {};
    }
    return lines;
}

Point nextOrigin(const FrmPadrao& form) {
    const float x =
        form.coluna_etiqueta == 1 ? form.Margem_oculta1 + 2.3F : form.Margem_oculta11 + 5.0F;
    return {x, form.Margem_oculta2};
}

// The texts of one run of labels.
struct HiddenLabel {
    TextView flag;
    DescriptionLines lines;
    TextView ref3;
    TextView master;
    TextView barra;
    TextView numero;
};

void drawCodes(FrmPadrao& form, const HiddenLabel& label, const Point& origin) {
    PrintSurface& surface = form.platform.surface;
    printItem(surface, item_ref3, origin, label.ref3);
    surface.FontBold(false);
    drawBars(form, label.barra);
    stampBars(form, at(origin, item_bars));
    printItem(surface, item_master, origin, label.master);
    printItem(surface, item_digits_left, origin, mid(form.txtbarra.text, 1, 6));
    printItem(surface, item_digits_right, origin, mid(form.txtbarra.text, 7, 7));
}

void drawSize(PrintSurface& surface, const HiddenLabel& label, const Point& origin) {
    const std::size_t length = label.numero.size();
    if (!isBlank(label.numero) && length <= items_size.size()) {
        printItem(surface, items_size[length - 1], origin, label.numero);
    }
}

void drawLines(PrintSurface& surface, const HiddenLabel& label, const Point& origin) {
    for (std::size_t i = 0; i < items_lines.size(); ++i) {
        printItem(surface, items_lines[i], origin, trimmed(label.lines[i]));
    }
}

void drawLabel(FrmPadrao& form, const HiddenLabel& label) {
    PrintSurface& surface = form.platform.surface;
    const Point origin = nextOrigin(form);
    surface.FontSize(7);
    surface.FontName(face::calibri);
    surface.FontBold(true);
    ++form.coluna_etiqueta;
    drawCodes(form, label, origin);
    drawSize(surface, label, origin);
    // Only the LUMIRA label has its description where the size is missing.
    if (label.flag == u"L" || !isBlank(label.numero)) {
        drawLines(surface, label, origin);
    }
    endLabel(form);
}

} // namespace

void Imprime_Oculta_40_20_2(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3,
                            TextView master, TextView barra, TextView numero,
                            std::int16_t quantidade, TextView cor) {
    form.NomeFonte = face::franklin_medium;
    const HiddenLabel label{flag,  brokenDescription(form, descricao, cor), ref3, master, barra,
                            numero};
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawLabel(form, label);
    }
}

} // namespace etiquetas
