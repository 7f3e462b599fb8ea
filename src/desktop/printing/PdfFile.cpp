#include "desktop/printing/PdfFile.h"

#include "desktop/machine/WholeFile.h"
#include "desktop/printing/PrintFailure.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

Failure notWritten(const QString& folder) {
    return printFailure(u"Não foi possível gravar as etiquetas na pasta \"%1\"."_s.arg(folder));
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The writer of PDF files does not tell of a full disk. What it writes last shows that all is
// there.
bool isComplete(const QByteArray& pdf) {
    constexpr qsizetype tail = 16; // bytes
    return pdf.last(std::min(tail, pdf.size())).trimmed().endsWith("%%EOF");
}

QString freeName(const QDir& folder, const QDateTime& time) {
    const QString stem = time.toString(u"yyyy-MM-dd HH-mm-ss"_s);
    QString name = stem + u".pdf"_s;
    for (int number = 2; folder.exists(name); ++number) {
        name = u"%1 (%2).pdf"_s.arg(stem).arg(number);
    }
    return folder.filePath(name);
}

} // namespace

QString writePdfFile(const QString& folder, const QDateTime& time,
                     const std::function<void(const QString& path)>& write) {
    const QDir place(folder);
    QTemporaryFile draft(place.filePath(u".impressao-XXXXXX.pdf"_s));
    if (!place.mkpath(u"."_s) || !draft.open()) {
        throw notWritten(folder);
    }
    const QString draft_path = draft.fileName();
    draft.close();
    write(draft_path);
    const QByteArray pdf = bytesOf(draft_path);
    QString path = freeName(place, time);
    if (!isComplete(pdf) || !writeWhole(path, pdf)) {
        throw notWritten(folder);
    }
    return path;
}

} // namespace etiquetas
