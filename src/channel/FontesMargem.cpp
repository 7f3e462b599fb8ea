#include "channel/FontesMargem.h"

#include "channel/Languages.h"
#include "model/FrmPadrao.h"

namespace etiquetas {

namespace {

Text marginOf(const FrmPadrao& form, const MarginKey& margin) {
    const Text stored = storedMargin(form.platform.files, margin).value_or(Text());
    return isBlank(stored) ? Text(margin.default_value) : stored;
}

MargensDeEtiqueta marginsOf(const FrmPadrao& form, LabelStock PrinterLanguage::*stock) {
    const LabelStock& chosen = languageNamed(form.lbllinguagem.caption).*stock;
    MargensDeEtiqueta margens;
    for (const MarginKey& column : chosen.columns) {
        margens.colunas.push_back(marginOf(form, column));
    }
    if (chosen.top) {
        margens.superior = marginOf(form, *chosen.top);
    }
    return margens;
}

} // namespace

MargensDeEtiqueta pega_margemoculta(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::hidden_3);
}

MargensDeEtiqueta pega_margemoculta7(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::hidden_7);
}

MargensDeEtiqueta pega_margemoculta8(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::hidden_8);
}

MargensDeEtiqueta pega_margemfc(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::box_front);
}

MargensDeEtiqueta pega_margemfc2(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::box_front2);
}

MargensDeEtiqueta pega_margemcorrugado(const FrmPadrao& form) {
    return marginsOf(form, &PrinterLanguage::carton);
}

} // namespace etiquetas
