// What an order of very many lines costs, the machine being stand-ins in memory.

#include "bench/Orders.h"
#include "orders/Complemento.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"
#include "workbench/Impressao.h"

#include <benchmark/benchmark.h>

namespace etiquetas {

namespace {

// A printer whose labels no one looks at.
class BlankSurface final : public PrintSurface {
  public:
    using PrintSurface::PaintPicture;
    void FontName(TextView /*face*/) override {}
    void FontSize(float /*points*/) override {}
    void FontBold(bool /*bold*/) override {}
    [[nodiscard]] float FontSize() const override { return 8; }
    void CurrentX(float /*x*/) override {}
    void CurrentY(float /*y*/) override {}
    void ScaleMode(etiquetas::ScaleMode /*mode*/) override {}
    void PaperSize(int /*kind*/) override {}
    void Width(int /*twips*/) override {}
    void Height(int /*twips*/) override {}
    void Print(TextView /*text*/) override {}
    [[nodiscard]] float TextWidth(TextView text) const override {
        return static_cast<float>(text.size());
    }
    void Line(int /*flags*/, float /*x1*/, float /*y1*/, float /*x2*/, float /*y2*/,
              Pixel /*colour*/) override {}
    void PaintPicture(const Picture& /*picture*/, float /*x*/, float /*y*/, float /*width*/,
                      float /*height*/, const SourceArea& /*source*/) override {}
    void NewPage() override {}
    void EndDoc() override {}
    [[nodiscard]] std::size_t FontCount() const override { return 0; }
    [[nodiscard]] Text Fonts(std::size_t /*index*/) const override { return {}; }
};

// The Workbench with an order of hidden labels, whose lines and lines to an item the benchmark
// names.
class OrderWorkbench {
  public:
    explicit OrderWorkbench(const benchmark::State& state) {
        FrmPadrao_load(form);
        machine_.files.bytes[u"/programa/77 FRENTE.TXT"] = orderOf(state.range(0), state.range(1));
        machine_.answer = Answer::yes;
        form.txtarquivo.text = u"77";
        form.cmbtipo.choose(3); // "Oculta"
        txtarquivo_leave(form);
    }

    void forget() { machine_.forget(); }

  private:
    Platform platform() {
        const Platform all = machine_.platform();
        return {all.printers, surface_,    all.messages, all.pictures, all.files,
                all.focus,    all.pointer, all.process,  all.folders,  all.commands};
    }

    test::FakePlatform machine_;
    BlankSurface surface_;

  public:
    FrmPadrao form{platform()};
};

void load(benchmark::State& state) {
    OrderWorkbench workbench(state);
    for (auto _ : state) {
        txtarquivo_leave(workbench.form);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(load)
    ->ArgNames({"lines", "lines_per_item"})
    ->ArgsProduct({{10'000, 100'000, 1'000'000}, {1, 14}})
    ->Unit(benchmark::kMillisecond);

// The last item is the farthest to look for.
void chooseItem(benchmark::State& state) {
    OrderWorkbench workbench(state);
    const auto last = static_cast<int>(workbench.form.cmb_referencia.entries.size()) - 1;
    for (auto _ : state) {
        workbench.form.cmb_referencia.choose(last);
        cmb_referencia_leave(workbench.form);
    }
}
BENCHMARK(chooseItem)
    ->ArgNames({"lines", "lines_per_item"})
    ->ArgsProduct({{10'000, 100'000}, {1, 14}})
    ->Unit(benchmark::kMicrosecond);

void lookUpSize(benchmark::State& state) {
    OrderWorkbench workbench(state);
    workbench.form.cmb_referencia.choose(
        static_cast<int>(workbench.form.cmb_referencia.entries.size()) - 1);
    cmb_referencia_leave(workbench.form);
    for (auto _ : state) {
        ret_codcomplemento(workbench.form, workbench.form.Label7[0].caption);
    }
}
BENCHMARK(lookUpSize)
    ->ArgNames({"lines", "lines_per_item"})
    ->ArgsProduct({{10'000, 100'000}, {1, 14}})
    ->Unit(benchmark::kMicrosecond);

// From the first item of an order to the last, each print answered by Sim.
void printAllItems(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        OrderWorkbench workbench(state);
        state.ResumeTiming();
        while (workbench.form.cmb_referencia.position >= 0) {
            cmd_printacessorio_click(workbench.form);
            workbench.forget();
        }
    }
}
BENCHMARK(printAllItems)
    ->ArgNames({"lines", "lines_per_item"})
    ->ArgsProduct({{1'000, 10'000, 100'000}, {1}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace etiquetas
