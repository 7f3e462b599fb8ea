// Writes into a folder as the program does, for a script that disturbs it meanwhile:
//
//     etiquetas_fault_writer keys FOLDER NAME COUNT    settings: the keys NAME1 to NAME<COUNT>
//     etiquetas_fault_writer jobs FOLDER NAME COUNT    jobs within one second that hold their NAME
//     etiquetas_fault_writer start FOLDER              removes the drafts that were left
//
// Exit code 1 tells that not all was written. A line "writing" comes before the first step.

#include "base/Failure.h"
#include "config/Settings.h"
#include "desktop/LeftDrafts.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/PdfFile.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <cstdio>

namespace etiquetas {

namespace {

// Large enough for several writes.
QByteArray jobOf(const QString& name) {
    constexpr qsizetype bytes = 100'000;
    return "%PDF\n" + name.toUtf8() + QByteArray(bytes, ' ') + "\n%%EOF\n";
}

// As the writer of PDF files does, it does not look at what became of the bytes.
void writeJob(const QString& path, const QString& name) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(jobOf(name));
    }
}

void writeKey(const QString& folder, const QString& name) {
    QtFiles files(folder);
    GravaIni(files, ini_section::config, toText(name), u"1", settingsPath(files));
}

void write(const QString& what, const QString& folder, const QString& name) {
    if (what == QStringLiteral("keys")) {
        writeKey(folder, name);
        return;
    }
    skip([&] {
        writePdfFile(QDir(folder).filePath(pdf_folder.toString()),
                     QStringLiteral("2024-03-05 07-08-09"),
                     [&](const QString& path) { writeJob(path, name); });
    });
}

int run(const QStringList& arguments) {
    const QString& folder = arguments[2];
    if (arguments.size() < 5) {
        removeLeftDrafts(folder);
        return 0;
    }
    int lost = 0;
    const SkipObserver observer([&lost](const Failure&) { ++lost; });
    std::puts("writing");
    std::fflush(stdout);
    for (int number = 1; number <= arguments[4].toInt(); ++number) {
        write(arguments[1], folder, arguments[3] + QString::number(number));
    }
    return lost == 0 ? 0 : 1;
}

} // namespace

} // namespace etiquetas

int main(int count, char* arguments[]) {
    QStringList texts;
    for (int at = 0; at < count; ++at) {
        texts << QString::fromLocal8Bit(arguments[at]);
    }
    return etiquetas::run(texts);
}
