#include "platform/PictureBox.h"

#include "base/Failure.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace etiquetas {

namespace {

int pixelsOf(double twips) {
    return std::max(0, static_cast<int>(std::lround(twips / PictureBox::twips_per_pixel)));
}

} // namespace

void PictureBox::Picture(etiquetas::Picture picture) {
    picture_ = std::move(picture);
    erase();
}

Picture PictureBox::Image() const {
    PictureBox copy(*this);
    return std::make_shared<const Raster>(std::move(copy.canvas()));
}

void PictureBox::showDrawing() {
    canvas();
    picture_ = std::make_shared<const Raster>(
        Raster{drawn_.width, drawn_.height, std::exchange(drawn_.pixels, {})});
}

void PictureBox::showDrawing(Text name) {
    showDrawing();
    kept_ = picture_;
    kept_name_ = std::move(name);
}

bool PictureBox::showKept(TextView name) {
    const bool is_kept = kept_ && kept_name_ == name;
    if (is_kept) {
        Picture(kept_);
    }
    return is_kept;
}

void PictureBox::Width(double twips) {
    width_ = twips;
    resize();
}

void PictureBox::Height(double twips) {
    height_ = twips;
    resize();
}

void PictureBox::BackColor(Pixel colour) {
    back_colour_ = colour;
    erase();
}

void PictureBox::ScaleMode(etiquetas::ScaleMode mode) {
    if (mode != etiquetas::ScaleMode::pixels) {
        throw Failure(failure_number::invalid_call, u"PictureBox",
                      u"Chamada inválida: a imagem só conhece pixels.");
    }
}

void PictureBox::Line(int x1, int y1, int x2, int y2, Pixel colour) {
    const int step_x = (x2 > x1) - (x2 < x1);
    const int step_y = (y2 > y1) - (y2 < y1);
    if (step_x != 0 && step_y != 0) {
        throw Failure(failure_number::invalid_call, u"PictureBox",
                      u"Chamada inválida: a imagem não desenha linhas inclinadas.");
    }
    for (; x1 != x2 || y1 != y2; x1 += step_x, y1 += step_y) {
        plot(x1, y1, colour);
    }
}

void PictureBox::columns(int x, int top, int height, std::span<const Pixel> colours) {
    if (!keeps_drawing_) {
        return;
    }
    Raster& raster = canvas();
    const int count = static_cast<int>(colours.size());
    const int left = std::max(x, 0);
    const int right = std::min(x + count, raster.width);
    const int first = std::max(height < 0 ? top + height + 1 : top, 0);
    const int end = std::min(height < 0 ? top + 1 : top + height, raster.height);
    if (left >= right) {
        return;
    }
    const auto row =
        colours.subspan(static_cast<std::size_t>(left - x), static_cast<std::size_t>(right - left));
    for (std::ptrdiff_t y = first; y < end; ++y) {
        std::copy(row.begin(), row.end(), raster.pixels.begin() + y * raster.width + left);
    }
}

void PictureBox::Print(TextView text) {
    const Raster letters = pictures_->text(text);
    const int left = static_cast<int>(std::lround(x_));
    const int top = static_cast<int>(std::lround(y_));
    for (int y = 0; y < letters.height; ++y) {
        for (int x = 0; x < letters.width; ++x) {
            if (letters.at(x, y) != white_pixel) {
                plot(left + x, top + y, letters.at(x, y));
            }
        }
    }
}

int PictureBox::TextWidth(TextView text) const {
    return pictures_->text(text).width;
}

int PictureBox::TextHeight(TextView text) const {
    return pictures_->text(text).height;
}

void PictureBox::resize() {
    // What was drawn is gone: every drawing sets its size first.
    drawn_.width = pixelsOf(width_);
    drawn_.height = pixelsOf(height_);
    erase();
}

void PictureBox::erase() {
    drawn_.pixels.clear();
}

// The raster to draw in: empty, in the background's colour, before the first line.
Raster& PictureBox::canvas() {
    if (drawn_.pixels.empty()) {
        drawn_.pixels.assign(static_cast<std::size_t>(drawn_.width) *
                                 static_cast<std::size_t>(drawn_.height),
                             back_colour_);
    }
    return drawn_;
}

void PictureBox::plot(int x, int y, Pixel colour) {
    if (keeps_drawing_ && x >= 0 && y >= 0 && x < drawn_.width && y < drawn_.height) {
        canvas().pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(drawn_.width) +
                        static_cast<std::size_t>(x)] = colour;
    }
}

} // namespace etiquetas
