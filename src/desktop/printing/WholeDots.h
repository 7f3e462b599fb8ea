#pragma once

#include <QImage>
#include <QRectF>

#include <optional>
#include <vector>

namespace etiquetas {

/// Where the modules of a symbol stand on a print head of `resolution` dots to the inch: dots from
/// the left edge of the page to where each begins, and at last to where the symbol ends. `symbol`
/// is a row of one bit each, from its first bar to its last, whose place on the page is `left` to
/// `right` in millimetres.
///
/// All modules take the same whole number of dots where that moves no edge by more than 0.2 mm. The
/// characters of a Code 39 do so each, and the gaps between them take the slack, where that moves
/// no edge by more than 0.4 mm. The edges of another EAN-13 stand where its digits are told best,
/// none moved by more than 0.2 mm; those of other symbols on their nearest dots.
[[nodiscard]] std::vector<int> modulesInDots(const QImage& symbol, double left, double right,
                                             int resolution);

/// The place for a symbol of this many modules on a page that keeps its measures in millimetres, so
/// that a head of 203 dots to the inch, the usual one of label printers, finds each module in whole
/// dots. Nothing where an edge would have to move by more than 0.1 mm.
[[nodiscard]] std::optional<QRectF> placeInWholeDots(const QRectF& place, int modules);

} // namespace etiquetas
