#pragma once

#include "desktop/printing/LabelPage.h"

#include <QImage>
#include <QPageSize>
#include <QRawFont>
#include <QString>

#include <map>
#include <tuple>
#include <vector>

namespace etiquetas {

/// Draws pages as a print head of one resolution sets its dots. Bars and rules take whole dots,
/// small letters are fitted to them, logos are cut to black and white, photographs are dithered.
/// It is used by one thread, to which its fonts belong.
class DotPages {
  public:
    /// Dots to the inch.
    explicit DotPages(int resolution) : resolution_(resolution) {}

    /// The page, one bit to the dot and black where it is 0; as large as its size, or else as
    /// `own_size`, to the next whole dot.
    [[nodiscard]] QImage draw(const LabelPage& page, const QPageSize& own_size);

  private:
    using ImageKey = std::tuple<qint64, int, int>;        // of the toolkit, width, height
    using SymbolKey = std::tuple<qint64, double, double>; // of the toolkit, left, right
    using FontKey = std::tuple<QString, bool, double>;    // family, bold, dots to the em

    struct FittedFont {
        QRawFont fitted;
        QRawFont measured; // as texts are measured by it
    };

    void drawMark(QPainter& painter, const TextMark& mark);
    void drawMark(QPainter& painter, const BoxMark& mark) const;
    void drawMark(QPainter& painter, const ImageMark& mark);
    void drawMark(QPainter& painter, const BarsMark& mark);

    bool drawFitted(QPainter& painter, const TextMark& mark, double em);
    [[nodiscard]] double dots(double millimetres) const;
    [[nodiscard]] int nearestDot(double millimetres) const;
    [[nodiscard]] QRect nearestDots(const QRectF& place) const;
    [[nodiscard]] const FittedFont& fittedFont(const QFont& font, double em);
    [[nodiscard]] const std::vector<int>& modulesOf(const BarsMark& mark);

    int resolution_;
    std::map<ImageKey, QImage> images_;
    std::map<SymbolKey, std::vector<int>> symbols_;
    std::map<FontKey, FittedFont> fonts_;
};

} // namespace etiquetas
