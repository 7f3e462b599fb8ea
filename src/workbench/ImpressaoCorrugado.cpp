#include "base/Numbers.h"
#include "labels/Corrugado.h"
#include "workbench/ImpressaoComum.h"

namespace etiquetas {

namespace {

// A margin that the settings lack is the default here, whatever it was before.
void beginCartons(FrmPadrao& form, const Stock& stock) {
    selectChosenPrinter(form);
    setDefaultMargins(form, stock);
    readMargins(form, stock);
    useMillimetres(form);
    setPage(form, stock);
    useLabelFont(form);
    chooseBanner(form);
}

void printVolumes(FrmPadrao& form) {
    const std::int16_t first = toInteger16(form.cmb_vol1.text);
    const std::int16_t last = toInteger16(form.cmb_vol2.text);
    const Text& code = form.txtean.visible ? form.txtean.text : form.txtprepack.text;
    EtiPack(form, form.marca_logo, form.txtdestino1.text, form.txtarquivo.text,
            form.txtcodigo1.text, form.txtfornecedor1.text, form.txtdescricao1.text,
            form.txtcor1.text, code, form.txtgrade1.text, form.txtgrade2.text,
            form.txttotgrade.text, first, first > last ? first : last, form.txtsemana1.text);
}

} // namespace

Course printCartons(FrmPadrao& form, const Stock& stock) {
    if (askAboutColour(form, form.txtcor1) == Course::ends ||
        checkDescription(form, form.txtdescricao1) == Course::ends ||
        checkCode(form, form.txtcodigo1) == Course::ends) {
        return Course::ends;
    }
    beginCartons(form, stock);
    skip([&] { printVolumes(form); });
    endJob(form);
    return Course::goes_on;
}

} // namespace etiquetas
