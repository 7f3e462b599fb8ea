#pragma once

#include "base/Text.h"
#include "platform/Interface.h"
#include "platform/Picture.h"
#include "platform/ScaleMode.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace etiquetas {

/// Numbers that the surface's operations take.
inline constexpr int user_defined_paper = 256;
inline constexpr int filled_box = 36;

/// The part of a picture that a stamp takes, in pixels of the picture as it is stored; what is
/// absent is its edge.
struct SourceArea {
    std::optional<float> x;
    std::optional<float> y;
    std::optional<float> width;
    std::optional<float> height;
};

/// What labels are drawn on: one job of pages on the current printer.
///
/// The state (face, size, weight, pen, unit, page size) stays until it is set again, from label to
/// label and from job to job. The page size alone is lost when a printer is selected: that
/// printer's own page holds until a size is set. The first drawing begins a job on the printer that
/// is current then; the job stays there until `EndDoc`. Every operation may fail with a `Failure`.
class PrintSurface : public Interface {
  public:
    /// Face, size in points and weight of the next text.
    virtual void FontName(TextView face) = 0;
    virtual void FontSize(float points) = 0;
    virtual void FontBold(bool bold) = 0;
    /// The size really in force, in points.
    [[nodiscard]] virtual float FontSize() const = 0;

    /// Top-left corner of the next text, in the current unit.
    virtual void CurrentX(float x) = 0;
    virtual void CurrentY(float y) = 0;
    virtual void ScaleMode(etiquetas::ScaleMode mode) = 0;

    /// Page: `user_defined_paper`, and its size in twips (1,440 to the inch).
    virtual void PaperSize(int kind) = 0;
    virtual void Width(int twips) = 0;
    virtual void Height(int twips) = 0;

    /// Draws a text with the top-left corner of its character cell at (`CurrentX`, `CurrentY`).
    virtual void Print(TextView text) = 0;
    /// Width of a text in the current font and unit.
    [[nodiscard]] virtual float TextWidth(TextView text) const = 0;
    /// With `filled_box`: a box of one colour (0x00RRGGBB) from one corner to the other.
    virtual void Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) = 0;
    /// Stamps a picture, scaled into the box and opaque. An empty picture draws nothing.
    virtual void PaintPicture(const Picture& picture, float x, float y, float width, float height,
                              const SourceArea& source) = 0;
    void PaintPicture(const Picture& picture, float x, float y, float width, float height) {
        PaintPicture(picture, x, y, width, height, SourceArea{});
    }

    /// Ends the page; the next one starts with the next drawing, so that no job ends in a blank
    /// page.
    virtual void NewPage() = 0;
    /// Sends the job to its printer. Without a drawing since the last job it does nothing.
    virtual void EndDoc() = 0;

    /// Faces that the current printer offers.
    [[nodiscard]] virtual std::size_t FontCount() const = 0;
    [[nodiscard]] virtual Text Fonts(std::size_t index) const = 0;
};

} // namespace etiquetas
