#include "base/Numbers.h"
#include "labels/Acessorio.h"
#include "workbench/ImpressaoComum.h"

namespace etiquetas {

namespace {

// All labels of the item. The barcode is the one that the loader left.
void printItem(FrmPadrao& form) {
    Imprime_Acessorio_40_20_2(form, form.marca_logo, descriptionAndColour(form), endOfCode(form),
                              form.txtcodigo.text, form.lblbarra.caption, form.TXTPARES.text,
                              form.txtpreco.text, toInteger16(form.TXTPARES.text),
                              form.txtbandeira.text, form.txtsemana.text, form.txtpromocao.text);
}

} // namespace

Course printAccessories(FrmPadrao& form, const Stock& stock) {
    if (checkLogos(form) == Course::ends) {
        return Course::ends;
    }
    checkDescription(form, form.txtdescricao); // told only: the labels are printed all the same
    beginStrips(form, stock);
    fillMissingPrice(form);
    skip([&] { printItem(form); });
    endJob(form);
    return Course::goes_on;
}

} // namespace etiquetas
