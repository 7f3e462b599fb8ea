#include "labels/LabelJob.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
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

void prepara_superficie(FrmPadrao& form, const PageSize& page) {
    PrintSurface& surface = form.platform.surface;
    skip([&] { surface.ScaleMode(ScaleMode::millimetres); });
    skip([&] { surface.PaperSize(user_defined_paper); });
    skip([&] { surface.Width(page.width); });
    skip([&] { surface.Height(page.height); });
}

void le_margens(FrmPadrao& form, std::span<const Margin> margins) {
    const Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    const bool file_exists = files.fileExists(file);
    for (const Margin& margin : margins) {
        if (!file_exists) {
            form.*margin.variable = margin.default_value;
            continue;
        }
        // A key without a number leaves the variable alone: its default is for a missing file only.
        skip([&] {
            form.*margin.variable = toSingle(LeIni(files, file, secao::margens, margin.key, {}));
        });
    }
}

void escolhe_marca(FrmPadrao& form) {
    form.marca_logo = left(form.LBLBRISAKO.caption, 1) == u"L" ? u"L" : u"B";
}

} // namespace etiquetas
