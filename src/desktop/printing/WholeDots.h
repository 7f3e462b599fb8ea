#pragma once

#include <QImage>
#include <QRectF>

#include <optional>
#include <vector>

namespace etiquetas {

/// A bar on a print head: dots from the left edge of the page to where it begins, and where what
/// follows it begins.
struct DotBar {
    int begin = 0;
    int end = 0;

    friend bool operator==(const DotBar&, const DotBar&) = default;
};

/// Where the bars of a symbol stand on a print head of `resolution` dots to the inch. `modules` is
/// a row of one bit each, from the symbol's first bar to its last, whose place on the page is
/// `left` to `right` in millimetres.
///
/// All modules take the same whole number of dots where that moves no edge by more than 0.2 mm. The
/// characters of a Code 39 do so each, and the gaps between them take the slack, where that moves
/// no edge by more than 0.4 mm. Elsewhere each edge stands on its nearest dot, but for those within
/// a digit of an EAN-13: they may stand one dot beside it, so that the distances by which decoders
/// tell digits are the nearest whole numbers of dots.
[[nodiscard]] std::vector<DotBar> barsInDots(const QImage& modules, double left, double right,
                                             int resolution);

/// The place for a symbol of this many modules on a page that keeps its measures in millimetres, so
/// that a head of 203 dots to the inch, the usual one of label printers, finds each module in whole
/// dots. Nothing where an edge would have to move by more than 0.1 mm.
[[nodiscard]] std::optional<QRectF> placeInWholeDots(const QRectF& place, int modules);

} // namespace etiquetas
