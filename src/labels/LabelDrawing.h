#pragma once

#include "base/Text.h"
#include "platform/PrintSurface.h"

#include <optional>

namespace etiquetas {

// How texts and pictures come onto the surface. Places and sizes are millimetres, in single
// precision.

/// Faces of the label texts.
namespace face {
inline constexpr TextView calibri = u"Calibri";
inline constexpr TextView franklin_medium = u"Franklin Gothic Medium";
inline constexpr TextView franklin_semilight = u"Franklin Gothic Semilight";
inline constexpr TextView malgun_semilight = u"Malgun Gothic Semilight";
} // namespace face

/// Weight of a text.
enum class Weight : bool { plain, bold };

/// Weight, size in points and face of a text. A font without a face leaves the surface its own.
struct Font {
    Weight weight;
    float points;
    TextView face = {};
};

/// A place on the surface, or one from the label's origin.
struct Point {
    float x;
    float y;
};

/// A box on the surface, or one from the label's origin.
struct Box {
    Point corner;
    float width;
    float height;
};

/// The place at an offset from the origin.
[[nodiscard]] constexpr Point at(const Point& origin, const Point& offset) {
    return {origin.x + offset.x, origin.y + offset.y};
}

/// The box with its corner at an offset from the origin.
[[nodiscard]] constexpr Box at(const Point& origin, const Box& box) {
    return {at(origin, box.corner), box.width, box.height};
}

/// Sets the weight of the next text.
inline void useWeight(PrintSurface& surface, Weight weight) {
    surface.FontBold(weight == Weight::bold);
}

/// Sets the font of the next text.
inline void useFont(PrintSurface& surface, const Font& font) {
    if (!font.face.empty()) {
        surface.FontName(font.face);
    }
    surface.FontSize(font.points);
    useWeight(surface, font.weight);
}

/// Prints a text with its top-left corner at a place, in the font that is set. An empty text draws
/// nothing.
inline void printAt(PrintSurface& surface, const Point& place, TextView text) {
    surface.CurrentX(place.x);
    surface.CurrentY(place.y);
    surface.Print(text);
}

/// Stamps a picture on a box of the surface; `source_width` pixels of its width, from the left,
/// where that is given.
inline void stamp(PrintSurface& surface, const Picture& picture, const Box& box,
                  std::optional<float> source_width = {}) {
    surface.PaintPicture(picture, box.corner.x, box.corner.y, box.width, box.height,
                         SourceArea{.width = source_width});
}

} // namespace etiquetas
