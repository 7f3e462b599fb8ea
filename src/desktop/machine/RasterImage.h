#pragma once

#include "platform/Picture.h"

#include <QImage>
#include <QRect>

namespace etiquetas {

/// The raster as an opaque image of the toolkit, 32 bits to the pixel.
[[nodiscard]] QImage imageOf(const Raster& raster);

/// A part of the raster, in pixels and wholly within it.
[[nodiscard]] QImage imageOf(const Raster& raster, const QRect& crop);

/// The image's colours as a raster; what is transparent takes the colour that it is stored with.
[[nodiscard]] Raster rasterOf(const QImage& image);

} // namespace etiquetas
