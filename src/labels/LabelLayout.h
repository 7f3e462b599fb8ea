#pragma once

#include "base/Text.h"
#include "labels/LabelDrawing.h"
#include "labels/LabelPictures.h"
#include "labels/PriceBlock.h"

#include <cstddef>
#include <span>
#include <variant>

namespace etiquetas {

struct FrmPadrao;

// What the layouts of the labels are made of. A layout is one table of rows in drawing order;
// offsets are millimetres from the label's origin.

/// The texts of a label, named after the fields that they come from. Each renderer fills those that
/// its layout prints.
struct LabelTexts {
    /// Banner: "L" for LUMIRA, else BRISA KO.
    TextView flag = {};
    /// Lines of the description, as the renderer has broken it.
    TextView linha1 = {};
    TextView linha2 = {};
    TextView linha3 = {};
    TextView descricao = {};
    TextView cor = {};
    /// End of the item code.
    TextView ref3 = {};
    TextView codigo = {};
    TextView master = {};
    TextView barra = {};
    /// Size of the pair.
    TextView numero = {};
    TextView preco = {};
    TextView promocao = {};
    TextView semana = {};
    TextView bandeira = {};
    // Of the carton alone.
    TextView destino = {};
    TextView pedido = {};
    TextView fornecedor = {};
    TextView totgrade = {};
    TextView volume = {};
};

// What a row draws, or changes for the rows after it.

/// A ruled line: a black box between two corners.
struct Rule {
    Point first;
    Point second;
};

/// A text that all labels of the layout have.
struct Heading {
    Point offset;
    Font font;
    TextView text;
};

/// A text of the label, after the words that stand before it.
struct Entry {
    Point offset;
    Font font;
    TextView LabelTexts::*text;
    TextView words_before = {};
};

/// A text of the label without the blanks at its ends.
struct TrimmedEntry {
    Point offset;
    Font font;
    TextView LabelTexts::*text;
};

/// Characters of the barcode that `txtbarra` has, from the one with the number `first` on; the
/// first of all is 1.
struct Digits {
    Point offset;
    Font font;
    std::size_t first;
    std::size_t count;
};

/// The bars that were last drawn in `Picture1`, as a stamp.
struct Bars {
    Box box;
};

/// The face of the rows whose fonts have none.
struct Face {
    TextView name;
};

/// The size in points that stands until a row sets its own.
struct Size {
    float points;
};

/// What is drawn by a rule of its own, `origin` being that of the texts.
using Special = void (*)(FrmPadrao& form, const LabelTexts& label, const Point& origin);

/// Whether a label has a row.
using Condition = bool (*)(const LabelTexts& label);

/// A row of a layout, drawn in the place that it has among the others. A `Weight` by itself is left
/// for the texts that are measured later.
struct Row {
    std::variant<Rule, Heading, Entry, TrimmedEntry, Digits, Bars, Logo, PriceBlock, Face, Size,
                 Weight, Special>
        item;
    /// Without a condition all labels have the row.
    Condition only_if = nullptr;
};

// Conditions that layouts share.

/// False where the price, trimmed, is "0,00".
[[nodiscard]] inline bool hasPrice(const LabelTexts& label) {
    return trimmed(label.preco) != sem_preco;
}
[[nodiscard]] inline bool hasNoPrice(const LabelTexts& label) {
    return !hasPrice(label);
}

/// True where the second line of the description is more than blanks.
[[nodiscard]] inline bool hasTwoLines(const LabelTexts& label) {
    return !isBlank(label.linha2);
}
[[nodiscard]] inline bool hasOneLine(const LabelTexts& label) {
    return !hasTwoLines(label);
}

/// True where the size is more than blanks.
[[nodiscard]] inline bool hasSize(const LabelTexts& label) {
    return !isBlank(label.numero);
}
/// True where the size has `length` characters, blanks included, and is more than blanks.
template <std::size_t length>
[[nodiscard]] bool hasSizeOf(const LabelTexts& label) {
    return hasSize(label) && label.numero.size() == length;
}

/// Where a label stands on the page: its texts and bars from one origin, its rules and logo from
/// another.
struct Origins {
    Point texts;
    Point rules;
};

/// Draws the rows that the label has.
void drawLayout(FrmPadrao& form, std::span<const Row> layout, const LabelTexts& label,
                const Origins& origins);

} // namespace etiquetas
