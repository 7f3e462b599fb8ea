#include "base/Numbers.h"
#include "labels/Cabecalho.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "platform/PrintSurface.h"
#include "workbench/ImpressaoRamos.h"

namespace etiquetas {

namespace {

// Kind of paper and width are set behind the margins too; the height is not.
void prepareStrip(FrmPadrao& form) {
    PrintSurface& surface = form.platform.surface;
    useMillimetres(form);
    skip([&] { surface.Width(pagina_caixa.width); });
    skip([&] { surface.Height(pagina_caixa.height); });
    readMargins(form, margens_caixa);
    skip([&] { surface.PaperSize(user_defined_paper); });
    skip([&] { surface.Width(pagina_caixa.width); });
}

void beginStripJob(FrmPadrao& form) {
    form.coluna_etiqueta = 1;
    selectChosenPrinter(form);
    prepareStrip(form);
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
                        ref3(form), form.lblmaster.caption, form.lblbarra.caption,
                        form.Label7[slot].caption, form.txtpreco.text,
                        toInteger16(form.txtnumero[slot].text), form.txtpromocao.text,
                        form.txtsemana.text, form.txtbandeira.text);
    });
    return Course::goes_on;
}

// The page is the printer's own, and so are the margins.
void begin100x40Job(FrmPadrao& form) {
    selectChosenPrinter(form);
    useMillimetres(form);
    form.Margem_oculta1 = 3.0F;
    form.Margem_oculta11 = 45.0F;
    form.Margem_oculta2 = 3.0F;
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
        Eti100_40_1(form, form.marca_logo, descricao_cor(form), ref3(form), form.txtcodigo.text,
                    form.lblbarra.caption, form.Label7[slot].caption, form.txtpreco.text,
                    toInteger16(form.txtnumero[slot].text));
    });
    return Course::goes_on;
}

} // namespace

Course printBoxFronts(FrmPadrao& form) {
    if (askAboutColour(form, form.txtcor) == Course::ends || checkLogos(form) == Course::ends) {
        return Course::ends;
    }
    checkDescription(form, form.txtdescricao); // told only: the labels are printed all the same
    beginStripJob(form);
    return printSizes(form, [&](std::size_t slot) { return printStripSize(form, slot); });
}

Course printBoxFronts100x40(FrmPadrao& form) {
    if (askAboutColour(form, form.txtcor) == Course::ends ||
        checkDescription(form, form.txtdescricao) == Course::ends ||
        checkLogos(form) == Course::ends) {
        return Course::ends;
    }
    begin100x40Job(form);
    return printSizes(form, [&](std::size_t slot) { return print100x40Size(form, slot); });
}

} // namespace etiquetas
