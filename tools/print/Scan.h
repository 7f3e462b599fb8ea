#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

namespace etiquetas::measure {

/// What becomes of dots on their way to paper.
struct Print {
    const char* name;
    double growth = 0; // of each bar, dots; negative where it shrinks
    double blur = 0;   // standard deviation, dots
};

/// Dots as they look on paper: grey, four pixels to the dot.
[[nodiscard]] QImage onPaper(const QImage& dots, const Print& print);

/// Whether a decoder finds this text in the image.
[[nodiscard]] bool zbarReads(const QImage& grey, const QString& text);
[[nodiscard]] bool zxingReads(const QImage& grey, const QString& text);

/// Decodability of an EAN-13 by ISO/IEC 15416 and ISO/IEC 15420: the mean of up to ten scans across
/// its bars, whose place in the image is given in dots. A scan with more or fewer edges than a
/// symbol has is left out, since one label prints texts over its bars; nothing where none is left.
/// Digits are told by the distances of like edges, and those that share them by the widths of their
/// bars, which must not have grown.
[[nodiscard]] std::optional<double> eanDecodability(const QImage& grey, const QRectF& bars);

} // namespace etiquetas::measure
