// How long an operator waits for the system itself, the machine being stand-ins in memory.

#include "barcodes/EAN13and8.h"
#include "config/Profile.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"

#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

// A pack of as many cartons as there can be.
void loadCartons(benchmark::State& state) {
    test::LoadedWorkbench workbench;
    workbench.form.List1.entries = {u"1;;M;F;AZUL;BOTA;P;33;12;12;32;CD;1/32767"};
    workbench.form.cmb_referencia1.text = u"P | BOTA | AZUL";
    for (auto _ : state) {
        cmb_referencia1_leave(workbench.form);
    }
}
BENCHMARK(loadCartons)->Unit(benchmark::kMillisecond);

// One symbol after the other, none of them the one before.
void drawBars(benchmark::State& state) {
    test::FakePlatform machine;
    PictureBox picture(machine.pictures);
    Text digits = u"231045270100";
    for (auto _ : state) {
        digits[10] = digits[10] == u'9' ? u'0' : static_cast<char16_t>(digits[10] + 1);
        DesenhaEan13(picture, 1, digits, false);
    }
}
BENCHMARK(drawBars)->Unit(benchmark::kNanosecond);

void writeSetting(benchmark::State& state) {
    std::string file;
    for (int i = 0; i < 40; ++i) {
        file = withProfileValue(file, "Impressora", "Chave" + std::to_string(i), "valor");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(withProfileValue(file, "Config", "arquivo", "1400050831"));
    }
}
BENCHMARK(writeSetting)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace etiquetas
