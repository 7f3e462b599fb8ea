#include "desktop/printing/LabelPage.h"

namespace etiquetas {

namespace {

double millimetresRoundedUp(int twips) {
    constexpr qint64 hundredths = 127; // of a millimetre, to 72 twips
    constexpr qint64 twips_each = 72;
    const qint64 rounded_up = (twips * hundredths + twips_each - 1) / twips_each;
    return static_cast<double>(rounded_up) / 100;
}

void drawMark(QPainter& painter, const TextMark& mark) {
    const QTransform millimetres = painter.worldTransform();
    painter.translate(mark.baseline);
    painter.scale(mark.scale, mark.scale);
    painter.setFont(mark.font);
    painter.drawText(QPointF(), mark.text);
    painter.setWorldTransform(millimetres);
}

void drawMark(QPainter& painter, const BoxMark& mark) {
    painter.fillRect(mark.place, mark.colour);
}

void drawMark(QPainter& painter, const ImageMark& mark) {
    painter.drawImage(mark.place, mark.image);
}

} // namespace

QPageSize labelPageSize(int width, int height) {
    return QPageSize(QSizeF(millimetresRoundedUp(width), millimetresRoundedUp(height)),
                     QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

void draw(QPainter& painter, const Mark& mark) {
    std::visit([&painter](const auto& kind) { drawMark(painter, kind); }, mark);
}

} // namespace etiquetas
