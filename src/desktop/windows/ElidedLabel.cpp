#include "desktop/windows/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace etiquetas {

void ElidedLabel::setText(const QString& text) {
    QLabel::setText(text);
    setToolTip(text.toHtmlEscaped());
}

// The toolkit keeps the height of a label without text from before a change of the font.
QSize ElidedLabel::sizeHint() const {
    const QMargins around = contentsMargins();
    return {QLabel::sizeHint().width(),
            fontMetrics().lineSpacing() + around.top() + around.bottom()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect place = contentsRect();
    style()->drawItemText(&painter, place, static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width()),
                          foregroundRole());
}

} // namespace etiquetas
