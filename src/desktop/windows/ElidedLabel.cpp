#include "desktop/windows/ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace etiquetas {

void ElidedLabel::setText(const QString& text) {
    QLabel::setText(text);
    setToolTip(text.toHtmlEscaped());
}

// The frame and ground of its style, and the text over them.
void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    const QRect place = contentsRect();
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width()),
                          foregroundRole());
}

} // namespace etiquetas
