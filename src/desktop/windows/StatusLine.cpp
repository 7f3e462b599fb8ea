#include "desktop/windows/StatusLine.h"

#include "desktop/windows/ElidedLabel.h"
#include "ui_StatusLine.h"

#include <QFileInfo>
#include <QLayout>
#include <QStyle>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(StatusMood mood) {
    switch (mood) {
    case StatusMood::done:
        return u"done"_s;
    case StatusMood::warning:
        return u"warning"_s;
    case StatusMood::failed:
        return u"failed"_s;
    case StatusMood::plain:
        break;
    }
    return u"plain"_s;
}

// A style sheet looks at a property only when it is put on.
void setMood(QWidget& widget, StatusMood mood) {
    widget.setProperty("mood", nameOf(mood));
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

} // namespace

StatusLine::StatusLine() {
    Ui::StatusLine form;
    form.setupUi(this);
    file_ = form.status_file;
    order_ = form.status_order;
    happened_ = form.status_happened;
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
    layout()->activate(); // at once, so that no text is cut until the next event
}

} // namespace etiquetas
