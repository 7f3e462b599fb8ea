#include "desktop/preview/PageView.h"

#include "desktop/preview/HeadImage.h"

#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace etiquetas {

namespace {

// Pixels.
constexpr int ruler = 26;
constexpr int border = 14;

constexpr double least_zoom = 0.1;
constexpr double most_zoom = 32;

// Some screens tell no size, or a wrong one: the resolution that windows are drawn for holds then.
double screenResolution(const QScreen& screen) {
    constexpr double least = 40; // dots to the inch
    constexpr double most = 600;
    const double told = screen.physicalDotsPerInch();
    return told >= least && told <= most ? told : screen.logicalDotsPerInch();
}

// One ruler, along a line of pixels.
struct Ruler {
    double start;  // of the page, in pixels
    double scale;  // pixels to the millimetre
    double length; // of the page, millimetres
};

// Millimetres between two numbers: the least that keeps them apart.
double numberStep(double scale) {
    constexpr double apart = 34; // pixels
    constexpr std::array<double, 7> steps{1, 2, 5, 10, 20, 50, 100};
    const auto* const step = std::find_if(steps.begin(), steps.end(),
                                          [scale](double each) { return each * scale >= apart; });
    return step == steps.end() ? steps.back() : *step;
}

// Millimetres between two marks: a tenth of the numbers' where those stay apart, else a half.
double markStep(double scale) {
    constexpr double apart = 4; // pixels
    const double numbers = numberStep(scale);
    return numbers / 10 * scale >= apart ? numbers / 10 : numbers / 2;
}

// `mark` draws one mark at a pixel, with a number or without.
template <typename Mark>
void drawRuler(const Ruler& along, Mark&& mark) {
    const double numbers = numberStep(along.scale);
    const double step = markStep(along.scale);
    const int each = static_cast<int>(std::lround(numbers / step));
    for (int i = 0; i * step <= along.length; ++i) {
        const double at = along.start + i * step * along.scale;
        mark(at, i % each == 0 ? QString::number(i * step) : QString());
    }
}

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
}

void PageView::showPage(const LabelPage* page) {
    page_ = page;
    dots_ = {};
    layOut();
}

void PageView::showDots(std::optional<int> resolution) {
    resolution_ = resolution;
    dots_ = {};
    viewport()->update();
}

void PageView::fit() {
    fits_ = true;
    layOut();
}

void PageView::zoomTo(double factor) {
    zoomAt(factor, QRectF(viewport()->rect()).center());
}

double PageView::zoom() const {
    return scale_ / trueScale();
}

// Pixels to the millimetre at true size.
double PageView::trueScale() const {
    return screenResolution(*screen()) / millimetres_per_inch;
}

double PageView::fittingScale() const {
    const QSizeF room =
        QSizeF(viewport()->size()) - QSizeF(ruler, ruler) - QSizeF(2 * border, 2 * border);
    const QSizeF page = pageSize();
    const double scale = std::min(room.width() / page.width(), room.height() / page.height());
    return std::clamp(scale, least_zoom * trueScale(), most_zoom * trueScale());
}

QSizeF PageView::pageSize() const {
    return page_ != nullptr ? sizeOf(*page_) : QSizeF(1, 1);
}

// In the middle of the view where there is room for it, on a whole pixel, so that what is drawn
// stays sharp.
QRectF PageView::pagePlace() const {
    const QSizeF size = pageSize() * scale_;
    const auto start = [](int view, double page, int scrolled) {
        const double room = view - ruler - page - 2 * border;
        return ruler + border + (room > 0 ? std::floor(room / 2) : -scrolled);
    };
    return {QPointF(start(viewport()->width(), size.width(), horizontalScrollBar()->value()),
                    start(viewport()->height(), size.height(), verticalScrollBar()->value())),
            size};
}

// What stands at the anchor stays there.
void PageView::zoomAt(double factor, const QPointF& anchor) {
    const QPointF millimetres = (anchor - pagePlace().topLeft()) / scale_;
    fits_ = false;
    scale_ = std::clamp(factor, least_zoom, most_zoom) * trueScale();
    layOut();
    const QPointF moved = pagePlace().topLeft() + millimetres * scale_ - anchor;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    static_cast<int>(std::lround(moved.x())));
    verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                  static_cast<int>(std::lround(moved.y())));
}

void PageView::layOut() {
    if (fits_) {
        scale_ = fittingScale();
    }
    const auto spread = [](QScrollBar& bar, double page, int view) {
        const int all = static_cast<int>(std::ceil(page)) + 2 * border + ruler;
        bar.setRange(0, std::max(0, all - view));
        bar.setPageStep(view);
        bar.setSingleStep(ruler);
    };
    const QSizeF size = pageSize() * scale_;
    spread(*horizontalScrollBar(), size.width(), viewport()->width());
    spread(*verticalScrollBar(), size.height(), viewport()->height());
    viewport()->update();
    emit zoomed();
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    if (page_ == nullptr) {
        return;
    }
    QPainter painter(viewport());
    painter.save();
    drawContent(painter);
    painter.restore();
    drawRulers(painter);
}

void PageView::drawContent(QPainter& painter) {
    const QRectF place = pagePlace();
    painter.fillRect(place.translated(2, 2), QColor(0, 0, 0, 60));
    painter.fillRect(place, Qt::white);
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    painter.scale(scale_, scale_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (!resolution_) {
        draw(painter, *page_);
        return;
    }
    if (dots_.isNull()) {
        dots_ = headImage(*page_, *resolution_);
    }
    // Where a dot takes pixels of its own it has sharp edges.
    const bool enlarged = scale_ > *resolution_ / millimetres_per_inch;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !enlarged);
    const double dot = millimetres_per_inch / *resolution_;
    painter.drawImage(QRectF(QPointF(), QSizeF(dots_.size()) * dot), dots_);
}

void PageView::drawRulers(QPainter& painter) const {
    const QRectF place = pagePlace();
    const QSizeF size = pageSize();
    const int width = viewport()->width();
    const int height = viewport()->height();
    constexpr int long_mark = 12;
    constexpr int short_mark = 6;
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.fillRect(0, 0, width, ruler, palette().color(QPalette::Window));
    painter.fillRect(0, 0, ruler, height, palette().color(QPalette::Window));
    painter.setClipRect(ruler, 0, width - ruler, ruler);
    drawRuler({place.left(), scale_, size.width()}, [&](double at, const QString& number) {
        const int mark = number.isEmpty() ? short_mark : long_mark;
        painter.drawLine(QPointF(at, ruler - mark), QPointF(at, ruler));
        painter.drawText(QPointF(at + 2, ruler - short_mark - 4), number);
    });
    painter.setClipRect(0, ruler, ruler, height - ruler);
    drawRuler({place.top(), scale_, size.height()}, [&](double at, const QString& number) {
        const int mark = number.isEmpty() ? short_mark : long_mark;
        painter.drawLine(QPointF(ruler - mark, at), QPointF(ruler, at));
        painter.drawText(QPointF(2, at + 10), number);
    });
    painter.setClipping(false);
    painter.fillRect(0, 0, ruler, ruler, palette().color(QPalette::Window));
    painter.drawText(QRect(0, 0, ruler, ruler), Qt::AlignCenter, QStringLiteral("mm"));
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr double doubling = 480; // eighths of a degree: four notches
    zoomAt(zoom() * std::exp2(event->angleDelta().y() / doubling), event->position());
    event->accept();
}

} // namespace etiquetas
