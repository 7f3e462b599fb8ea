// How long real pages take: hidden labels drawn on the surface and written into a PDF file.

#include "desktop/QtPrintSurface.h"
#include "desktop/QtPrinters.h"
#include "labels/LabelJob.h"
#include "labels/Oculta.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

void printHiddenLabels(benchmark::State& state) {
    const QTemporaryDir folder;
    test::FakePlatform machine;
    QtPrinters printers;
    QtPrintSurface surface(printers, folder.path());
    surface.onJobWritten([](const QString& path) { QFile::remove(path); });
    Platform platform = machine.platform();
    FrmPadrao form({printers, surface, platform.messages, platform.pictures, platform.files,
                    platform.focus, platform.pointer, platform.process});
    form.Margem_oculta1 = 3;
    form.Margem_oculta11 = 45;
    form.Margem_oculta2 = 3;
    const auto labels = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        prepara_superficie(form, pagina_oculta);
        Imprime_Oculta_40_20_2(form, u"L", u"TÊNIS CASUAL FEMININO CANO BAIXO", u"527",
                               u"3104527001", u"2310452701003", u"33", labels, u"CAFÉ");
        surface.EndDoc();
    }
    state.SetItemsProcessed(state.iterations() * labels);
}
BENCHMARK(printHiddenLabels)->ArgName("labels")->Arg(2)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace etiquetas

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
