// Before the other decoder, whose macros its header does not bear.
// clang-format off
#include <zbar.h>
// clang-format on

#include "Scan.h"

#include <ZXing/ReadBarcode.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace etiquetas::measure {

namespace {

constexpr int pixels_to_dot = 4;

QImage turned(const QImage& grey) {
    const int width = grey.width();
    QImage result(grey.height(), width, QImage::Format_Grayscale8);
    uchar* const first = result.bits();
    const qsizetype line = result.bytesPerLine();
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* const row = grey.constScanLine(y);
        for (int x = 0; x < width; ++x) {
            first[x * line + y] = row[x];
        }
    }
    return result;
}

QImage movedRows(const QImage& grey, int pixels) {
    QImage result = grey;
    const int reach = std::abs(pixels);
    const int width = grey.width();
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* const row = grey.constScanLine(y);
        uchar* const moved = result.scanLine(y);
        for (int x = 0; x < width; ++x) {
            const auto [darkest, lightest] = std::minmax_element(
                row + std::max(0, x - reach), row + std::min(width, x + reach + 1));
            moved[x] = pixels > 0 ? *darkest : *lightest;
        }
    }
    return result;
}

// Moves every edge of the ink outwards by whole pixels, or inwards where they are negative.
QImage moved(const QImage& grey, int pixels) {
    return turned(movedRows(turned(movedRows(grey, pixels)), pixels));
}

std::vector<float> bell(double deviation) {
    const int reach = static_cast<int>(std::ceil(3 * deviation));
    std::vector<float> weights;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(static_cast<float>(std::exp(-i * i / (2 * deviation * deviation))));
    }
    const float sum = std::accumulate(weights.begin(), weights.end(), 0.0F);
    std::transform(weights.begin(), weights.end(), weights.begin(),
                   [sum](float weight) { return weight / sum; });
    return weights;
}

// Weight by weight, which compilers make vectors of.
QImage blurredRows(const QImage& grey, const std::vector<float>& weights) {
    const auto width = static_cast<std::size_t>(grey.width());
    const std::size_t reach = weights.size() / 2;
    QImage result = grey;
    std::vector<float> padded(width + 2 * reach);
    std::vector<float> tones(width);
    for (int y = 0; y < grey.height(); ++y) {
        const uchar* const row = grey.constScanLine(y);
        std::fill_n(padded.begin(), reach, row[0]);
        std::copy_n(row, width, padded.data() + reach);
        std::fill_n(padded.data() + reach + width, reach, row[width - 1]);
        std::fill(tones.begin(), tones.end(), 0.5F); // rounds
        for (std::size_t i = 0; i < weights.size(); ++i) {
            for (std::size_t x = 0; x < width; ++x) {
                tones[x] += weights[i] * padded[x + i];
            }
        }
        std::transform(tones.begin(), tones.end(), result.scanLine(y),
                       [](float tone) { return static_cast<uchar>(tone); });
    }
    return result;
}

QImage blurred(const QImage& grey, double deviation) {
    const std::vector<float> weights = bell(deviation);
    return turned(blurredRows(turned(blurredRows(grey, weights)), weights));
}

// Where a row changes between paper and ink, from `left` to `right`, pixels.
std::vector<double> edgesOf(const QImage& grey, int y, double left, double right) {
    const uchar* const row = grey.constScanLine(y);
    const auto [darkest, lightest] = std::minmax_element(row, row + grey.width());
    const double threshold = (*darkest + *lightest) / 2.0;
    std::vector<double> edges;
    for (int x = 1; x < grey.width(); ++x) {
        if ((row[x - 1] < threshold) != (row[x] < threshold) && x >= left && x <= right) {
            edges.push_back(x - 0.5 + (threshold - row[x - 1]) / (row[x] - row[x - 1]));
        }
    }
    return edges;
}

