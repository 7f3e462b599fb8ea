#pragma once

#include <QImage>
#include <QStringList>

#include <vector>

namespace etiquetas::test {

// What other programs than our own find in a PDF file. A program that can't be run fails the test
// and finds nothing.

/// One text of a page with its baseline origins, one for each character, in millimetres from the
/// top-left corner of the page.
struct PdfText {
    QString text;
    std::vector<QPointF> origins;
};

/// What a command writes to its standard output; names with blanks stand in quotes.
QByteArray outputOf(const QString& command);

/// Page sizes in points, read by poppler.
[[nodiscard]] std::vector<QSizeF> pageSizes(const QString& pdf);

/// Texts of each page in drawing order, read by MuPDF.
[[nodiscard]] std::vector<std::vector<PdfText>> pageTexts(const QString& pdf);

/// How far the nearest occurrence of a text on a page is from a place of its first baseline origin,
/// in the worse direction, millimetres; a metre where the page has not got the text.
[[nodiscard]] double distanceTo(const std::vector<PdfText>& page, const QString& text,
                                QPointF place);

/// From the top of a text to its baseline, millimetres: by the Windows ascent of Carlito or Open
/// Sans Light, and of Liberation Sans where the stand-in takes its line.
[[nodiscard]] double riseOf(const QString& face, double points);

enum class Tones { black_and_white, colours };

/// A page, counted from 1, as poppler shows it at a resolution in dots to the inch.
[[nodiscard]] QImage renderedPage(const QString& pdf, int page, int resolution, Tones tones);

/// Symbols that zbar reads in an image.
[[nodiscard]] QStringList symbolsIn(const QImage& image);

} // namespace etiquetas::test
