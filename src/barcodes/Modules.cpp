#include "barcodes/Modules.h"

#include "base/Numbers.h"

#include <algorithm>

namespace etiquetas {

int barHeight(std::int16_t escala) {
    constexpr std::int32_t pixels_to_one = 10;
    return toInteger16(std::int32_t{escala} * pixels_to_one);
}

void beginSymbol(PictureBox& pic) {
    pic.BackColor(white_pixel);
    pic.AutoRedraw(true);
    pic.ScaleMode(ScaleMode::pixels);
}

std::vector<Pixel> pixelsOf(TextView modules) {
    std::vector<Pixel> pixels(modules.size());
    std::transform(modules.begin(), modules.end(), pixels.begin(),
                   [](char16_t module) { return module == u'1' ? black_pixel : white_pixel; });
    return pixels;
}

void printAt(PictureBox& pic, double x, double y, TextView text) {
    pic.CurrentX(x);
    pic.CurrentY(y);
    pic.Print(text);
}

} // namespace etiquetas
