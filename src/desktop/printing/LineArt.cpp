#include "desktop/printing/LineArt.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <span>

namespace etiquetas {

namespace {

constexpr std::size_t all_tones = 256; // from black to white
constexpr std::size_t half = all_tones / 2;

bool isGrey(QRgb pixel) {
    constexpr int most_apart = 32; // of the primary colours; what is farther looks coloured
    const auto [weakest, strongest] = std::minmax({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    return strongest - weakest <= most_apart;
}

bool hasColours(const QImage& image) {
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rgb.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        if (!std::all_of(row, row + rgb.width(), isGrey)) {
            return true;
        }
    }
    return false;
}

// How many pixels of an image have each tone.
using Histogram = std::array<qint64, all_tones>;

Histogram histogramOf(const QImage& grey) {
    Histogram pixels{};
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* const row = grey.constScanLine(y);
        std::for_each(row, row + grey.width(), [&pixels](uchar tone) { ++pixels.at(tone); });
    }
    return pixels;
}

// The tone of the middle one of the pixels that are counted here, if they stood in order.
int middleTone(std::span<const qint64> pixels) {
    const qint64 all = std::accumulate(pixels.begin(), pixels.end(), qint64{0});
    qint64 counted = 0;
    const auto middle = std::find_if(pixels.begin(), pixels.end(), [&](qint64 each) {
        counted += each;
        return 2 * counted > all;
    });
    return static_cast<int>(middle - pixels.begin());
}

/// The black and the white of an image: the tones in the middle of its dark and its light ones.
class TwoTones {
  public:
    explicit TwoTones(const Histogram& pixels)
        : black_(middleTone(std::span(pixels).first<half>())),
          white_(static_cast<int>(half) + middleTone(std::span(pixels).last<half>())) {}

    [[nodiscard]] bool isBlack(uchar tone) const { return tone <= black_ + ripple; }
    [[nodiscard]] bool isWhite(uchar tone) const { return tone >= white_ - ripple; }
    [[nodiscard]] bool areFarApart() const {
        constexpr int lightest_black = 56;
        constexpr int darkest_white = 208;
        return black_ <= lightest_black && white_ >= darkest_white;
    }

    static constexpr int ripple = 12; // that JPEG leaves on a plain area

  private:
    int black_;
    int white_;
};

// What lies around a pixel, up to so many pixels away.
QRect around(const QImage& image, int x, int y, int reach) {
    return image.rect().intersected({x - reach, y - reach, 2 * reach + 1, 2 * reach + 1});
}

// Pixels on edges and on hairlines, however soft, differ from some that they touch.
bool isPlain(const QImage& grey, const QRect& part) {
    int darkest = grey.constScanLine(part.top())[part.left()];
    int lightest = darkest;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const uchar* const row = grey.constScanLine(y) + part.left();
        const auto [dark, light] = std::minmax_element(row, row + part.width());
        darkest = std::min<int>(darkest, *dark);
        lightest = std::max<int>(lightest, *light);
    }
    return lightest - darkest <= 2 * TwoTones::ripple;
}

bool hasBlackAndWhite(const QImage& grey, const QRect& part, const TwoTones& tones) {
    bool black = false;
    bool white = false;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const uchar* const row = grey.constScanLine(y) + part.left();
        const auto [dark, light] = std::minmax_element(row, row + part.width());
        black = black || tones.isBlack(*dark);
        white = white || tones.isWhite(*light);
    }
    return black && white;
}

// Whether a pixel is one of a plain area between black and white. Near the edge of a shape, where
// both are, it may come of JPEG's ripples, which go as far as half of its blocks of eight pixels.
bool isShade(const QImage& grey, int x, int y, const TwoTones& tones) {
    constexpr int near = 4; // pixels
    const uchar tone = grey.constScanLine(y)[x];
    return !tones.isBlack(tone) && !tones.isWhite(tone) && isPlain(grey, around(grey, x, y, 1)) &&
           !hasBlackAndWhite(grey, around(grey, x, y, near), tones);
}

// In line art shades are chance: at the usual qualities of JPEG, from 75 on, none to 5 % as many as
// dark pixels, the most among small letters. Photographs have at least 20 %, those of black boots
// too.
bool hasShades(const QImage& grey) {
    constexpr qint64 dark_to_a_shade = 16;
    const Histogram pixels = histogramOf(grey);
    const TwoTones tones(pixels);
    const qint64 dark = std::accumulate(pixels.begin(), pixels.begin() + half, qint64{0});
    qint64 shades = tones.areFarApart() ? 0 : dark;
    for (int y = 0; y < grey.height() && shades * dark_to_a_shade < dark; ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            shades += isShade(grey, x, y, tones) ? 1 : 0;
        }
    }
    return shades * dark_to_a_shade >= dark;
}

// Eight times the size of a logo of 300 pixels, the most that labels take of one.
QSize enlarged(const QSize& size) {
    constexpr int most_times = 8;
    constexpr int longest_side = 2400; // pixels
    const int longest = std::max(size.width(), size.height());
    return size * std::clamp(longest_side / longest, 1, most_times);
}

} // namespace

std::optional<QImage> lineArt(const QImage& image) {
    if (hasColours(image)) {
        return std::nullopt;
    }
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    return hasShades(grey) ? std::nullopt : std::optional(cutAtHalf(grey, enlarged(grey.size())));
}

QImage cutAtHalf(const QImage& grey, const QSize& size) {
    constexpr int bits = 8; // to the byte, the leftmost pixel in the highest
    const QImage scaled = grey.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_Grayscale8);
    QImage cut(size, QImage::Format_Mono);
    cut.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    cut.fill(0);
    for (int y = 0; y < size.height(); ++y) {
        const uchar* const tones = scaled.constScanLine(y);
        uchar* const row = cut.scanLine(y);
        for (int x = 0; x < size.width(); ++x) {
            if (tones[x] >= half) {
                row[x / bits] |= static_cast<uchar>(1 << (bits - 1 - x % bits));
            }
        }
    }
    return cut;
}

} // namespace etiquetas
