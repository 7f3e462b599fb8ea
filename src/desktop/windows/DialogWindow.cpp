#include "desktop/windows/DialogWindow.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QWindow>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

template <typename Widget>
Widget* named(const QString& name) {
    auto* const widget = new Widget;
    widget->setObjectName(name);
    return widget;
}

QPushButton* newCommand(const QString& name) {
    constexpr int height = 34;
    auto* const command = named<QPushButton>(name);
    command->setAutoDefault(true); // Enter presses it
    command->setMinimumHeight(height);
    return command;
}

QLineEdit* newMargin(const QString& name) {
    constexpr int width = 130;
    auto* const margin = named<QLineEdit>(name);
    margin->setAlignment(Qt::AlignCenter);
    margin->setMinimumWidth(width);
    return margin;
}

QGroupBox* newFormatsPanel() {
    auto* const panel = named<QGroupBox>(u"Frame5"_s);
    auto* const column = new QVBoxLayout;
    for (const char* const name : {"Label7", "Label8", "Label9", "Label10"}) {
        column->addWidget(named<QLabel>(QString::fromLatin1(name)));
    }
    panel->setLayout(column);
    return panel;
}

// A row of commands under all else, each as wide as the others.
QHBoxLayout* commandRow(std::initializer_list<const char*> names) {
    auto* const row = new QHBoxLayout;
    for (const char* const name : names) {
        row->addWidget(newCommand(QString::fromLatin1(name)), 1);
    }
    return row;
}

} // namespace

DialogWindow::DialogWindow(const QString& name) {
    setObjectName(name);
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
        findChild<QLineEdit*>()->setFocus();
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

// Columns of labels over their margins: the default, and below it the new value.
MarginWindow::MarginWindow(const QString& name) : DialogWindow(name) {
    auto* const column = new QVBoxLayout(this);
    auto* const frame = named<QGroupBox>(u"Frame1"_s);
    auto* const grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(12);
    grid->addWidget(named<QLabel>(u"Label1"_s), 1, 0);
    grid->addWidget(named<QLabel>(u"Label5"_s), 2, 0);
    grid->addWidget(named<QLabel>(u"txtmargem1_caption"_s), 0, 1, Qt::AlignCenter);
    grid->addWidget(named<QLabel>(u"txtmargem2_caption"_s), 0, 2, Qt::AlignCenter);
    grid->addWidget(named<QLabel>(u"Label6"_s), 0, 3, Qt::AlignCenter);
    grid->addWidget(named<QLabel>(u"Label2"_s), 1, 1, Qt::AlignCenter);
    grid->addWidget(named<QLabel>(u"Label3"_s), 1, 2, Qt::AlignCenter);
    grid->addWidget(newMargin(u"txtmargem1"_s), 2, 1);
    grid->addWidget(newMargin(u"txtmargem2"_s), 2, 2);
    grid->addWidget(newMargin(u"txtmargemsuperior"_s), 2, 3);
    column->addWidget(frame);
    column->addLayout(commandRow({"cmd_gravar", "cmd_teste", "cmd_exit"}));
    column->setSizeConstraint(QLayout::SetFixedSize);
}

ParameterWindow::ParameterWindow() : DialogWindow(u"FrmParametroImpressora"_s) {
    constexpr int path_width = 420;
    auto* const column = new QVBoxLayout(this);
    column->addWidget(named<QLabel>(u"Label6"_s));
    auto* const folder = new QHBoxLayout;
    auto* const path = named<QLineEdit>(u"TXTPATH"_s);
    path->setMinimumWidth(path_width);
    auto* const browse = named<QPushButton>(u"CMD_GETPATH"_s);
    browse->setAutoDefault(true);
    folder->addWidget(path, 1);
    folder->addWidget(browse);
    column->addLayout(folder);
    column->addWidget(newFormatsPanel());
    column->addLayout(commandRow({"cmd_grava", "cmd_sair"}));
    column->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace etiquetas
