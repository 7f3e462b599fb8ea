#include "PdfTools.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <stdexcept>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

QByteArray outputOf(const QString& command, const QStringList& files) {
    QStringList arguments = command.split(u' ') + files;
    QProcess process;
    process.start(arguments.takeFirst(), arguments);
    constexpr int patience = 60'000; // milliseconds
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit) {
        throw std::runtime_error("cannot run " + command.toStdString());
    }
    return process.readAllStandardOutput();
}

std::vector<QSizeF> pageSizes(const QString& pdf) {
    static const QRegularExpression line(u"Page +\\d+ size: +([0-9.]+) x ([0-9.]+) pts"_s);
    std::vector<QSizeF> sizes;
    const auto told = QString::fromUtf8(outputOf(u"pdfinfo -f 1 -l -1"_s, {pdf}));
    for (const auto& match : line.globalMatch(told)) {
        sizes.emplace_back(match.captured(1).toDouble(), match.captured(2).toDouble());
    }
    return sizes;
}

std::vector<std::vector<PdfText>> pageTexts(const QString& pdf) {
    constexpr double millimetres_per_point = 25.4 / 72;
    QXmlStreamReader xml(outputOf(u"mutool draw -q -F stext -o -"_s, {pdf}));
    std::vector<std::vector<PdfText>> pages;
    while (!xml.atEnd()) {
        xml.readNext();
        const auto attributes = xml.attributes();
        if (xml.isStartElement() && xml.name() == u"page"_s) {
            pages.emplace_back();
        } else if (xml.isStartElement() && xml.name() == u"line"_s) {
            pages.back().emplace_back();
        } else if (xml.isStartElement() && xml.name() == u"char"_s) {
            const QPointF origin(attributes.value(u"x"_s).toDouble(),
                                 attributes.value(u"y"_s).toDouble());
            pages.back().back().text += attributes.value(u"c"_s);
            pages.back().back().origins.push_back(origin * millimetres_per_point);
        }
    }
    return pages;
}

int storedImages(const QString& pdf) {
    constexpr int object_column = 10;
    QSet<QString> objects;
    const auto told = QString::fromUtf8(outputOf(u"pdfimages -list"_s, {pdf}));
    for (const QString& line : told.split(u'\n', Qt::SkipEmptyParts).mid(2)) {
        objects.insert(line.simplified().section(u' ', object_column, object_column));
    }
    return static_cast<int>(objects.size());
}

QImage renderedPage(const QString& pdf, int page, int resolution, Tones tones) {
    const QString command = u"pdftoppm -png -singlefile -f %1 -l %1 -r %2"_s;
    const QString mono = tones == Tones::black_and_white ? u" -mono"_s : QString();
    QImage image =
        QImage::fromData(outputOf(command.arg(page).arg(resolution) + mono, {pdf}), "PNG");
    if (image.isNull()) {
        throw std::runtime_error("no page " + std::to_string(page));
    }
    return image;
}

QStringList symbolsIn(const QImage& image) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page.png"_s);
    image.save(file);
    return QString::fromUtf8(outputOf(u"zbarimg --quiet --raw"_s, {file}))
        .split(u'\n', Qt::SkipEmptyParts);
}

} // namespace etiquetas::test
