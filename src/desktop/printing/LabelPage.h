#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace etiquetas {

// A page as plain values, all measures in millimetres from its top-left corner.

inline constexpr double millimetres_per_inch = 25.4;

/// A text in black. One pixel of the font is `scale` millimetres.
struct TextMark {
    QPointF baseline;
    QString text;
    QFont font;
    double scale = 1.0;
};

/// A box filled with one colour.
struct BoxMark {
    QRectF place;
    QColor colour;
};

/// An image stretched over its place.
struct ImageMark {
    QRectF place;
    QImage image;
};

using Mark = std::variant<TextMark, BoxMark, ImageMark>;

/// What is drawn on one page, in this order. Without a size it is the printer's own page.
struct LabelPage {
    std::optional<QPageSize> size;
    std::vector<Mark> marks;
};

/// A page of this size in twips (1,440 to the inch), at most 0.01 mm larger and never smaller: a
/// print system that counts in points would cut a whole one off.
[[nodiscard]] QPageSize labelPageSize(int width, int height);

/// Draws a mark with a painter whose unit is one millimetre.
void draw(QPainter& painter, const Mark& mark);

} // namespace etiquetas
