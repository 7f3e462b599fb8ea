#include "desktop/printing/PictureMarks.h"

#include "desktop/machine/RasterImage.h"
#include "desktop/printing/LineArt.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

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

// Columns from the first to the last that has ink in any row.
QRect inkOf(const Raster& picture, const QRect& crop) {
    auto left = static_cast<std::ptrdiff_t>(crop.width());
    std::ptrdiff_t right = 0;
    for (int row = crop.top(); row <= crop.bottom(); ++row) {
        const auto pixels = rowOf(picture, crop, row);
        const auto first = std::find(pixels.begin(), pixels.end(), black_pixel);
        const auto past_last = std::find(pixels.rbegin(), pixels.rend(), black_pixel).base();
        left = std::min(left, first - pixels.begin());
        right = std::max(right, past_last - pixels.begin());
    }
    return {crop.left() + static_cast<int>(left), crop.top(), static_cast<int>(right - left),
            crop.height()};
}

std::vector<bool> modulesOf(std::span<const Pixel> pixels) {
    std::vector<bool> dark(pixels.size());
    std::transform(pixels.begin(), pixels.end(), dark.begin(),
                   [](Pixel pixel) { return pixel == black_pixel; });
    return dark;
}

QImage oneBitRow(const std::vector<bool>& dark) {
    QImage image(static_cast<int>(dark.size()), 1, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    image.fill(0); // the last byte may have bits that are no pixels, and files bear them too
    for (int x = 0; x < image.width(); ++x) {
        image.setPixel(x, 0, dark[static_cast<std::size_t>(x)] ? 0 : 1);
    }
    return image;
}

bool hasInk(std::span<const Pixel> pixels) {
    return std::find(pixels.begin(), pixels.end(), black_pixel) != pixels.end();
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
    if (isBlackAndWhite(*picture, crop)) {
        stampBars(page, *picture, crop, place);
    } else {
        page.marks.emplace_back(ImageMark{place, keptImage(picture, crop)});
    }
}

// Bars must stand on the page where the raster has them. An image one row high and one bit deep is
// stretched so far that no program smooths it, and it is stored without loss.
void PictureMarks::stampBars(LabelPage& page, const Raster& picture, const QRect& crop,
                             const QRectF& place) {
    const double row_height = place.height() / crop.height();
    const QRect ink = inkOf(picture, crop);
    QImage symbol;
    for (int row = crop.top(); row <= crop.bottom();) {
        const int end = bandEnd(picture, crop, row);
        const QRectF band(place.left(), place.top() + (row - crop.top()) * row_height,
                          place.width(), (end - row) * row_height);
        const auto pixels = rowOf(picture, crop, row);
        if (hasInk(pixels)) {
            const QImage bars = keptRow(rowOf(picture, ink, row));
            symbol = symbol.isNull() ? bars : symbol;
            page.marks.emplace_back(
                BarsMark{band, keptRow(pixels), bars, symbol, ink.left() - crop.left()});
        } else {
            page.marks.emplace_back(BoxMark{band, Qt::white});
        }
        row = end;
    }
}

// Equal rows are one image, whatever picture they are of: it is then stored once in a job.
QImage PictureMarks::keptRow(std::span<const Pixel> pixels) {
    constexpr std::size_t most_kept = 4096;
    if (rows_.size() >= most_kept) {
        rows_.clear();
    }
    const auto [known, is_new] = rows_.try_emplace(modulesOf(pixels));
    if (is_new) {
        known->second = oneBitRow(known->first);
    }
    return known->second;
}

// The same image is handed out for each stamp of a picture: it is then stored once in a job.
QImage PictureMarks::keptImage(const Picture& picture, const QRect& crop) {
    std::erase_if(kept_, [](const Kept& kept) { return kept.picture.expired(); });
    const auto known = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
        return samePicture(kept.picture, picture) && kept.crop == crop;
    });
    if (known != kept_.end()) {
        return known->image;
    }
    const QImage image = imageOf(*picture, crop);
    return kept_.emplace_back(Kept{picture, crop, lineArt(image).value_or(image)}).image;
}

} // namespace etiquetas
