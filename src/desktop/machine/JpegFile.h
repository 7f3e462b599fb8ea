#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace etiquetas {

/// What the markers of a JPEG file tell of its picture.
struct JpegShape {
    int width = 0;  // pixels
    int height = 0; // pixels
    /// Samples that a decoder must keep until the last scan is read: all of them, with those that
    /// fill up the blocks, where a scan holds but a part of what makes up the picture.
    std::int64_t kept_samples = 0;
};

/// The shape of the picture in the bytes of a file, by their markers alone (ISO/IEC 10918-1, annex
/// B). Nothing unless they come from the start of a picture to its own end: a file that is cut off
/// has none, whatever pictures stand in its segments.
[[nodiscard]] std::optional<JpegShape> shapeOfWholeJpeg(std::string_view bytes);

} // namespace etiquetas
