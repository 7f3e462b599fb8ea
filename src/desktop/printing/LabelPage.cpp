#include "desktop/printing/LabelPage.h"

#include "desktop/printing/ShapedTexts.h"
#include "desktop/printing/WholeDots.h"

#include <QPagedPaintDevice>

#include <numeric>

namespace etiquetas {

namespace {

double millimetresRoundedUp(int twips) {
    constexpr qint64 hundredths = 127; // of a millimetre, to 72 twips
    constexpr qint64 twips_each = 72;
    const qint64 rounded_up = (twips * hundredths + twips_each - 1) / twips_each;
    return static_cast<double>(rounded_up) / 100;
}

void drawMark(QPainter& painter, const TextMark& mark, ShapedTexts& texts) {
    const QTransform millimetres = painter.worldTransform();
    painter.translate(mark.baseline);
    painter.scale(mark.scale, mark.scale);
    texts.draw(painter, mark.font, mark.text);
    painter.setWorldTransform(millimetres);
}

void drawMark(QPainter& painter, const BoxMark& mark) {
    painter.fillRect(mark.place, mark.colour);
}

// A painter that smooths, as screens have one, looks at the nearest pixels alone: what is reduced
// to less than half would lose some.
void drawMark(QPainter& painter, const ImageMark& mark) {
    const QSize shown = painter.deviceTransform().mapRect(mark.place).toAlignedRect().size();
    const bool is_reduced = 2 * shown.width() < mark.image.width();
    if (is_reduced && painter.testRenderHint(QPainter::SmoothPixmapTransform)) {
        const QImage toned = mark.image.convertToFormat(QImage::Format_RGB32);
        painter.drawImage(mark.place,
                          toned.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        painter.drawImage(mark.place, mark.image);
    }
}

void drawMark(QPainter& painter, const BarsMark& mark) {
    if (const auto place = placeInWholeDots(mark.inkPlace(), mark.ink.width())) {
        painter.fillRect(mark.place, Qt::white);
        painter.drawImage(*place, mark.ink);
    } else {
        painter.drawImage(mark.place, mark.row);
    }
}

// What has no texts.
template <typename Other>
void drawMark(QPainter& painter, const Other& mark, const ShapedTexts& /*texts*/) {
    drawMark(painter, mark);
}

// Orientation stays portrait: a page wider than high is not turned then.
bool startPage(QPagedPaintDevice& device, const QPageSize& size, QPainter& painter) {
    device.setPageSize(size);
    return painter.isActive() ? device.newPage() : painter.begin(&device);
}

} // namespace

QPageSize labelPageSize(int width, int height) {
    return QPageSize(QSizeF(millimetresRoundedUp(width), millimetresRoundedUp(height)),
                     QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

// In whole points, as pages are, that is 283 by 113: the label has nothing in the 0.2 mm beyond.
QPageSize builtInPage() {
    return QPageSize(QSizeF(100, 40), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

std::size_t labelsOn(const LabelPages& pages) {
    return std::accumulate(
        pages.begin(), pages.end(), std::size_t{0},
        [](std::size_t sum, const LabelPage& page) { return sum + page.labels; });
}

void draw(QPainter& painter, const LabelPage& page) {
    ShapedTexts texts;
    draw(painter, page, texts);
}

void draw(QPainter& painter, const LabelPage& page, ShapedTexts& texts) {
    painter.setPen(Qt::black); // that of a window is white on a dark desktop
    for (const Mark& mark : page.marks) {
        std::visit([&](const auto& kind) { drawMark(painter, kind, texts); }, mark);
    }
}

bool drawPages(QPagedPaintDevice& device, const LabelPages& pages, const PageSizes& size_of,
               const std::function<void(std::size_t labels)>& tell) {
    QPainter painter;
    ShapedTexts texts;
    std::size_t labels = 0;
    for (const LabelPage& page : pages) {
        tell(labels);
        if (!startPage(device, size_of(page), painter)) {
            return false;
        }
        const double dots = device.logicalDpiX() / millimetres_per_inch;
        painter.setWorldTransform(QTransform::fromScale(dots, dots));
        draw(painter, page, texts);
        labels += page.labels;
    }
    return true;
}

} // namespace etiquetas
