#include "labels/LabelPictures.h"

#include "barcodes/EAN13and8.h"
#include "model/FrmPadrao.h"

namespace etiquetas {

namespace {

void drawInPixels(FrmPadrao& form) {
    drawEan(form);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
}

} // namespace

void drawEan(FrmPadrao& form) {
    constexpr std::int16_t escala = 1;
    constexpr std::size_t digits_drawn = 12;
    DesenhaEan13(form.Picture1, escala, left(form.txtbarra.text, digits_drawn), false);
}

void drawBars(FrmPadrao& form) {
    form.platform.surface.ScaleMode(ScaleMode::pixels);
    drawInPixels(form);
}

void drawBars(FrmPadrao& form, TextView barra) {
    form.platform.surface.ScaleMode(ScaleMode::pixels);
    form.txtbarra.text = barra;
    drawInPixels(form);
}

void stampBars(FrmPadrao& form, const Box& box) {
    stamp(form.platform.surface, form.Picture1.Picture(), box);
}

void stampLogo(FrmPadrao& form, TextView flag, const LogoLayout& layout, const Point& origin) {
    const bool lumira = flag == u"L";
    const LogoItem& logo = lumira ? layout.lumira : layout.brisako;
    const Picture& picture = (lumira ? form.pctlogo2 : form.pctlogo1).picture;
    stamp(form.platform.surface, picture, at(origin, logo.box), logo.source_width);
}

} // namespace etiquetas
