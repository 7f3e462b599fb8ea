#include "desktop/windows/DialogWindow.h"

#include "ui_MarginWindow.h"
#include "ui_ParameterWindow.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QWindow>

namespace etiquetas {

DialogWindow::DialogWindow() {
    setWindowFlags(Qt::Dialog);
    const auto* const escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, [this] { closed_(); });
}

void DialogWindow::openOver(QWidget& main) {
    if (isHidden()) {
        adjustSize();
        winId(); // makes the window that is to know its main window
        windowHandle()->setTransientParent(main.windowHandle());
        move(main.frameGeometry().center() - rect().center());
        show();
        first_field_->setFocus();
    }
    raise();
    activateWindow();
}

void DialogWindow::closeOver(QWidget& main) {
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
    startAt(*form.txtmargem1);
}

ParameterWindow::ParameterWindow() {
    Ui::ParameterWindow form;
    form.setupUi(this);
    startAt(*form.TXTPATH);
}

} // namespace etiquetas
