#include "labels/Cabecalho.h"

#include "labels/LabelDrawing.h"
#include "model/FrmPadrao.h"

namespace etiquetas {

namespace {

constexpr TextView rotulo = u"Pedido: ";
// From the top of the page; no top margin is added.
constexpr float altura_mm = 6;

void drawHiddenHeader(FrmPadrao& form) {
    PrintSurface& surface = form.platform.surface;
    useFont(surface, {Weight::bold, 10, face::franklin_medium});
    const Text pedido = Text(rotulo) + form.txtarquivo.text;
    printAt(surface, {form.Margem_oculta1 + 3.0F, altura_mm}, pedido);
    printAt(surface, {form.Margem_oculta11 + 6.0F, altura_mm}, pedido);
}

// Word and number are two texts here, 3 mm apart: the number overprints the end of the word.
void drawBoxFrontHeader(FrmPadrao& form) {
    PrintSurface& surface = form.platform.surface;
    useFont(surface, {Weight::bold, 12, face::franklin_medium});
    for (const float margem : {form.Mx4045_1, form.Mx4045_2}) {
        printAt(surface, {margem + 3.0F, altura_mm}, rotulo);
        printAt(surface, {margem + 6.0F, altura_mm}, form.txtarquivo.text);
    }
}

} // namespace

void Imprime_CabecAlho(FrmPadrao& form, TextView tipo) {
    const Text kind = upperCase(tipo);
    if (kind == u"OCULTA") {
        drawHiddenHeader(form);
    } else if (kind == u"FC") {
        drawBoxFrontHeader(form);
    } else {
        return;
    }
    form.platform.surface.NewPage();
}

} // namespace etiquetas
