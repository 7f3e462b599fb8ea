#include "desktop/windows/FocusRing.h"

#include "desktop/windows/Paper.h"

#include <QApplication>
#include <QPainter>

namespace etiquetas {

FocusRing::FocusRing(QWidget& window) : QFocusFrame(&window) {
    connect(qApp, &QApplication::focusChanged, this,
            [this, &window](QWidget* /*before*/, QWidget* now) {
                const bool inside = now != nullptr && now->window() == &window;
                setWidget(inside && now != &window ? now : nullptr);
            });
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    constexpr double width = 2;
    constexpr double roundness = 3;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(markColour(), width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), roundness, roundness);
}

} // namespace etiquetas
