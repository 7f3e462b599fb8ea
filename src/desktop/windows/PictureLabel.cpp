#include "desktop/windows/PictureLabel.h"

#include "desktop/windows/Paper.h"

#include <QPainter>

namespace etiquetas {

void PictureLabel::setStanding(Standing standing) {
    if (standing != standing_) {
        standing_ = standing;
        update();
    }
}

void PictureLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (!pixmap(Qt::ReturnByValue).isNull()) {
        constexpr double faded = 0.35;
        painter.setOpacity(standing_ == Standing::faded ? faded : 1);
        paintPaper(painter);
        paintPicture(painter);
        painter.setOpacity(1);
    }
    drawFrame(&painter);
}

// Pictures have no transparent parts: white paper around one stands out in a dark theme only.
void PictureLabel::paintPaper(QPainter& painter) const {
    constexpr int mark_width = 2;
    painter.fillRect(contentsRect(), Qt::white);
    if (standing_ == Standing::marked) {
        painter.setPen(QPen(markColour(), mark_width));
        painter.drawRect(contentsRect().adjusted(1, 1, -1, -1));
    }
}

void PictureLabel::paintPicture(QPainter& painter) const {
    constexpr int edge = 3;
    const QPixmap whole = pixmap(Qt::ReturnByValue);
    const QRect room = contentsRect().adjusted(edge, edge, -edge, -edge);
    const double dots = devicePixelRatioF();
    QPixmap shown = whole.scaled((QSizeF(room.size()) * dots).toSize(), Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
    shown.setDevicePixelRatio(dots);
    const QSizeF size = shown.deviceIndependentSize();
    painter.drawPixmap(QPointF(room.x() + (room.width() - size.width()) / 2,
                               room.y() + (room.height() - size.height()) / 2),
                       shown);
}

} // namespace etiquetas
