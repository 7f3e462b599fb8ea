#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPageSize>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

class QPagedPaintDevice;

namespace etiquetas {

class ShapedTexts;

// A page as plain values, all measures in millimetres from its top-left corner.

inline constexpr double millimetres_per_inch = 25.4;

/// A text in black. One pixel of the font is `scale` millimetres.
struct TextMark {
    QPointF baseline;
    QString text;
    QFont font;
    double scale = 1.0;

    friend bool operator==(const TextMark&, const TextMark&) = default;
};

/// A box filled with one colour.
struct BoxMark {
    QRectF place;
    QColor colour;

    friend bool operator==(const BoxMark&, const BoxMark&) = default;
};

/// An image stretched over its place.
struct ImageMark {
    QRectF place;
    QImage image;

    friend bool operator==(const ImageMark&, const ImageMark&) = default;
};

/// Upright bars of a symbol: a row of modules, one bit each, over the whole height of the place.
struct BarsMark {
    QRectF place;  // of the whole row
    QImage row;    // with its blank edges
    QImage ink;    // the part of the row from the symbol's first bar to its last
    QImage symbol; // the same part of the symbol's first row, which has all of its bars
    int blank = 0; // modules of the row before that part

    friend bool operator==(const BarsMark&, const BarsMark&) = default;

    [[nodiscard]] QRectF inkPlace() const {
        const double module = place.width() / row.width();
        return {place.left() + blank * module, place.top(), ink.width() * module, place.height()};
    }
};

using Mark = std::variant<TextMark, BoxMark, ImageMark, BarsMark>;

/// What is drawn on one page, in this order. Without a size it is the printer's own page.
struct LabelPage {
    std::optional<QPageSize> size;
    QList<Mark> marks;      // which equal pages share
    std::size_t labels = 0; // that stand on it whole
};

/// The pages of a job.
using LabelPages = std::vector<LabelPage>;

/// The labels of all pages.
[[nodiscard]] std::size_t labelsOn(const LabelPages& pages);

/// A page of this size in twips (1,440 to the inch), at most 0.01 mm larger and never smaller: a
/// print system that counts in points would cut a whole one off.
[[nodiscard]] QPageSize labelPageSize(int width, int height);

/// The page of the built-in devices, 100 by 40 mm: the stock of the one label that takes the
/// printer's own page.
[[nodiscard]] QPageSize builtInPage();

/// Draws a page with a painter whose unit is one millimetre. All that shows labels, on paper, in a
/// file or on the screen, draws them by this.
void draw(QPainter& painter, const LabelPage& page);

/// The same for one of several pages, which share the texts that have been shaped.
void draw(QPainter& painter, const LabelPage& page, ShapedTexts& texts);

/// The size that a page is drawn in.
using PageSizes = std::function<QPageSize(const LabelPage& page)>;

/// Draws pages on a device, each in its size, and tells before each one how many labels have been
/// drawn. False where the device takes no page.
[[nodiscard]] bool drawPages(QPagedPaintDevice& device, const LabelPages& pages,
                             const PageSizes& size_of,
                             const std::function<void(std::size_t labels)>& tell);

} // namespace etiquetas
