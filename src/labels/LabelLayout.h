#pragma once

#include "base/Text.h"
#include "platform/PrintSurface.h"

#include <optional>

namespace etiquetas {

// What label layouts are made of, and how their pieces are drawn. Millimetres, in single precision.

/// Faces of the label texts.
namespace face {
inline constexpr TextView calibri = u"Calibri";
inline constexpr TextView franklin_medium = u"Franklin Gothic Medium";
inline constexpr TextView franklin_semilight = u"Franklin Gothic Semilight";
inline constexpr TextView malgun_semilight = u"Malgun Gothic Semilight";
} // namespace face

/// Behind these characters a description may be broken.
inline constexpr TextView separators = u" -/.";

/// Face, weight and size in points of a text.
struct Font {
    TextView face;
    bool bold;
    float points;
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

/// A text of a layout: its font, and where its top-left corner stands from the label's origin.
struct TextItem {
    Font font;
    Point offset;
};

/// A ruled line of a layout: a black box between two corners.
struct Rule {
    Point first;
    Point second;
};

/// The place at an offset from the origin.
[[nodiscard]] constexpr Point at(const Point& origin, const Point& offset) {
    return {origin.x + offset.x, origin.y + offset.y};
}

/// The box with its corner at an offset from the origin.
[[nodiscard]] constexpr Box at(const Point& origin, const Box& box) {
    return {at(origin, box.corner), box.width, box.height};
}

/// Count of the first characters whose width together, in the font and unit that are set, passes a
/// test; one more than there are characters where none does.
template <typename Test>
[[nodiscard]] std::size_t firstPrefix(const PrintSurface& surface, TextView text, Test&& test) {
    std::size_t count = 1;
    while (count <= text.size() && !test(surface.TextWidth(left(text, count)))) {
        ++count;
    }
    return count;
}

/// Sets face, size and weight of the next text.
inline void useFont(PrintSurface& surface, const Font& font) {
    surface.FontName(font.face);
    surface.FontSize(font.points);
    surface.FontBold(font.bold);
}

/// Prints a text with its top-left corner at a place, in the font that is set. An empty text draws
/// nothing.
inline void printAt(PrintSurface& surface, const Point& place, TextView text) {
    surface.CurrentX(place.x);
    surface.CurrentY(place.y);
    surface.Print(text);
}

/// Prints a text of a layout.
inline void printItem(PrintSurface& surface, const TextItem& item, const Point& origin,
                      TextView text) {
    useFont(surface, item.font);
    printAt(surface, at(origin, item.offset), text);
}

/// Stamps a picture on a box of the surface; `source_width` pixels of its width, from the
/// left, where that is given.
inline void stamp(PrintSurface& surface, const Picture& picture, const Box& box,
                  std::optional<float> source_width = {}) {
    surface.PaintPicture(picture, box.corner.x, box.corner.y, box.width, box.height,
                         SourceArea{.width = source_width});
}

/// Draws a ruled line of a layout.
inline void drawRule(PrintSurface& surface, const Rule& rule, const Point& origin) {
    const Point first = at(origin, rule.first);
    const Point second = at(origin, rule.second);
    surface.Line(filled_box, first.x, first.y, second.x, second.y, black_pixel);
}

} // namespace etiquetas
