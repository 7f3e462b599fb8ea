#include "desktop/windows/DialogWindow.h"

#include "desktop/windows/FocusRing.h"
#include "desktop/windows/WorkbenchWindow.h"
#include "ui_MarginWindow.h"
#include "ui_ParameterWindow.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace etiquetas {

namespace {

// The toolkit takes a window of this base for a part of another one.
QAccessibleInterface* dialogForReaders(const QString& /*kind*/, QObject* object) {
    auto* const dialog = qobject_cast<DialogWindow*>(object);
    return dialog != nullptr ? new QAccessibleWidget(dialog, QAccessible::Dialog) : nullptr;
}

} // namespace

DialogWindow::DialogWindow() {
    QAccessible::installFactory(dialogForReaders);
    setWindowFlags(Qt::Dialog);
    const auto* const escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, [this] { closed_(); });
}

void DialogWindow::complete(QWidget& first_field) {
    first_field_ = &first_field;
    lengths_.emplace(*this);
    new FocusRing(*this);
}

void DialogWindow::openOver(WorkbenchWindow& main) {
    if (isHidden()) {
        followUnit(main);
        winId(); // makes the window that is to know its main window
        windowHandle()->setTransientParent(main.windowHandle());
        standOver(main);
        show();
        first_field_->setFocus();
    }
    raise();
    activateWindow();
}

void DialogWindow::followUnit(const WorkbenchWindow& main) {
    lengths_->show(main.unit(), QApplication::font());
    layout()->activate();
    adjustSize();
    if (!std::exchange(follows_, true)) {
        connect(&main, &WorkbenchWindow::unitChanged, this, [this, &main] { followUnit(main); });
    }
}

// In the middle of the main window, and wholly on its screen.
void DialogWindow::standOver(const WorkbenchWindow& main) {
    const QRect screen = main.screen()->availableGeometry();
    const QPoint place = main.frameGeometry().center() - rect().center();
    move(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - width())),
         std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() - height())));
}

void DialogWindow::closeOver(WorkbenchWindow& main) {
    hide();
    main.activateWindow();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    closed_();
}

MarginWindow::MarginWindow(const QString& name) {
    Ui::MarginWindow form;
    form.setupUi(this);
    setObjectName(name);
    complete(*form.txtmargem1);
}

ParameterWindow::ParameterWindow() {
    Ui::ParameterWindow form;
    form.setupUi(this);
    complete(*form.TXTPATH);
}

} // namespace etiquetas
