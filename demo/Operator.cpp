#include "demo/Operator.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest/QTest>

namespace etiquetas {

namespace {

// The part of a widget that a mouse reaches.
QWidget& clickable(QWidget& widget) {
    auto* const list = qobject_cast<QComboBox*>(&widget);
    return list != nullptr ? *list->lineEdit() : widget;
}

void settle() {
    QCoreApplication::processEvents();
}

// A window system gives the focus back to the window when a box over it closes, after some time;
// headless, nobody does. The field in the window gets the focus later still.
void bringToFront(QWidget& window) {
    const auto has_focus = [&window] {
        const QWidget* const focused = QApplication::focusWidget();
        return window.isActiveWindow() && focused != nullptr && focused->window() == &window;
    };
    if (!has_focus()) {
        window.activateWindow();
        if (!QTest::qWaitFor(has_focus)) {
            qWarning("The window does not come to the front.");
        }
        settle();
    }
}

} // namespace

Operator::Operator() {
    constexpr int glance_ms = 5;
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { answer(); });
    watch_.start(glance_ms);
}

void Operator::sitAt(Desktop& desktop) {
    desktop_ = &desktop;
    window_ = &desktop.window();
    bringToFront(*window_);
}

void Operator::turnTo(const QString& window) {
    window_ = &desktop_->window();
    for (DialogWindow* const dialog : desktop_->dialogs()) {
        if (dialog->objectName() == window) {
            window_ = dialog;
        }
    }
    bringToFront(*window_);
    settle();
}

// In the open list, for the arrow keys walk over some lists without changing them.
void Operator::choose(const QString& list, int position) const {
    click(list);
    auto& box = widget<QComboBox>(list);
    if (box.count() > position) {
        box.showPopup();
        box.view()->setCurrentIndex(box.model()->index(position, box.modelColumn()));
        QTest::keyClick(box.view(), Qt::Key_Return);
        settle();
    }
}

void Operator::type(const QString& field, const QString& text) {
    click(field);
    press(Qt::Key_End);
    press(Qt::Key_Home, Qt::ShiftModifier);
    keys(text);
}

void Operator::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    bringToFront(*window_);
    QTest::keyClick(&focusedWidget(), key, modifiers);
    settle();
}

void Operator::pressMnemonic(Qt::Key letter) {
    constexpr int letting_go_ms = 200; // the toolkit shows a command pressed for 100 ms
    press(letter, Qt::AltModifier);
    QTest::qWait(letting_go_ms);
}

void Operator::keys(const QString& text) {
    bringToFront(*window_);
    QTest::keyClicks(&focusedWidget(), text);
    settle();
}

void Operator::click(const QString& name) const {
    bringToFront(*window_);
    QTest::mouseClick(&clickable(widget<QWidget>(name)), Qt::LeftButton);
    settle();
}

void Operator::doubleClick(const QString& name) const {
    bringToFront(*window_);
    QTest::mouseDClick(&clickable(widget<QWidget>(name)), Qt::LeftButton, Qt::NoModifier,
                       QPoint(4, 4));
    settle();
}

QString Operator::focused() const {
    return focusedWidget().objectName();
}

QString Operator::text(const QString& name) const {
    const auto& found = widget<QWidget>(name);
    if (const auto* const list = qobject_cast<const QComboBox*>(&found)) {
        return list->currentText();
    }
    if (const auto* const edit = qobject_cast<const QLineEdit*>(&found)) {
        return edit->text();
    }
    const auto* const label = qobject_cast<const QLabel*>(&found);
    return label != nullptr ? label->text() : QString();
}

void Operator::answer() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
        answer(*box);
    } else if (auto* const picker = qobject_cast<QFileDialog*>(modal)) {
        answer(*picker);
    }
}

void Operator::answer(QMessageBox& box) {
    look_();
    boxes_.push_back({box.windowTitle(), box.text()});
    QPushButton* const proposed = box.defaultButton();
    proposed != nullptr ? proposed->click() : box.buttons().first()->click();
}

void Operator::answer(QFileDialog& picker) const {
    if (picked_.isEmpty()) {
        picker.reject();
    } else {
        picker.setDirectory(picked_);
        picker.findChild<QLineEdit*>()->setText(picked_);
        static_cast<QDialog&>(picker).done(QDialog::Accepted);
    }
}

QWidget& Operator::focusedWidget() const {
    QWidget* const focused = window_->focusWidget();
    return focused != nullptr ? *focused : *window_;
}

} // namespace etiquetas
