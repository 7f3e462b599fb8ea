#include "PdfTools.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <stdexcept>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

namespace {

constexpr double millimetres_per_point = 25.4 / 72;

double number(const QXmlStreamReader& xml, const QString& name) {
    return xml.attributes().value(name).toDouble();
}

void addCharacter(std::vector<PdfText>& texts, const QXmlStreamReader& xml) {
    PdfText& text = texts.back();
    text.text += xml.attributes().value(u"c"_s);
    text.origins.push_back(QPointF(number(xml, u"x"_s), number(xml, u"y"_s)) *
                           millimetres_per_point);
}

} // namespace

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    constexpr int patience = 60'000; // milliseconds
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit) {
        throw std::runtime_error("cannot run " + program.toStdString());
    }
    return process.readAllStandardOutput();
}

std::vector<QSizeF> pageSizes(const QString& pdf) {
    const QString told =
        QString::fromUtf8(outputOf(u"pdfinfo"_s, {u"-f"_s, u"1"_s, u"-l"_s, u"-1"_s, pdf}));
    static const QRegularExpression line(u"^Page +\\d+ size: +([0-9.]+) x ([0-9.]+) pts"_s,
                                         QRegularExpression::MultilineOption);
    std::vector<QSizeF> sizes;
    for (const auto& match : line.globalMatch(told)) {
        sizes.emplace_back(match.captured(1).toDouble(), match.captured(2).toDouble());
    }
    return sizes;
}

std::vector<std::vector<PdfText>> pageTexts(const QString& pdf) {
    QXmlStreamReader xml(
        outputOf(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-F"_s, u"stext"_s, u"-o"_s, u"-"_s, pdf}));
    std::vector<std::vector<PdfText>> pages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"page"_s) {
            pages.emplace_back();
        } else if (xml.name() == u"line"_s) {
            pages.back().emplace_back();
        } else if (xml.name() == u"char"_s) {
            addCharacter(pages.back(), xml);
        }
    }
    return pages;
}

int storedImages(const QString& pdf) {
    const QString told = QString::fromUtf8(outputOf(u"pdfimages"_s, {u"-list"_s, pdf}));
    constexpr int object_column = 10;
    QSet<QString> objects;
    for (const QString& line : told.split(u'\n', Qt::SkipEmptyParts).mid(2)) {
        objects.insert(line.split(u' ', Qt::SkipEmptyParts).value(object_column));
    }
    return static_cast<int>(objects.size());
}

QImage renderedPage(const QString& pdf, int page, int resolution, Tones tones) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page"_s);
    const QString number = QString::number(page);
    QStringList arguments{
        u"-f"_s, number, u"-l"_s, number, u"-r"_s, QString::number(resolution), u"-singlefile"_s};
    arguments << (tones == Tones::colours ? u"-png"_s : u"-mono"_s);
    outputOf(u"pdftoppm"_s, arguments << pdf << file);
    const QImage image(file + (tones == Tones::colours ? u".png"_s : u".pbm"_s));
    if (image.isNull()) {
        throw std::runtime_error("no page " + std::to_string(page));
    }
    return image;
}

QStringList symbolsIn(const QImage& image) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page.png"_s);
    image.save(file);
    return QString::fromUtf8(outputOf(u"zbarimg"_s, {u"--quiet"_s, u"--raw"_s, file}))
        .split(u'\n', Qt::SkipEmptyParts);
}

} // namespace etiquetas::test
