#include "labels/LabelStrip.h"

#include "model/FrmPadrao.h"

namespace etiquetas {

namespace {

void drawOne(FrmPadrao& form, std::span<const Row> layout, const LabelTexts& label,
             const Columns& columns) {
    const Point origin{form.coluna_etiqueta == 1 ? columns.first : columns.second, columns.top};
    ++form.coluna_etiqueta; // a label that fails has had its column
    drawLayout(form, layout, label, {.texts = origin, .rules = origin});
}

void endStripWhenFull(FrmPadrao& form) {
    constexpr std::int16_t columns_across = 2;
    if (form.coluna_etiqueta > columns_across) {
        form.coluna_etiqueta = 1;
        form.platform.surface.NewPage();
    }
}

} // namespace

void drawStrips(FrmPadrao& form, std::span<const Row> layout, const LabelTexts& label,
                const Columns& columns, std::int16_t quantidade) {
    for (std::int32_t n = 1; n <= quantidade; ++n) {
        drawOne(form, layout, label, columns);
        endStripWhenFull(form);
    }
}

} // namespace etiquetas
