#include "labels/LabelPictures.h"

#include "barcodes/EAN13and8.h"
#include "labels/LabelLayout.h"
#include "model/FrmPadrao.h"

namespace etiquetas {

void drawEan(FrmPadrao& form, const LabelTexts& /*label*/, const Point& /*origin*/) {
    constexpr std::int16_t escala = 1;
    constexpr std::size_t without_check_digit = 12;
    DesenhaEan13(form.Picture1, escala, left(form.txtbarra.text, without_check_digit), false);
}

void drawBars(FrmPadrao& form, const LabelTexts& label, const Point& origin) {
    form.platform.surface.ScaleMode(ScaleMode::pixels);
    form.txtbarra.text = label.barra;
    drawEan(form, label, origin);
    form.platform.surface.ScaleMode(ScaleMode::millimetres);
}

void stampLogo(FrmPadrao& form, TextView flag, const Logo& logo, const Point& origin) {
    const bool lumira = flag == u"L";
    const LogoStamp& place = lumira ? logo.lumira : logo.brisako;
    const Picture& picture = (lumira ? form.pctlogo2 : form.pctlogo1).picture;
    stamp(form.platform.surface, picture, at(origin, place.box), place.source_width);
}

} // namespace etiquetas
