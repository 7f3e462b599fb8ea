#pragma once

#include <QImage>

#include <optional>

namespace etiquetas {

/// An image that is black and white but for the soft edges of its shapes, as most logos are: cut to
/// one bit, black where it is 0. It is enlarged first, so that the cut follows the edges between
/// the pixels: a print head then finds them sharp, where it would fray their greys. Nothing for
/// what has colours or shades, as photographs do.
[[nodiscard]] std::optional<QImage> lineArt(const QImage& image);

/// A grey image as large as `size`, smoothly scaled and cut at half, black where it is 0.
[[nodiscard]] QImage cutAtHalf(const QImage& grey, const QSize& size);

} // namespace etiquetas
