#include "base/Numbers.h"
#include "labels/Cabecalho.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "platform/PrintSurface.h"
#include "workbench/ImpressaoComum.h"

namespace etiquetas {

namespace {

// Setting the kind of paper may reset the page: of the page, only the width is set again after it.
void prepareStrip(FrmPadrao& form, const Stock& stock) {
    PrintSurface& surface = form.platform.surface;
    const PageSize page = stock.page.value();
    useMillimetres(form);
    skip([&] { surface.Width(page.width); });
    skip([&] { surface.Height(page.height); });
    readMargins(form, stock);
    skip([&] { surface.PaperSize(user_defined_paper); });
    skip([&] { surface.Width(page.width); });
}

void beginStripJob(FrmPadrao& form, const Stock& stock) {
    form.coluna_etiqueta = 1;
    selectChosenPrinter(form);
    prepareStrip(form, stock);
    useLabelFont(form);
    chooseBanner(form);
    if (form.Frame2.visible) {
        skip([&] { Imprime_CabecAlho(form, u"FC"); });
    }
    form.coluna_etiqueta = 1;
}

Course printStripSize(FrmPadrao& form, std::size_t slot) {
    if (form.lblbarra.caption.empty()) {
        return Course::goes_on;
    }
    fillMissingPrice(form);
    if (checkSizeCodes(form) == Course::ends) {
        return Course::ends;
    }
    skip([&] {
        Imprime_40_45_2(form, form.marca_logo, form.txtdescricao.text, trimmed(form.txtcor.text),
                        endOfCode(form), form.lblmaster.caption, form.lblbarra.caption,
                        form.Label7[slot].caption, form.txtpreco.text,
                        toInteger16(form.txtnumero[slot].text), form.txtpromocao.text,
                        form.txtsemana.text, form.txtbandeira.text);
    });
    return Course::goes_on;
}

// The page is the printer's own. The label has no margins of its own, and those of the 40 by 20 mm
// labels are at their defaults.
void begin100x40Job(FrmPadrao& form) {
    selectChosenPrinter(form);
    useMillimetres(form);
    setDefaultMargins(form, stock_40x20);
    form.PackLinhaX = 0.0F;
    form.PackLinhaY = 0.0F;
    useLabelFont(form);
    chooseBanner(form);
}

Course print100x40Size(FrmPadrao& form, std::size_t slot) {
    if (form.lblbarra.caption.empty()) {
        return Course::goes_on;
    }
    fillMissingPrice(form);
    skip([&] {
        Eti100_40_1(form, form.marca_logo, descriptionAndColour(form), endOfCode(form),
                    form.txtcodigo.text, form.lblbarra.caption, form.Label7[slot].caption,
                    form.txtpreco.text, toInteger16(form.txtnumero[slot].text));
    });
    return Course::goes_on;
}

} // namespace

Course printBoxFronts(FrmPadrao& form, const Stock& stock) {
    if (askAboutColour(form, form.txtcor) == Course::ends || checkLogos(form) == Course::ends) {
        return Course::ends;
    }
    checkDescription(form, form.txtdescricao); // told only: the labels are printed all the same
    beginStripJob(form, stock);
    return printSizes(form, [&](std::size_t slot) { return printStripSize(form, slot); });
}

Course printBoxFronts100x40(FrmPadrao& form, const Stock& /*stock*/) {
    if (askAboutColour(form, form.txtcor) == Course::ends ||
        checkDescription(form, form.txtdescricao) == Course::ends ||
        checkLogos(form) == Course::ends) {
        return Course::ends;
    }
    begin100x40Job(form);
    return printSizes(form, [&](std::size_t slot) { return print100x40Size(form, slot); });
}

} // namespace etiquetas
