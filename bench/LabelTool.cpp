// One job of box fronts by a process of its own, as compare.py has it beside its peer: sizes of
// twelve labels, each with a barcode of its own, in one PDF file.
//
//     etiquetas_bench_labels LABELS FOLDER

#include "base/Numbers.h"
#include "bench/Cost.h"
#include "bench/PaperWorkbench.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string>

namespace etiquetas {

namespace {

void printBoxFronts(FrmPadrao& form, int labels) {
    constexpr int labels_to_a_size = 12;
    constexpr int sizes = 8;
    for (int done = 0; done < labels; done += labels_to_a_size) {
        const int count = std::min(labels_to_a_size, labels - done);
        const std::int32_t size = done / labels_to_a_size;
        const Text barcode = u"231045" + formatted(size % 100'000, u"#00000") + u"0";
        drawBoxFronts(form, static_cast<std::int16_t>(count), barcode,
                      numberText(33 + size % sizes));
    }
    form.platform.surface.EndDoc();
}

int print(int labels, const QString& folder) {
    QString path;
    PaperWorkbench workbench(folder, [&path](const QString& written) { path = written; });
    const double before = cpuMilliseconds();
    printBoxFronts(workbench.form, labels);
    const double took = cpuMilliseconds() - before;
    std::printf("{\"cpu_ms\": %.3f, \"file_bytes\": %lld, \"peak_bytes\": %zu}\n", took,
                static_cast<long long>(QFile(path).size()), memory("VmHWM"));
    return QFile::remove(path) ? 0 : 1;
}

} // namespace

} // namespace etiquetas

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::span<char*> words(argv, static_cast<std::size_t>(argc));
    if (words.size() != 3) {
        std::fputs("usage: etiquetas_bench_labels LABELS FOLDER\n", stderr);
        return 2;
    }
    return etiquetas::print(std::stoi(words[1]), QString::fromLocal8Bit(words[2]));
}
