// How long an operator waits for the system itself, the machine being stand-ins in memory.

#include "barcodes/EAN13and8.h"
#include "config/Profile.h"
#include "orders/Complemento.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"

#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

constexpr std::int64_t order_lines = 100'000;

// An order of box lines, so many of them to an item.
std::string largeOrder(std::int64_t lines_per_item) {
    std::string order = "LUMIRA\r\n";
    for (std::int64_t i = 0; i < order_lines; ++i) {
        order += "12;AZUL MARINHO;" + std::to_string(33 + i % lines_per_item) +
                 ";;TENIS CASUAL;231045270100;" + std::to_string(1000000 + i / lines_per_item) +
                 "001;32/26;LU;A1\r\n";
    }
    return order;
}

void leaveOrderNumber(benchmark::State& state) {
    test::LoadedWorkbench workbench;
    workbench.machine.files.bytes[u"/programa/77 FRENTE.TXT"] = largeOrder(state.range(0));
    workbench.form.txtarquivo.text = u"77";
    for (auto _ : state) {
        txtarquivo_leave(workbench.form);
    }
    state.SetItemsProcessed(state.iterations() * order_lines);
}
BENCHMARK(leaveOrderNumber)
    ->ArgName("lines_per_item")
    ->Arg(1)
    ->Arg(14)
    ->Unit(benchmark::kMillisecond);

// The last size of the last item is the farthest to look for.
void lookUpBarcode(benchmark::State& state) {
    test::LoadedWorkbench workbench;
    workbench.machine.files.bytes[u"/programa/77 FRENTE.TXT"] = largeOrder(1);
    workbench.form.txtarquivo.text = u"77";
    txtarquivo_leave(workbench.form);
    workbench.form.cmb_referencia.choose(static_cast<int>(order_lines) - 1);
    cmb_referencia_leave(workbench.form);
    for (auto _ : state) {
        ret_codcomplemento(workbench.form, u"33");
    }
}
BENCHMARK(lookUpBarcode)->Unit(benchmark::kMillisecond);

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

void drawBars(benchmark::State& state) {
    test::FakePlatform machine;
    PictureBox picture(machine.pictures);
    for (auto _ : state) {
        DesenhaEan13(picture, 1, u"231045270100", false);
    }
}
BENCHMARK(drawBars)->Unit(benchmark::kMicrosecond);

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
