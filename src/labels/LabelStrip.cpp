#include "labels/LabelStrip.h"

#include "barcodes/EAN13and8.h"
#include "platform/PrintSurface.h"
#include "workbench/FrmPadrao.h"

namespace etiquetas {

void desenha_barras(FrmPadrao& form, TextView barra) {
    constexpr std::int16_t escala = 1;
    constexpr std::size_t digits_drawn = 12;
    form.platform.surface.ScaleMode(ScaleMode::pixels);
    form.txtbarra.text = barra;
    DesenhaEan13(form.Picture1, escala, left(form.txtbarra.text, digits_drawn), false);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
}

void carimba_barras(FrmPadrao& form, const Box& box) {
    form.platform.surface.PaintPicture(form.Picture1.Picture(), box.corner.x, box.corner.y,
                                       box.width, box.height);
}

void fecha_etiqueta(FrmPadrao& form) {
    constexpr std::int16_t beyond_last_column = 3;
    if (form.coluna_etiqueta >= beyond_last_column) {
        form.coluna_etiqueta = 1;
        form.platform.surface.NewPage();
    }
}

} // namespace etiquetas
