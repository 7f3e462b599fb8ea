#pragma once

#include "base/Text.h"
#include "platform/PrintSurface.h"

namespace etiquetas {

/// Faces of the label texts.
namespace face {
inline constexpr TextView calibri = u"Calibri";
inline constexpr TextView franklin_medium = u"Franklin Gothic Medium";
} // namespace face

/// Face, weight and size in points of a text.
struct Font {
    TextView face;
    bool bold;
    float points;
};

/// A place on the surface, millimetres.
struct Point {
    float x;
    float y;
};

/// A text of a layout: its font, and where its top-left corner stands from the label's origin.
struct TextItem {
    Font font;
    Point offset;
};

/// Sets face, size and weight of the next text.
inline void useFont(PrintSurface& surface, const Font& font) {
    surface.FontName(font.face);
    surface.FontSize(font.points);
    surface.FontBold(font.bold);
}

/// Prints a text with its top-left corner at a place, in the font that is set.
inline void printAt(PrintSurface& surface, const Point& place, TextView text) {
    surface.CurrentX(place.x);
    surface.CurrentY(place.y);
    surface.Print(text);
}

/// Prints a text of a layout.
inline void printItem(PrintSurface& surface, const TextItem& item, const Point& origin,
                      TextView text) {
    useFont(surface, item.font);
    printAt(surface, {origin.x + item.offset.x, origin.y + item.offset.y}, text);
}

} // namespace etiquetas
