#include "labels/JobSetup.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
#include "labels/PriceBlock.h"
#include "platform/PrintSurface.h"
#include "platform/Printers.h"

namespace etiquetas {

bool SelecionaImpressora(FrmPadrao& form, TextView name) {
    Printers& printers = form.platform.printers;
    const auto names = printers.names();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == name) {
            printers.makeCurrent(i);
            return true;
        }
    }
    return false;
}

void selectChosenPrinter(FrmPadrao& form) {
    skip([&] { SelecionaImpressora(form, form.CMBPRINTER.text); });
}

void useMillimetres(FrmPadrao& form) {
    skip([&] { form.platform.surface.ScaleMode(ScaleMode::millimetres); });
}

void setPage(FrmPadrao& form, const Stock& stock) {
    if (!stock.page) {
        return;
    }
    PrintSurface& surface = form.platform.surface;
    skip([&] { surface.PaperSize(user_defined_paper); });
    skip([&] { surface.Width(stock.page->width); });
    skip([&] { surface.Height(stock.page->height); });
}

void setDefaultMargins(FrmPadrao& form, const Stock& stock) {
    for (const Margin& margin : stock.margins) {
        form.*margin.variable = static_cast<float>(margin.default_value);
    }
}

void readMargins(FrmPadrao& form, const Stock& stock) {
    const Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        setDefaultMargins(form, stock);
        return;
    }
    for (const Margin& margin : stock.margins) {
        // A key without a number leaves the variable alone: its default is for a missing file only.
        skip([&] {
            form.*margin.variable =
                toSingle(LeIni(files, file, ini_section::margens, margin.key, {}));
        });
    }
}

void useLabelFont(FrmPadrao& form) {
    skip([&] { form.platform.surface.FontName(form.NomeFonte); });
}

void chooseBanner(FrmPadrao& form) {
    form.marca_logo = left(form.LBLBRISAKO.caption, 1) == u"L" ? u"L" : u"B";
}

void endJob(FrmPadrao& form) {
    skip([&] { form.platform.surface.EndDoc(); });
    skip([&] { SelecionaImpressora(form, form.lblprinterdefault.caption); });
}

void fillMissingPrice(FrmPadrao& form) {
    if (isBlank(form.txtpreco.text)) {
        form.txtpreco.text = sem_preco;
    }
}

TextView endOfCode(const FrmPadrao& form) {
    constexpr std::size_t length = 3;
    return right(form.txtcodigo.text, length);
}

Text descriptionAndColour(const FrmPadrao& form) {
    return Text(trimmed(form.txtdescricao.text)).append(u" ").append(trimmed(form.txtcor.text));
}

bool hasLogos(const FrmPadrao& form) {
    return form.LogoBrisakoOk && form.LogoLumiraOk;
}

} // namespace etiquetas
