#include "desktop/windows/QtMessageBoxes.h"

#include "desktop/machine/QtText.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>

#include <utility>

namespace etiquetas {

namespace {

QMessageBox::Icon iconOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::stop:
        return QMessageBox::Critical;
    case Symbol::question:
        return QMessageBox::Question;
    case Symbol::exclamation:
        return QMessageBox::Warning;
    case Symbol::none:
        break;
    }
    return QMessageBox::NoIcon;
}

// The text under the question has no format of its own: what looks like markup must not act as
// such.
QString plain(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

// The key that brought a box up, and is still held down, must not answer it.
class HeldKeys final : public QObject {
  public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat();
    }
};

} // namespace

void QtMessageBoxes::standOver(std::function<QWidget*()> window, std::function<void()> before_box,
                               std::function<void()> after_box) {
    window_ = std::move(window);
    before_box_ = std::move(before_box);
    after_box_ = std::move(after_box);
}

Answer QtMessageBoxes::show(const Message& message) {
    before_box_();
    QMessageBox box(window_());
    box.setIcon(iconOf(message.symbol));
    box.setWindowTitle(toQString(message.title.empty() ? default_title : message.title));
    // File names and order texts may hold anything, markup among it.
    box.setTextFormat(Qt::PlainText);
    box.setText(toQString(message.text));
    if (message.buttons == Buttons::ok) {
        box.addButton(QMessageBox::Ok);
        ask(box);
        return Answer::ok;
    }
    QPushButton* const yes = box.addButton(QMessageBox::Yes);
    QPushButton* const no = box.addButton(QMessageBox::No);
    yes->setText(QStringLiteral("&Sim"));
    no->setText(QStringLiteral("&Não"));
    if (looks_(message)) {
        box.setWindowModality(Qt::WindowModal);
    }
    const QString doubt = doubt_(message);
    box.setInformativeText(plain(doubt));
    box.setDefaultButton(doubt.isEmpty() ? yes : no);
    box.setEscapeButton(no);
    ask(box);
    return box.clickedButton() == yes ? Answer::yes : Answer::no;
}

void QtMessageBoxes::ask(QMessageBox& box) {
    HeldKeys held;
    box.installEventFilter(&held);
    for (QWidget* const part : box.findChildren<QWidget*>()) {
        part->installEventFilter(&held);
    }
    box.exec();
    after_box_();
}

} // namespace etiquetas
