#include "desktop/machine/RasterImage.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>

namespace etiquetas {

QImage imageOf(const Raster& raster) {
    return imageOf(raster, QRect(0, 0, raster.width, raster.height));
}

QImage imageOf(const Raster& raster, const QRect& crop) {
    constexpr Pixel opaque = 0xFF000000;
    const auto width = static_cast<std::size_t>(crop.width());
    QImage image(crop.size(), QImage::Format_RGB32);
    for (int row = 0; row < image.height(); ++row) {
        const auto first =
            static_cast<std::size_t>(crop.top() + row) * static_cast<std::size_t>(raster.width) +
            static_cast<std::size_t>(crop.left());
        const auto pixels = std::span(raster.pixels).subspan(first, width);
        std::ranges::transform(pixels, reinterpret_cast<QRgb*>(image.scanLine(row)),
                               [](Pixel pixel) { return opaque | pixel; });
    }
    return image;
}

Raster rasterOf(const QImage& image) {
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    const auto width = static_cast<std::size_t>(rgb.width());
    Raster raster{rgb.width(), rgb.height(), {}};
    raster.pixels.reserve(width * static_cast<std::size_t>(rgb.height()));
    for (int row = 0; row < rgb.height(); ++row) {
        const std::span line(reinterpret_cast<const QRgb*>(rgb.constScanLine(row)), width);
        std::ranges::transform(line, std::back_inserter(raster.pixels),
                               [](QRgb colour) { return colour & RGB_MASK; });
    }
    return raster;
}

} // namespace etiquetas
