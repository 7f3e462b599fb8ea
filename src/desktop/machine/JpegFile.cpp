#include "desktop/machine/JpegFile.h"

#include <algorithm>
#include <cstddef>

namespace etiquetas {

namespace {

/// The second byte of a marker; the first one is always 0xFF.
enum Marker : std::uint8_t {
    stuffed_zero = 0x00, // none: what stands before it is a byte 0xFF of a scan
    temporary = 0x01,
    first_frame = 0xC0,
    huffman_tables = 0xC4,
    extensions = 0xC8,
    arithmetic_conditions = 0xCC,
    last_frame = 0xCF,
    first_restart = 0xD0,
    last_restart = 0xD7,
    start_of_image = 0xD8,
    end_of_image = 0xD9,
    start_of_scan = 0xDA,
    fill = 0xFF,
};

constexpr int block_side = 8; // samples

bool standsInScans(int code) {
    return code == stuffed_zero || code == temporary || code == fill ||
           (code >= first_restart && code <= last_restart);
}

bool isFrame(int code) {
    return code >= first_frame && code <= last_frame && code != huffman_tables &&
           code != extensions && code != arithmetic_conditions;
}

bool isProgressive(int frame) {
    constexpr int progressive = 2; // of the kinds of frame that the low bits tell
    return (frame & 3) == progressive;
}

// The bytes of a segment, without its length.
class Segment {
  public:
    explicit Segment(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] int byte(std::size_t at) const { return static_cast<unsigned char>(bytes_[at]); }
    [[nodiscard]] int word(std::size_t at) const { return byte(at) << 8 | byte(at + 1); }

  private:
    std::string_view bytes_;
};

struct Frame {
    JpegShape shape;
    int components = 0;
    bool progressive = false;
    std::int64_t samples = 0;
};

int roundedUp(int value, int divisor) {
    return (value + divisor - 1) / divisor;
}

// The samples of all components in whole blocks; 0 where the frame tells no picture.
std::int64_t samplesOf(const Segment& frame, int width, int height, int components) {
    constexpr std::size_t first_factors = 7;
    constexpr std::size_t step = 3;
    std::int64_t samples_of_unit = 0;
    int widest = 0;
    int highest = 0;
    for (int component = 0; component < components; ++component) {
        const int factors = frame.byte(first_factors + step * static_cast<std::size_t>(component));
        const int across = factors >> 4;
        const int down = factors & 15;
        widest = std::max(widest, across);
        highest = std::max(highest, down);
        samples_of_unit += std::int64_t{across} * down * block_side * block_side;
    }
    if (widest == 0 || highest == 0) {
        return 0;
    }
    return samples_of_unit * roundedUp(width, block_side * widest) *
           roundedUp(height, block_side * highest);
}

// Its precision, height, width, and components with their sampling factors.
std::optional<Frame> readFrame(const Segment& segment, int code) {
    constexpr std::size_t fixed_part = 6;
    constexpr std::size_t component_part = 3;
    if (segment.size() < fixed_part) {
        return std::nullopt;
    }
    const int components = segment.byte(5);
    if (segment.size() != fixed_part + component_part * static_cast<std::size_t>(components)) {
        return std::nullopt;
    }
    Frame frame{{segment.word(3), segment.word(1)}, components, isProgressive(code)};
    frame.samples = samplesOf(segment, frame.shape.width, frame.shape.height, components);
    return frame.samples > 0 ? std::optional(frame) : std::nullopt;
}

// Goes from marker to marker.
class Markers {
  public:
    explicit Markers(std::string_view bytes) : bytes_(bytes) {}

    // The code of the next marker, wherever it stands; nothing at the end.
    std::optional<int> next() {
        for (auto at = bytes_.find('\xFF', at_); at != std::string_view::npos;
             at = bytes_.find('\xFF', at + 1)) {
            if (at + 1 == bytes_.size()) {
                break;
            }
            const int code = static_cast<unsigned char>(bytes_[at + 1]);
            if (!standsInScans(code)) {
                at_ = at + 2;
                return code;
            }
        }
        return std::nullopt;
    }

    // The segment behind the marker; nothing where the file ends in it.
    std::optional<Segment> segment() {
        constexpr std::size_t length_bytes = 2;
        const std::string_view rest = bytes_.substr(at_);
        if (rest.size() < length_bytes) {
            return std::nullopt;
        }
        const auto length = static_cast<std::size_t>(Segment(rest).word(0));
        if (length < length_bytes || length > rest.size()) {
            return std::nullopt;
        }
        at_ += length;
        return Segment(rest.substr(length_bytes, length - length_bytes));
    }

  private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

} // namespace

std::optional<JpegShape> shapeOfWholeJpeg(std::string_view bytes) {
    if (!bytes.starts_with("\xFF\xD8")) {
        return std::nullopt;
    }
    Markers markers(bytes.substr(2));
    std::optional<Frame> frame;
    bool has_scan = false;
    for (auto code = markers.next(); code && code != start_of_image; code = markers.next()) {
        if (code == end_of_image) {
            return has_scan ? std::optional(frame->shape) : std::nullopt;
        }
        const auto segment = markers.segment();
        if (!segment) {
            return std::nullopt;
        }
        if (isFrame(*code)) {
            if (frame || !(frame = readFrame(*segment, *code))) {
                return std::nullopt;
            }
        } else if (code == start_of_scan) {
            if (!frame || segment->size() == 0) {
                return std::nullopt;
            }
            const bool in_parts = frame->progressive || segment->byte(0) < frame->components;
            if (in_parts) {
                frame->shape.kept_samples = frame->samples;
            }
            has_scan = true;
        }
    }
    return std::nullopt;
}

} // namespace etiquetas
