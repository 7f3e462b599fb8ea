#include "desktop/printing/PdfFile.h"

#include "desktop/machine/WholeFile.h"
#include "desktop/printing/PrintFailure.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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

QString freeName(const QDir& folder, const QString& stem) {
    QString name = stem + u".pdf"_s;
    for (int number = 2; folder.exists(name); ++number) {
        name = u"%1 (%2).pdf"_s.arg(stem).arg(number);
    }
    return folder.filePath(name);
}

// What is written into a draft in the folder, whole.
QByteArray drafted(const QDir& folder, const std::function<void(const QString& path)>& write) {
    QTemporaryFile draft(folder.filePath(u".impressao-XXXXXX.pdf"_s));
    if (!folder.mkpath(u"."_s) || !draft.open()) {
        throw notWritten(folder.path());
    }
    const QString path = draft.fileName();
    draft.close();
    write(path);
    QByteArray pdf = bytesOf(path);
    if (!isComplete(pdf)) {
        throw notWritten(folder.path());
    }
    return pdf;
}

} // namespace

QString writePdfFile(const QString& folder, const QString& stem,
                     const std::function<void(const QString& path)>& write) {
    const QDir place(folder);
    const QByteArray pdf = drafted(place, write);
    QString path = freeName(place, stem);
    if (!writeWhole(path, pdf)) {
        throw notWritten(folder);
    }
    return path;
}

void replacePdfFile(const QString& path, const std::function<void(const QString& path)>& write) {
    const QDir place = QFileInfo(path).absoluteDir();
    if (!writeWhole(path, drafted(place, write))) {
        throw notWritten(place.path());
    }
}

} // namespace etiquetas
