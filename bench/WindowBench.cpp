// How long the real window keeps an operator waiting: an order of very many lines behind it, or a
// folder of very many files.

#include "bench/Orders.h"
#include "demo/Operator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <memory>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

void write(const QString& path, const std::string& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), std::ssize(bytes)) < 0) {
        qFatal("%s can't be written", qPrintable(path));
    }
}

// An installation whose orders stand in a folder of their own, and an operator at its window.
class Office {
  public:
    explicit Office(const std::string& order) {
        for (const QString& logo : {u"lumira.jpg"_s, u"brisako.jpg"_s}) {
            QFile::copy(QStringLiteral(ETIQUETAS_SAMPLES "/") + logo, folder_.filePath(logo));
        }
        QDir(folder_.path()).mkdir(u"pedidos"_s);
        write(folder_.filePath(u"Varesko.ini"_s),
              "[Impressora]\r\nPath=" + orders().toStdString() + "\r\n");
        write(orders() + u"/1400050831 FRENTE.TXT"_s, order);
    }

    void open() {
        desktop_ = std::make_unique<Desktop>(folder_.path());
        desktop_->start();
        worker.sitAt(*desktop_);
        worker.type(u"txtarquivo"_s, u"1400050831"_s);
    }

    [[nodiscard]] QString orders() const { return folder_.filePath(u"pedidos"_s); }
    [[nodiscard]] const FrmPadrao& form() const { return desktop_->form(); }

  private:
    QTemporaryDir folder_;
    std::unique_ptr<Desktop> desktop_;

  public:
    Operator worker;
};

// A digit in the first quantity.
void typeDigit(benchmark::State& state) {
    Office office(orderOf(state.range(0), state.range(1)));
    office.open();
    office.worker.press(Qt::Key_Return);
    if (office.form().cmb_referencia.entries.empty()) {
        state.SkipWithError("the order is not loaded");
    }
    office.worker.click(u"txtnumero_0"_s);
    for (auto _ : state) {
        state.PauseTiming();
        office.worker.press(Qt::Key_Backspace);
        state.ResumeTiming();
        office.worker.press(Qt::Key_5);
    }
}
BENCHMARK(typeDigit)
    ->ArgNames({"lines", "lines_per_item"})
    ->Args({1'000, 14})
    ->Args({100'000, 14})
    ->Args({1'000'000, 1})
    ->Iterations(100) // loading the order takes far longer
    ->Unit(benchmark::kMicrosecond);

// Enter in the order number, the order being one file of many.
void enterOrderNumber(benchmark::State& state) {
    constexpr int lines = 20;
    Office office(orderOf(lines, lines));
    for (std::int64_t i = 1; i < state.range(0); ++i) {
        write(office.orders() + u"/%1 FRENTE.TXT"_s.arg(1'000'000 + i), {});
    }
    office.open();
    for (auto _ : state) {
        office.worker.press(Qt::Key_Return);
        state.PauseTiming();
        office.worker.click(u"txtarquivo"_s);
        state.ResumeTiming();
    }
    if (office.form().cmb_referencia.entries.empty()) {
        state.SkipWithError("the order is not loaded");
    }
}
BENCHMARK(enterOrderNumber)
    ->ArgName("files")
    ->Arg(1'000)
    ->Arg(50'000)
    ->Iterations(4)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace etiquetas
