// How long real pages take: labels drawn on the surface and written into a PDF file.

#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/QtPrintSurface.h"
#include "labels/Corrugado.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
#include "labels/Oculta.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

// The Workbench on a real surface and real pictures; all else is a stand-in.
class PaperWorkbench {
  public:
    PaperWorkbench() {
        surface_.delivery().onEnded([](const EndedJob& job) { QFile::remove(job.file); });
        form.pctlogo2.picture = pictures_.load(u"" ETIQUETAS_SAMPLES "/lumira.jpg");
        form.Margem_oculta11 = 45;
        form.Mx4045_2 = 40;
        form.txtgrade1.text = u"33 34 35 36 37 38 39 40";
        form.lblmax.caption = u"9999";
    }

  private:
    static Platform platformOf(test::FakePlatform& machine, QtPrinters& printers,
                               QtPrintSurface& surface) {
        const Platform fake = machine.platform();
        return {printers,   surface,      fake.messages, fake.pictures, fake.files,
                fake.focus, fake.pointer, fake.process,  fake.folders,  fake.commands};
    }

    QTemporaryDir folder_;
    test::FakePlatform machine_;
    QtPictures pictures_;
    QtPrinters printers_;
    QtPrintSurface surface_{printers_, folder_.path()};

  public:
    FrmPadrao form{platformOf(machine_, printers_, surface_)};
};

void drawHidden(FrmPadrao& form, std::int16_t labels) {
    setPage(form, stock_40x20);
    Imprime_Oculta_40_20_2(form, u"L", u"TÊNIS CASUAL FEMININO CANO BAIXO", u"527", u"3104527001",
                           u"2310452701003", u"33", labels, u"CAFÉ");
}

void drawBoxFronts(FrmPadrao& form, std::int16_t labels) {
    setPage(form, stock_40x45);
    Text description = u"TÊNIS CASUAL FEMININO CANO BAIXO";
    Imprime_40_45_2(form, u"L", description, u"CAFÉ", u"527", u"3104527001", u"2310452701003",
                    u"33", u"139,99", labels, u"A1", u"32/26", u"LU");
}

void drawCartons(FrmPadrao& form, std::int16_t labels) {
    setPage(form, stock_carton);
    EtiPack(form, u"L", u"PEDRA MANSA", u"1400050831", u"3104527001", u"CALÇADOS UMBAÍRA",
            u"TÊNIS CASUAL FEMININO CANO BAIXO", u"CAFÉ", u"2310452701997", {}, {}, u"12", 1,
            labels, u"32/26");
}

void printLabels(benchmark::State& state, void (*draw)(FrmPadrao&, std::int16_t)) {
    PaperWorkbench workbench;
    const auto labels = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        draw(workbench.form, labels);
        workbench.form.platform.surface.EndDoc();
    }
    state.SetItemsProcessed(state.iterations() * labels);
}
BENCHMARK_CAPTURE(printLabels, hidden, drawHidden)
    ->ArgName("labels")
    ->Arg(2)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(printLabels, box_front, drawBoxFronts)
    ->ArgName("labels")
    ->Arg(2)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(printLabels, carton, drawCartons)
    ->ArgName("labels")
    ->Arg(1)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace etiquetas

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
