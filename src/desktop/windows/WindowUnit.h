#pragma once

#include <QSize>

namespace etiquetas {

/// A size in twips, a 1440th of an inch of the screen.
struct TwipSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const TwipSize&, const TwipSize&) = default;
};

/// The unit that all lengths of the windows are told in. It follows the desktop's font: at the
/// reference font, 9 points at 96 dots per inch, a logical pixel is 15 twips, and with another font
/// everything grows or shrinks in proportion.
class WindowUnit {
  public:
    /// The unit at the reference font.
    WindowUnit() = default;

    /// The unit of a desktop's font, where a window of that size is to fit into the room of the
    /// screen, logical pixels. In too small a room texts shrink to 7.5 points, and no further.
    WindowUnit(double font_points, double dots_per_inch, TwipSize window, QSize room);

    /// The size of texts, points.
    [[nodiscard]] double fontPoints() const { return font_points_; }
    /// A length in logical pixels, told as pixels at the reference font.
    [[nodiscard]] int pixels(int reference_pixels) const;
    /// A size in logical pixels, which is never larger than the twips tell.
    [[nodiscard]] QSize pixels(TwipSize size) const;

  private:
    double font_points_ = 9;
    double factor_ = 1; // logical pixels to a pixel at the reference font
};

} // namespace etiquetas