// Of 1, where edges stand in their places, down to 0, where a digit is about to become another.
double digitDecodability(const std::vector<double>& edges, std::size_t first, bool left_half) {
    const auto width = [&](std::size_t from, std::size_t to) {
        return edges[first + to] - edges[first + from];
    };
    const double module = width(0, 4) / 7;
    constexpr double half = 0.5; // module, from a distance to the limit of the next one
    double worst = 1;
    for (const double distance : {width(0, 2) / module, width(1, 3) / module}) {
        worst = std::min(worst, 1 - std::abs(distance - std::round(distance)) / half);
    }
    // Digits of like distances of 3 and 4 modules, 1 and 7 or 2 and 8, are told by their bars: 3 or
    // 5 modules in some sets, 4 or 2 in the others, with the limit between the two.
    const double bars =
        (left_half ? width(1, 2) + width(3, 4) : width(0, 1) + width(2, 3)) / module;
    const auto shares = [&](std::size_t from, std::size_t to) {
        const long modules = std::lround(width(from, to) / module);
        return modules == 3 || modules == 4;
    };
    if (shares(0, 2) && shares(1, 3)) {
        const double limit = std::lround(bars) % 2 == 0 ? 3 : 4;
        worst = std::min(worst, std::abs(bars - limit));
    }
    return std::max(0.0, worst);
}

std::optional<double> scanDecodability(const std::vector<double>& edges) {
    constexpr std::size_t edges_of_symbol = 60;
    constexpr std::array<std::size_t, 12> digits{3, 7, 11, 15, 19, 23, 32, 36, 40, 44, 48, 52};
    if (edges.size() != edges_of_symbol) {
        return std::nullopt;
    }
    double worst = 1;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        worst = std::min(worst, digitDecodability(edges, digits.at(i), i < 6));
    }
    return worst;
}

} // namespace

QImage onPaper(const QImage& dots, const Print& print) {
    QImage grey =
        dots.convertToFormat(QImage::Format_Grayscale8).scaled(dots.size() * pixels_to_dot);
    if (print.growth != 0) {
        grey = moved(grey, static_cast<int>(std::lround(print.growth / 2 * pixels_to_dot)));
    }
    return print.blur > 0 ? blurred(grey, print.blur * pixels_to_dot) : grey;
}

bool zbarReads(const QImage& grey, const QString& text) {
    const QImage packed = grey.copy();
    QByteArray tones;
    for (int y = 0; y < packed.height(); ++y) {
        tones.append(reinterpret_cast<const char*>(packed.constScanLine(y)), packed.width());
    }
    zbar::ImageScanner scanner;
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
    scanner.set_config(zbar::ZBAR_EAN13, zbar::ZBAR_CFG_ENABLE, 1);
    scanner.set_config(zbar::ZBAR_CODE39, zbar::ZBAR_CFG_ENABLE, 1);
    zbar::Image image(static_cast<unsigned>(packed.width()), static_cast<unsigned>(packed.height()),
                      "Y800", tones.constData(), static_cast<unsigned long>(tones.size()));
    scanner.scan(image);
    return std::any_of(image.symbol_begin(), image.symbol_end(),
                       [&text](const zbar::Symbol& symbol) {
                           return QString::fromStdString(symbol.get_data()) == text;
                       });
}

// By the decoder's own threshold, or else by that of ISO/IEC 15416, half between paper and ink.
bool zxingReads(const QImage& grey, const QString& text) {
    const ZXing::ImageView view(grey.constBits(), grey.width(), grey.height(),
                                ZXing::ImageFormat::Lum, static_cast<int>(grey.bytesPerLine()));
    const auto reads = [&](ZXing::Binarizer binarizer) {
        const auto found = ZXing::ReadBarcode(
            view, ZXing::DecodeHints()
                      .setTryHarder(true)
                      .setTryRotate(false)
                      .setBinarizer(binarizer)
                      .setFormats(ZXing::BarcodeFormat::EAN13 | ZXing::BarcodeFormat::Code39));
        return QString::fromStdWString(found.text()) == text;
    };
    return reads(ZXing::Binarizer::LocalAverage) || reads(ZXing::Binarizer::FixedThreshold);
}

std::optional<double> eanDecodability(const QImage& grey, const QRectF& bars) {
    constexpr int scans = 10;
    double sum = 0;
    int clear = 0;
    for (int i = 0; i < scans; ++i) {
        const double row = bars.top() + bars.height() * (2 * i + 1) / (2 * scans);
        if (const auto scan = scanDecodability(edgesOf(grey, static_cast<int>(row * pixels_to_dot),
                                                       bars.left() * pixels_to_dot,
                                                       bars.right() * pixels_to_dot))) {
            sum += *scan;
            ++clear;
        }
    }
    return clear > 0 ? std::optional(sum / clear) : std::nullopt;
}

} // namespace etiquetas::measure
