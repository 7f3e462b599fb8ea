#include "desktop/windows/StatusLine.h"

#include "desktop/windows/ElidedLabel.h"
#include "ui_StatusLine.h"

#include <QFileInfo>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// How a mood looks: its ground and its ink, alike on light and dark desktops.
struct MoodLook {
    QString name;
    QColor ground; // none for that of the desktop
    QColor ink;
};

MoodLook lookOf(StatusMood mood) {
    switch (mood) {
    case StatusMood::done:
        return {u"done"_s, QColor(0xD7, 0xEF, 0xDC), QColor(0x0B, 0x4F, 0x1D)};
    case StatusMood::warning:
        return {u"warning"_s, QColor(0xFD, 0xF0, 0xC4), QColor(0x5C, 0x44, 0x00)};
    case StatusMood::failed:
        return {u"failed"_s, QColor(0xB3, 0x26, 0x1E), Qt::white};
    case StatusMood::plain:
        break;
    }
    return {u"plain"_s, {}, {}};
}

// A style sheet would keep the label from following the window's font.
void setMood(QWidget& widget, StatusMood mood) {
    const MoodLook look = lookOf(mood);
    QPalette palette;
    if (look.ground.isValid()) {
        palette.setColor(QPalette::Window, look.ground);
        palette.setColor(QPalette::WindowText, look.ink);
    }
    QFont font; // what it leaves open is the window's
    if (mood == StatusMood::failed) {
        font.setBold(true);
    }
    widget.setPalette(palette);
    widget.setFont(font);
    widget.setAutoFillBackground(look.ground.isValid());
    widget.setProperty("mood", look.name);
}

} // namespace

StatusLine::StatusLine() {
    Ui::StatusLine form;
    form.setupUi(this);
    file_ = form.status_file;
    order_ = form.status_order;
    happened_ = form.status_happened;
    constexpr QMargins around_text(6, 2, 6, 2);
    happened_->setContentsMargins(around_text);
    open_pdf_ = form.open_pdf;
    open_folder_ = form.open_folder;
    connect(open_pdf_, &QPushButton::clicked, this, [this] { open_(shown_.pdf); });
    connect(open_folder_, &QPushButton::clicked, this,
            [this] { open_(QFileInfo(shown_.pdf).absolutePath()); });
    tell({.order = u" "_s, .mood = StatusMood::done}); // unlike any that is told first
    tell({});
}

void StatusLine::tell(const StatusText& text) {
    if (text == shown_) {
        return;
    }
    shown_ = text;
    file_->setText(text.file);
    file_->setVisible(!text.file.isEmpty());
    order_->setText(text.order);
    happened_->setText(text.happened);
    setMood(*happened_, text.mood);
    open_pdf_->setHidden(text.pdf.isEmpty());
    open_folder_->setHidden(text.pdf.isEmpty());
}

} // namespace etiquetas
