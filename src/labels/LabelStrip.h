#pragma once

#include "labels/LabelLayout.h"

#include <cstdint>
#include <span>

namespace etiquetas {

struct FrmPadrao;

/// Where the labels of a strip of two begin: the left edge of each column, and the top of both, in
/// millimetres on the page.
struct Columns {
    float first;
    float second;
    float top;
};

/// Draws `quantidade` labels of one layout on strips of two, from column `coluna_etiqueta` on.
/// After the second column the strip's page ends, and column 1 is next; a page whose second column
/// is empty stays open.
void drawStrips(FrmPadrao& form, std::span<const Row> layout, const LabelTexts& label,
                const Columns& columns, std::int16_t quantidade);

} // namespace etiquetas
