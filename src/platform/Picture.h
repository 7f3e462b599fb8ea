#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace etiquetas {

/// A pixel as 0x00RRGGBB.
using Pixel = std::uint32_t;

inline constexpr Pixel black_pixel = 0x000000;
inline constexpr Pixel white_pixel = 0xFFFFFF;

/// Pixels in rows from the top, without padding between the rows.
struct Raster {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;
    /// Pixels of the file to one of these, along a side: more than 1 where a large picture was
    /// decoded smaller than it is stored.
    float shrink = 1;

    /// The pixel in column `x` and row `y`, both counted from 0 and inside the raster.
    [[nodiscard]] Pixel at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

/// A picture that can be shown and stamped; nothing when empty. It never changes once it is made,
/// so that a platform may keep its own form of it under the pointer.
using Picture = std::shared_ptr<const Raster>;

} // namespace etiquetas
