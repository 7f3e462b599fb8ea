#pragma once

#include "base/Text.h"
#include "platform/Picture.h"
#include "platform/Pictures.h"
#include "platform/ScaleMode.h"

#include <span>

namespace etiquetas {

/// Off-screen raster in which bars are drawn before they are stamped on a label. One pixel is 15
/// twips, the size that the label layouts were measured with. Coordinates are pixels.
class PictureBox {
  public:
    static constexpr double twips_per_pixel = 15.0;

    /// Draws its texts with `pictures`, which must outlive it.
    explicit PictureBox(Pictures& pictures) : pictures_(&pictures) {}

    bool visible = true;

    /// Shows a picture, or nothing; what was drawn before is gone.
    void Picture(etiquetas::Picture picture);
    /// The picture that was last set.
    [[nodiscard]] const etiquetas::Picture& Picture() const { return picture_; }
    /// What has been drawn, as a picture.
    [[nodiscard]] etiquetas::Picture Image() const;
    /// Shows what has been drawn: what `Picture(Image())` does, without a second raster.
    void showDrawing();
    /// The same, and keeps the drawing by its name, in place of the one that was kept before.
    void showDrawing(Text name);
    /// Shows the drawing that is kept, if that is its name, as if it had been drawn again; the box
    /// must have the size that it was drawn in. False where there is none of that name.
    [[nodiscard]] bool showKept(TextView name);

    /// Size in twips; the raster has the nearest whole number of pixels.
    void Width(double twips);
    void Height(double twips);

    /// Colour of the empty raster; what was drawn before is gone.
    void BackColor(Pixel colour);
    /// Whether drawing goes to the raster that `Image` returns. Off, nothing is kept.
    void AutoRedraw(bool keep) { keeps_drawing_ = keep; }
    /// The unit of coordinates. Only pixels are in use.
    void ScaleMode(etiquetas::ScaleMode mode);

    void CurrentX(double pixels) { x_ = pixels; }
    void CurrentY(double pixels) { y_ = pixels; }

    /// A line one pixel wide; the pixel at its end is not drawn. Level and upright lines only.
    void Line(int x1, int y1, int x2, int y2, Pixel colour);
    /// Upright lines side by side, each one pixel wide, from row `top` down over `height` rows: the
    /// first of these colours in column `x`. A height below 0 draws upwards, row `top` included.
    void columns(int x, int top, int height, std::span<const Pixel> colours);
    /// The text with its top-left corner at (`CurrentX`, `CurrentY`).
    void Print(TextView text);
    /// Size of a text in pixels.
    [[nodiscard]] int TextWidth(TextView text) const;
    [[nodiscard]] int TextHeight(TextView text) const;

  private:
    void resize();
    void erase();
    Raster& canvas();
    void plot(int x, int y, Pixel colour);

    Pictures* pictures_;
    etiquetas::Picture picture_;
    Raster drawn_; // without pixels as long as nothing is drawn
    etiquetas::Picture kept_;
    Text kept_name_;
    double width_ = 0;
    double height_ = 0;
    double x_ = 0;
    double y_ = 0;
    Pixel back_colour_ = white_pixel;
    bool keeps_drawing_ = false;
};

} // namespace etiquetas
