#include "desktop/printing/PdfFile.h"

#include "desktop/machine/Draft.h"
#include "desktop/printing/PdfBlanks.h"
#include "desktop/printing/PrintFailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

Failure notWritten(const QString& folder) {
    return printFailure(u"Não foi possível gravar as etiquetas na pasta \"%1\"."_s.arg(folder));
}

// The writer of PDF files does not tell of a full disk. What it writes last shows that all is
// there.
bool isComplete(QFile& pdf) {
    constexpr qint64 tail = 16; // bytes
    return pdf.seek(std::max(pdf.size() - tail, qint64{0})) &&
           pdf.readAll().trimmed().endsWith("%%EOF");
}

bool isSafe(const QString& path) {
    QFile pdf(path);
    return pdf.open(QIODevice::ReadWrite) && isComplete(pdf) && mendBlanks(pdf) && forceToDisk(pdf);
}

void fill(const Draft& draft, const QDir& folder,
          const std::function<void(const QString& path)>& write) {
    if (!draft.isMade()) {
        throw notWritten(folder.path());
    }
    write(draft.path());
    if (!isSafe(draft.path())) {
        throw notWritten(folder.path());
    }
}

QString numbered(const QString& stem, int number) {
    return number == 1 ? stem + u".pdf"_s : u"%1 (%2).pdf"_s.arg(stem).arg(number);
}

} // namespace

QString writePdfFile(const QString& folder, const QString& stem,
                     const std::function<void(const QString& path)>& write) {
    const QDir place(folder);
    place.mkpath(u"."_s);
    const Draft draft(place, pdf_drafts);
    fill(draft, place, write);
    NewName name = NewName::taken;
    QString path;
    for (int number = 1; name == NewName::taken; ++number) {
        path = place.filePath(numbered(stem, number));
        name = draft.take(path);
    }
    if (name == NewName::refused) {
        throw notWritten(folder);
    }
    return path;
}

void replacePdfFile(const QString& path, const std::function<void(const QString& path)>& write) {
    const QDir place = QFileInfo(path).absoluteDir();
    const Draft draft(place, pdf_drafts);
    fill(draft, place, write);
    if (!draft.replace(path)) {
        throw notWritten(place.path());
    }
}

} // namespace etiquetas
