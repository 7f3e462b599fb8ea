#include "desktop/printing/DotPage.h"

#include "desktop/printing/LineArt.h"
#include "desktop/printing/WholeDots.h"

#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace etiquetas {

namespace {

constexpr int black_bit = 0;
constexpr int white_bit = 1;

QImage blankDots(const QSize& size) {
    QImage image(size, QImage::Format_Mono);
    image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    image.fill(white_bit);
    return image;
}

QSize dotsOf(const QPageSize& size, int resolution) {
    constexpr double points_to_inch = 72;
    const QSizeF points = size.size(QPageSize::Point);
    const auto whole = [resolution](double length) {
        return static_cast<int>(std::ceil(length * resolution / points_to_inch));
    };
    return {whole(points.width()), whole(points.height())};
}

QImage dithered(const QImage& grey, const QSize& size) {
    return grey.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::DiffuseDither);
}

// What is one bit deep already keeps its shapes.
QImage oneBit(const QImage& image, const QSize& size) {
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    return image.depth() == 1 ? cutAtHalf(grey, size) : dithered(grey, size);
}

} // namespace

QImage DotPages::draw(const LabelPage& page, const QPageSize& own_size) {
    QImage image = blankDots(dotsOf(page.size.value_or(own_size), resolution_));
    QPainter painter(&image);
    for (const Mark& mark : page.marks) {
        std::visit([&](const auto& kind) { drawMark(painter, kind); }, mark);
    }
    return image;
}

double DotPages::dots(double millimetres) const {
    return millimetres * resolution_ / millimetres_per_inch;
}

int DotPages::nearestDot(double millimetres) const {
    return static_cast<int>(std::lround(dots(millimetres)));
}

QRect DotPages::nearestDots(const QRectF& place) const {
    const int left = nearestDot(place.left());
    const int top = nearestDot(place.top());
    return {left, top, nearestDot(place.right()) - left, nearestDot(place.bottom()) - top};
}

// Letters of many dots keep their shapes, as do those that the font lacks, which the toolkit takes
// from another one; those of few dots are fitted to them.
void DotPages::drawMark(QPainter& painter, const TextMark& mark) {
    constexpr double largest_fitted = 40; // dots to the em
    const double em = dots(mark.scale * mark.font.pixelSize());
    if (em > largest_fitted || !drawFitted(painter, mark, em)) {
        painter.save();
        painter.translate(dots(mark.baseline.x()), dots(mark.baseline.y()));
        painter.scale(dots(mark.scale), dots(mark.scale));
        painter.setFont(mark.font);
        painter.drawText(QPointF(), mark.text);
        painter.restore();
    }
}

// False, and nothing drawn, where the font lacks a letter. The advances are those of the unfitted
// letters, by which texts are measured.
bool DotPages::drawFitted(QPainter& painter, const TextMark& mark, double em) {
    const FittedFont& font = fittedFont(mark.font, em);
    const QList<quint32> glyphs = font.fitted.glyphIndexesForString(mark.text);
    if (glyphs.contains(0)) {
        return false;
    }
    QList<QPointF> positions;
    double x = dots(mark.baseline.x());
    const int baseline = nearestDot(mark.baseline.y());
    for (const QPointF advance : font.measured.advancesForGlyphIndexes(glyphs)) {
        positions.emplace_back(std::round(x), baseline);
        x += dots(advance.x() * mark.scale);
    }
    QGlyphRun run;
    run.setRawFont(font.fitted);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    painter.drawGlyphRun(QPointF(), run);
    return true;
}

const DotPages::FittedFont& DotPages::fittedFont(const QFont& font, double em) {
    const FontKey key{font.families().value(0), font.bold(), em};
    if (const auto known = fonts_.find(key); known != fonts_.end()) {
        return known->second;
    }
    QFont hinted = font;
    hinted.setHintingPreference(QFont::PreferFullHinting);
    hinted.setStyleStrategy(QFont::NoAntialias);
    QRawFont fitted = QRawFont::fromFont(hinted);
    fitted.setPixelSize(em);
    return fonts_.emplace(key, FittedFont{fitted, QRawFont::fromFont(font)}).first->second;
}

// A rule is as thick wherever it stands, and one dot at least.
void DotPages::drawMark(QPainter& painter, const BoxMark& mark) const {
    constexpr double thickest_rule = 1; // millimetre
    constexpr int half = 128;
    QRect box = nearestDots(mark.place);
    if (mark.place.width() < thickest_rule) {
        box.setWidth(std::max(1, nearestDot(mark.place.width())));
    }
    if (mark.place.height() < thickest_rule) {
        box.setHeight(std::max(1, nearestDot(mark.place.height())));
    }
    painter.fillRect(box, qGray(mark.colour.rgb()) < half ? Qt::black : Qt::white);
}

void DotPages::drawMark(QPainter& painter, const ImageMark& mark) {
    const QRect place = nearestDots(mark.place);
    if (place.isEmpty()) {
        return;
    }
    const ImageKey key{mark.image.cacheKey(), place.width(), place.height()};
    auto known = images_.find(key);
    if (known == images_.end()) {
        known = images_.emplace(key, oneBit(mark.image, place.size())).first;
    }
    painter.drawImage(place.topLeft(), known->second);
}

// A stamp is opaque.
void DotPages::drawMark(QPainter& painter, const BarsMark& mark) {
    const QRect whole = nearestDots(mark.place);
    painter.fillRect(whole, Qt::white);
    const std::vector<int>& edges = modulesOf(mark);
    for (int i = 0; i < mark.ink.width(); ++i) {
        if (mark.ink.pixelIndex(i, 0) == black_bit) {
            const auto module = static_cast<std::size_t>(i);
            painter.fillRect(edges[module], whole.top(), edges[module + 1] - edges[module],
                             whole.height(), Qt::black);
        }
    }
}

// The same symbol stands in the same place of many pages.
const std::vector<int>& DotPages::modulesOf(const BarsMark& mark) {
    constexpr std::size_t most_kept = 4096;
    const QRectF place = mark.inkPlace();
    const SymbolKey key{mark.symbol.cacheKey(), place.left(), place.right()};
    if (const auto known = symbols_.find(key); known != symbols_.end()) {
        return known->second;
    }
    if (symbols_.size() >= most_kept) {
        symbols_.clear();
    }
    return symbols_
        .emplace(key, modulesInDots(mark.symbol, place.left(), place.right(), resolution_))
        .first->second;
}

} // namespace etiquetas
