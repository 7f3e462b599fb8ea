#include "PdfTools.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

constexpr double millimetres_per_point = 25.4 / 72;

QByteArray outputOf(const QString& command) {
    QProcess process;
    process.startCommand(command);
    EXPECT_TRUE(process.waitForFinished()) << "cannot run " << command.toStdString();
    return process.readAllStandardOutput();
}

std::vector<QSizeF> pageSizes(const QString& pdf) {
    static const QRegularExpression size(u"Page +\\d+ size: +([0-9.]+) x ([0-9.]+) pts"_s);
    std::vector<QSizeF> sizes;
    const auto told = QString::fromUtf8(outputOf(u"pdfinfo -f 1 -l -1 \"%1\""_s.arg(pdf)));
    for (const auto& match : size.globalMatch(told)) {
        sizes.emplace_back(match.captured(1).toDouble(), match.captured(2).toDouble());
    }
    return sizes;
}

std::vector<std::vector<PdfText>> pageTexts(const QString& pdf) {
    QXmlStreamReader xml(outputOf(u"mutool draw -q -F stext -o - \"%1\""_s.arg(pdf)));
    std::vector<std::vector<PdfText>> pages;
    while (!xml.atEnd()) {
        const bool starts = xml.readNext() == QXmlStreamReader::StartElement;
        const auto value = [&xml](const QString& name) { return xml.attributes().value(name); };
        if (starts && xml.name() == u"page"_s) {
            pages.emplace_back();
        } else if (starts && xml.name() == u"line"_s) {
            pages.back().emplace_back();
        } else if (starts && xml.name() == u"char"_s) {
            const QPointF origin(value(u"x"_s).toDouble(), value(u"y"_s).toDouble());
            pages.back().back().text += value(u"c"_s);
            pages.back().back().origins.push_back(origin * millimetres_per_point);
        }
    }
    return pages;
}

double distanceTo(const std::vector<PdfText>& page, const QString& text, QPointF place) {
    double nearest = 1000;
    for (const PdfText& line : page) {
        for (qsizetype at = line.text.indexOf(text); at >= 0;
             at = line.text.indexOf(text, at + 1)) {
            const QPointF apart = line.origins[static_cast<std::size_t>(at)] - place;
            nearest = std::min(nearest, std::max(std::abs(apart.x()), std::abs(apart.y())));
        }
    }
    return nearest;
}

double riseOf(const QString& face, double points) {
    static const std::map<QString, double> ascents{{u"Calibri"_s, 1950},
                                                   {u"Franklin Gothic Medium"_s, 1854},
                                                   {u"Estrangelo Edessa"_s, 1854},
                                                   {u"Malgun Gothic Semilight"_s, 0.974 * 2189}};
    return ascents.at(face) / 2048 * points * millimetres_per_point;
}

QImage renderedPage(const QString& pdf, int page, int resolution, Tones tones) {
    const QString command = u"pdftoppm -singlefile -f %1 -r %2 %3 \"%4\""_s;
    const QString format = tones == Tones::colours ? u"-png"_s : u"-png -mono"_s;
    return QImage::fromData(outputOf(command.arg(page).arg(resolution).arg(format, pdf)));
}

QStringList symbolsIn(const QImage& image) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page.png"_s);
    image.save(file);
    return QString::fromUtf8(outputOf(u"zbarimg --quiet --raw \"%1\""_s.arg(file)))
        .split(u'\n', Qt::SkipEmptyParts);
}

} // namespace etiquetas::test
