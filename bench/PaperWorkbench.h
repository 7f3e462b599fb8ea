#pragma once

#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/QtPrintSurface.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
#include "support/FakePlatform.h"

#include <QString>

namespace etiquetas {

/// The Workbench on a real surface and real pictures; all else is a stand-in. Its jobs are written
/// into a folder, and told by their paths.
class PaperWorkbench {
  public:
    PaperWorkbench(const QString& folder, std::function<void(const QString& path)> written)
        : surface_(printers_, folder) {
        surface_.delivery().onEnded(
            [told = std::move(written)](const EndedJob& job) { told(job.file); });
        form.pctlogo2.picture = pictures_.load(u"" ETIQUETAS_SAMPLES "/lumira.jpg");
        form.Margem_oculta11 = 45;
        form.Mx4045_2 = 40;
        form.txtgrade1.text = u"33 34 35 36 37 38 39 40";
        form.lblmax.caption = u"9999";
    }

  private:
    Platform platform() {
        const Platform fake = machine_.platform();
        return {printers_,  surface_,     fake.messages, pictures_,    fake.files,
                fake.focus, fake.pointer, fake.process,  fake.folders, fake.commands};
    }

    test::FakePlatform machine_;
    QtPictures pictures_;
    QtPrinters printers_{QStringList(), QString()}; // the built-in devices alone
    QtPrintSurface surface_;

  public:
    FrmPadrao form{platform()};
};

/// Draws box fronts of one size, all with the same bars.
inline void drawBoxFronts(FrmPadrao& form, std::int16_t labels, TextView barcode, TextView size) {
    setPage(form, stock_40x45);
    Text description = u"TÊNIS CASUAL FEMININO CANO BAIXO";
    Imprime_40_45_2(form, u"L", description, u"CAFÉ", u"527", u"3104527001", barcode, size,
                    u"139,99", labels, u"A1", u"32/26", u"LU");
}

} // namespace etiquetas
