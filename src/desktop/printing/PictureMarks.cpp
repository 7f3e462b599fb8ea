#include "desktop/printing/PictureMarks.h"

#include "desktop/machine/RasterImage.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

namespace etiquetas {

namespace {

std::span<const Pixel> rowOf(const Raster& picture, const QRect& crop, int row) {
    const auto first = static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width) +
                       static_cast<std::size_t>(crop.left());
    return std::span(picture.pixels).subspan(first, static_cast<std::size_t>(crop.width()));
}

bool isPure(Pixel pixel) {
    return pixel == black_pixel || pixel == white_pixel;
}

bool isBlackAndWhite(const Raster& picture, const QRect& crop) {
    for (int row = crop.top(); row <= crop.bottom(); ++row) {
        const auto pixels = rowOf(picture, crop, row);
        if (!std::all_of(pixels.begin(), pixels.end(), isPure)) {
            return false;
        }
    }
    return true;
}

// The row after the band of equal rows that begins at `row`.
int bandEnd(const Raster& picture, const QRect& crop, int row) {
    const auto pixels = rowOf(picture, crop, row);
    int end = row + 1;
    while (end <= crop.bottom() && std::ranges::equal(pixels, rowOf(picture, crop, end))) {
        ++end;
    }
    return end;
}

QImage oneBitRow(std::span<const Pixel> pixels) {
    QImage image(static_cast<int>(pixels.size()), 1, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int x = 0; x < image.width(); ++x) {
        image.setPixel(x, 0, pixels[static_cast<std::size_t>(x)] == black_pixel ? 0 : 1);
    }
    return image;
}

QByteArray bytesOf(std::span<const Pixel> pixels) {
    const auto bytes = std::as_bytes(pixels);
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

bool samePicture(const std::weak_ptr<const Raster>& kept, const Picture& picture) {
    return !kept.owner_before(picture) && !picture.owner_before(kept);
}

// The nearest edge between pixels, from 0 to `size`, of a position in the stored picture;
// `fallback` where none is told.
int edge(std::optional<float> position, float shrink, int fallback, int size) {
    const float told = position ? *position / shrink : static_cast<float>(fallback);
    return static_cast<int>(std::lround(std::clamp(told, 0.0F, static_cast<float>(size))));
}

std::optional<float> sum(std::optional<float> start, std::optional<float> length) {
    return length ? std::optional(start.value_or(0.0F) + *length) : std::nullopt;
}

} // namespace

QRect cropOf(const Raster& picture, const SourceArea& source) {
    const auto edge_at = [&](std::optional<float> position, int fallback, int size) {
        return edge(position, picture.shrink, fallback, size);
    };
    const int left = edge_at(source.x, 0, picture.width);
    const int top = edge_at(source.y, 0, picture.height);
    const int right = edge_at(sum(source.x, source.width), picture.width, picture.width);
    const int bottom = edge_at(sum(source.y, source.height), picture.height, picture.height);
    return {left, top, right - left, bottom - top};
}

void PictureMarks::stamp(LabelPage& page, const Picture& picture, const QRect& crop,
                         const QRectF& place) {
    const double row_height = place.height() / crop.height();
    for (const Band& band : bandsOf(picture, crop)) {
        const QRectF rows(place.left(), place.top() + band.first * row_height, place.width(),
                          (band.end - band.first) * row_height);
        page.marks.push_back(band.image ? Mark(ImageMark{rows, *band.image})
                                        : Mark(BoxMark{rows, Qt::white}));
    }
}

// The same images are handed out for each stamp of a picture: they are then stored once in a job.
const std::vector<PictureMarks::Band>& PictureMarks::bandsOf(const Picture& picture,
                                                             const QRect& crop) {
    const auto known = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
        return samePicture(kept.picture, picture) && kept.crop == crop;
    });
    if (known != kept_.end()) {
        return known->bands;
    }
    std::erase_if(kept_, [](const Kept& kept) { return kept.picture.expired(); });
    std::vector<Band> bands = isBlackAndWhite(*picture, crop)
                                  ? barBands(*picture, crop)
                                  : std::vector{Band{0, crop.height(), imageOf(*picture, crop)}};
    return kept_.emplace_back(Kept{picture, crop, std::move(bands)}).bands;
}

// Bars must stand on the page where the raster has them. An image one row high and one bit deep is
// stretched so far that no program smooths it, and it is stored without loss.
std::vector<PictureMarks::Band> PictureMarks::barBands(const Raster& picture, const QRect& crop) {
    std::vector<Band> bands;
    for (int row = crop.top(); row <= crop.bottom();) {
        const int end = bandEnd(picture, crop, row);
        bands.push_back({row - crop.top(), end - crop.top(), barRow(rowOf(picture, crop, row))});
        row = end;
    }
    return bands;
}

// Symbols that are drawn anew have the same rows: the guards are those of all, and a size comes
// again with the next item.
std::optional<QImage> PictureMarks::barRow(std::span<const Pixel> pixels) {
    if (std::find(pixels.begin(), pixels.end(), black_pixel) == pixels.end()) {
        return std::nullopt;
    }
    constexpr qsizetype most = 4096;
    if (bar_rows_.size() == most) {
        bar_rows_.clear();
    }
    QImage& row = bar_rows_[bytesOf(pixels)];
    if (row.isNull()) {
        row = oneBitRow(pixels);
    }
    return row;
}

} // namespace etiquetas
