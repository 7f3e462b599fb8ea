#include "base/Numbers.h"
#include "labels/Cabecalho.h"
#include "labels/Oculta.h"
#include "model/LabelCounts.h"
#include "workbench/ImpressaoComum.h"

namespace etiquetas {

namespace {

Course checkQuantity(FrmPadrao& form) {
    if (!isBlank(form.TXTOCULTAS.text)) {
        return Course::goes_on;
    }
    tellOperator(form.platform.messages, u"Quantidade de Etiquetas Ocultas - Inválida",
                 Symbol::exclamation);
    return Course::ends;
}

void drawSize(FrmPadrao& form, std::size_t slot) {
    const std::int16_t pairs = toInteger16(form.txtnumero[slot].text);
    Imprime_Oculta_40_20_2(form, form.marca_logo, trimmed(form.txtdescricao.text), endOfCode(form),
                           form.lblmaster.caption, form.lblbarra.caption, form.Label7[slot].caption,
                           toInteger16(pairs * hidden_labels_per_pair), form.txtcor.text);
}

Course printSize(FrmPadrao& form, std::size_t slot) {
    if (checkSizeCodes(form) == Course::ends) {
        return Course::ends;
    }
    skip([&] { drawSize(form, slot); });
    return Course::goes_on;
}

} // namespace

Course printHiddenLabels(FrmPadrao& form, const Stock& stock) {
    if (askAboutColour(form, form.txtcor) == Course::ends || checkQuantity(form) == Course::ends) {
        return Course::ends;
    }
    beginStrips(form, stock);
    if (form.Frame2.visible) {
        skip([&] { Imprime_CabecAlho(form, u"OCULTA"); });
    }
    return printSizes(form, [&](std::size_t slot) { return printSize(form, slot); });
}

} // namespace etiquetas
