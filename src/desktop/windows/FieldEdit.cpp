#include "desktop/windows/FieldEdit.h"

#include "desktop/windows/Paper.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextDocument>
#include <QToolTip>

namespace etiquetas {

namespace {

// No field shows more characters; measuring a longer text would take time for nothing.
constexpr int longest_shown = 1000;

} // namespace

FieldEdit::FieldEdit(QWidget* parent) : QLineEdit(parent) {
    applyPaper();
}

void FieldEdit::showPaper(const QColor& paper, bool locked) {
    if (paper != paper_ || locked != locked_) {
        paper_ = paper;
        locked_ = locked;
        applyPaper();
    }
}

void FieldEdit::applyPaper() {
    setPalette(locked_ ? lockedPalette() : paperPalette(paper_));
}

bool FieldEdit::isTooNarrow() const {
    return fontMetrics().horizontalAdvance(text().left(longest_shown)) > textRoom().width();
}

bool FieldEdit::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isTooNarrow()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tipOf(text()), this);
        return true;
    }
    const bool taken = QLineEdit::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        applyPaper();
    }
    return taken;
}

QString FieldEdit::tipOf(const QString& text) {
    return Qt::convertFromPlainText(text.left(longest_shown), Qt::WhiteSpaceNormal);
}

void FieldEdit::paintEvent(QPaintEvent* event) {
    if (isBeingEdited() || !isTooNarrow()) {
        QLineEdit::paintEvent(event);
    } else {
        paintBeginning();
    }
}

// The room that the toolkit draws a line's text in.
QRect FieldEdit::textRoom() const {
    constexpr int text_margin = 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .marginsRemoved(textMargins())
        .adjusted(text_margin, 0, -text_margin, 0);
}

// A text that is selected as a whole is only looked at yet.
bool FieldEdit::isBeingEdited() const {
    return hasFocus() && selectedText().size() < text().size();
}

void FieldEdit::paintBeginning() {
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QRect room = textRoom();
    if (hasFocus()) {
        painter.fillRect(room.adjusted(0, 1, 0, -1), palette().highlight());
    }
    painter.setPen(palette().color(hasFocus() ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(
        room, Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(text().left(longest_shown), Qt::ElideRight, room.width()));
}

} // namespace etiquetas
