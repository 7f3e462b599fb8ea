#pragma once

#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QStringList>

#include <vector>

namespace etiquetas::test {

// What other programs than our own find in a PDF file. Each function fails with a
// std::runtime_error where its program can't be run.

/// One text of a page with its baseline origins, one for each character, in millimetres from the
/// top-left corner of the page.
struct PdfText {
    QString text;
    std::vector<QPointF> origins;
};

/// What a program writes to its standard output. The command holds the program and its options,
/// parted by blanks; the files follow them.
QByteArray outputOf(const QString& command, const QStringList& files = {});

/// Page sizes in points, read by poppler.
[[nodiscard]] std::vector<QSizeF> pageSizes(const QString& pdf);

/// Texts of each page in drawing order, read by MuPDF.
[[nodiscard]] std::vector<std::vector<PdfText>> pageTexts(const QString& pdf);

/// Number of images that the file stores, read by poppler; one drawn twice counts once.
[[nodiscard]] int storedImages(const QString& pdf);

enum class Tones { black_and_white, colours };

/// A page, counted from 1, as poppler shows it at a resolution in dots to the inch.
[[nodiscard]] QImage renderedPage(const QString& pdf, int page, int resolution, Tones tones);

/// Symbols that zbar reads in an image.
[[nodiscard]] QStringList symbolsIn(const QImage& image);

} // namespace etiquetas::test
