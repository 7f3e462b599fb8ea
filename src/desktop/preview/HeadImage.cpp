#include "desktop/preview/HeadImage.h"

#include <QPainter>

#include <cmath>

namespace etiquetas {

QSizeF sizeOf(const LabelPage& page) {
    return page.size.value_or(builtInPage()).size(QPageSize::Millimeter);
}

QImage headImage(const LabelPage& page, int resolution) {
    const double dots = resolution / millimetres_per_inch;
    const QSizeF size = sizeOf(page) * dots;
    QImage image(static_cast<int>(std::lround(size.width())),
                 static_cast<int>(std::lround(size.height())), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(dots, dots);
    draw(painter, page);
    painter.end();
    return image.convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::ThresholdDither);
}

} // namespace etiquetas
