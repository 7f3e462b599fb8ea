#include "desktop/printing/PdfFile.h"

#include "desktop/machine/Draft.h"
#include "desktop/printing/PrintFailure.h"

#include <QDir>
#include <QFile>

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
    return pdf.open(QIODevice::ReadWrite) && isComplete(pdf) && forceToDisk(pdf);
}

QString jobName(const QDateTime& time, int number) {
    const QString stem = time.toString(u"yyyy-MM-dd HH-mm-ss"_s);
    return number == 1 ? stem + u".pdf"_s : u"%1 (%2).pdf"_s.arg(stem).arg(number);
}

} // namespace

QString writePdfFile(const QString& folder, const QDateTime& time,
                     const std::function<void(const QString& path)>& write) {
    const QDir place(folder);
    place.mkpath(u"."_s);
    const Draft draft(place, pdf_drafts);
    if (!draft.isMade()) {
        throw notWritten(folder);
    }
    write(draft.path());
    NewName name = isSafe(draft.path()) ? NewName::taken : NewName::refused;
    QString path;
    for (int number = 1; name == NewName::taken; ++number) {
        path = place.filePath(jobName(time, number));
        name = draft.take(path);
    }
    if (name == NewName::refused) {
        throw notWritten(folder);
    }
    return path;
}

} // namespace etiquetas
