// How long real pages take: labels drawn on the surface and written into a PDF file.

#include "bench/PaperWorkbench.h"
#include "labels/Corrugado.h"
#include "labels/Oculta.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

void drawHidden(FrmPadrao& form, std::int16_t labels) {
    setPage(form, stock_40x20);
    Imprime_Oculta_40_20_2(form, u"L", u"TÊNIS CASUAL FEMININO CANO BAIXO", u"527", u"3104527001",
                           u"2310452701003", u"33", labels, u"CAFÉ");
}

void drawFronts(FrmPadrao& form, std::int16_t labels) {
    drawBoxFronts(form, labels, u"2310452701003", u"33");
}

void drawCartons(FrmPadrao& form, std::int16_t labels) {
    setPage(form, stock_carton);
    EtiPack(form, u"L", u"PEDRA MANSA", u"1400050831", u"3104527001", u"CALÇADOS UMBAÍRA",
            u"TÊNIS CASUAL FEMININO CANO BAIXO", u"CAFÉ", u"2310452701997", {}, {}, u"12", 1,
            labels, u"32/26");
}

void printLabels(benchmark::State& state, void (*draw)(FrmPadrao&, std::int16_t)) {
    const QTemporaryDir folder;
    PaperWorkbench workbench(folder.path(), [](const QString& path) { QFile::remove(path); });
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
BENCHMARK_CAPTURE(printLabels, box_front, drawFronts)
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
