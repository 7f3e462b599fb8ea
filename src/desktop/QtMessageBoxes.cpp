#include "desktop/QtMessageBoxes.h"

#include "desktop/QtText.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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

} // namespace

void QtMessageBoxes::standOver(QWidget* window, std::function<void()> before_box) {
    window_ = window;
    before_box_ = std::move(before_box);
}

Answer QtMessageBoxes::show(const Message& message) {
    before_box_();
    QWidget* const active = QApplication::activeWindow();
    QMessageBox box(active != nullptr ? active : window_);
    box.setIcon(iconOf(message.symbol));
    box.setWindowTitle(toQString(message.title.empty() ? default_title : message.title));
    // File names and order texts may hold anything, markup among it.
    box.setTextFormat(Qt::PlainText);
    box.setText(toQString(message.text));
    if (message.buttons == Buttons::ok) {
        box.addButton(QMessageBox::Ok);
        box.exec();
        return Answer::ok;
    }
    QPushButton* const yes = box.addButton(QMessageBox::Yes);
    QPushButton* const no = box.addButton(QMessageBox::No);
    yes->setText(QStringLiteral("&Sim"));
    no->setText(QStringLiteral("&Não"));
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Answer::yes : Answer::no;
}

} // namespace etiquetas
