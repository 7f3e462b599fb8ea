// The raster of the peer library, with what it asks for each symbol.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <zint.h>

namespace {

struct SymbolEnd {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};

struct Look {
    float scale;
    float height; // modules; 0 leaves it to the library
    int with_digits;
};

void drawSymbols(benchmark::State& state, const Look& look) {
    std::string digits = "231045270100";
    for (auto _ : state) {
        digits[10] = digits[10] == '9' ? '0' : static_cast<char>(digits[10] + 1);
        const std::unique_ptr<zint_symbol, SymbolEnd> symbol(ZBarcode_Create());
        symbol->symbology = BARCODE_EANX;
        symbol->scale = look.scale;
        symbol->height = look.height;
        symbol->show_hrt = look.with_digits;
        const auto* const text = reinterpret_cast<const unsigned char*>(digits.data());
        if (ZBarcode_Encode_and_Buffer(symbol.get(), text, static_cast<int>(digits.size()), 0) >=
            ZINT_ERROR) {
            state.SkipWithError(&symbol->errtxt[0]);
        }
        benchmark::DoNotOptimize(symbol->bitmap);
    }
}

// As it is: two pixels to the module, digits under the bars.
void zintOwn(benchmark::State& state) {
    drawSymbols(state, {.scale = 1, .height = 0, .with_digits = 1});
}
BENCHMARK(zintOwn)->Unit(benchmark::kNanosecond);

// Nearest to ours: one pixel to the module and 27 rows.
void zintAsOurs(benchmark::State& state) {
    constexpr float modules = 22; // and the guards, five more
    drawSymbols(state, {.scale = 0.5F, .height = modules, .with_digits = 0});
}
BENCHMARK(zintAsOurs)->Unit(benchmark::kNanosecond);

} // namespace
