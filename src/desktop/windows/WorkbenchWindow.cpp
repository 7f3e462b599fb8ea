#include "desktop/windows/WorkbenchWindow.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>

#include <initializer_list>

namespace etiquetas {

namespace {

constexpr int slots_in_row = 7;
constexpr int slot_rows = 2;

struct Cell {
    int row;
    int column;
    int columns = 1;
};

// The window keeps its shape when a field is hidden.
void keepRoom(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

QFont scaledFont(const QWidget& widget, double factor, bool bold) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

template <typename Widget>
Widget* named(const QString& name) {
    auto* const widget = new Widget;
    widget->setObjectName(name);
    keepRoom(*widget);
    return widget;
}

QComboBox* newList(const QString& name) {
    auto* const list = named<QComboBox>(name);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(nullptr);
    // The wheel must not give the focus, and by that its turns, to a list that it passes over.
    list->setFocusPolicy(Qt::StrongFocus);
    // Its width must not follow its entries: there may be many thousands.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    list->setMinimumContentsLength(8);
    list->setMaxVisibleItems(20);
    keepRoom(*list);
    return list;
}

// A field under its caption.
void addField(QGridLayout& grid, const QString& name, QWidget* widget, const Cell& cell) {
    auto* const caption = named<QLabel>(name + QStringLiteral("_caption"));
    caption->setBuddy(widget);
    grid.addWidget(caption, 2 * cell.row, cell.column, 1, cell.columns, Qt::AlignBottom);
    grid.addWidget(widget, 2 * cell.row + 1, cell.column, 1, cell.columns);
}

void addEdit(QGridLayout& grid, const QString& name, const Cell& cell) {
    addField(grid, name, named<QLineEdit>(name), cell);
}

void addList(QGridLayout& grid, const QString& name, const Cell& cell) {
    addField(grid, name, newList(name), cell);
}

QGridLayout* newGrid(QGroupBox& panel) {
    auto* const grid = new QGridLayout(&panel);
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(8);
    grid->setContentsMargins(10, 8, 10, 10);
    return grid;
}

QLabel* newLogo(const QString& name) {
    constexpr QSize room(110, 30);
    auto* const logo = named<QLabel>(name);
    logo->setFixedSize(room);
    logo->setAlignment(Qt::AlignCenter);
    return logo;
}

QGroupBox* newOrderPanel() {
    auto* const panel = named<QGroupBox>(QStringLiteral("Frame4"));
    auto* const grid = newGrid(*panel);
    addList(*grid, QStringLiteral("cmbtipo"), {0, 0});
    addEdit(*grid, QStringLiteral("txtarquivo"), {0, 1});
    auto* const banner = named<QLabel>(QStringLiteral("LBLBRISAKO"));
    banner->setFont(scaledFont(*banner, 1.8, true));
    banner->setAlignment(Qt::AlignCenter);
    banner->setMinimumWidth(150);
    grid->addWidget(banner, 0, 2, 2, 1);
    grid->addWidget(newLogo(QStringLiteral("pctlogo2")), 0, 3, 2, 1);
    grid->addWidget(newLogo(QStringLiteral("pctlogo1")), 0, 4, 2, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 2);
    return panel;
}

// Size over quantity, in two rows of seven.
QGridLayout* newSlots() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(3);
    for (int i = 0; i < slots_in_row * slot_rows; ++i) {
        const QString index = QStringLiteral("(%1)").arg(i);
        auto* const size = named<QLabel>(QStringLiteral("Label7") + index);
        auto* const quantity = named<QLineEdit>(QStringLiteral("txtnumero") + index);
        size->setAlignment(Qt::AlignCenter);
        size->setFont(scaledFont(*size, 1.5, true));
        quantity->setAlignment(Qt::AlignCenter);
        quantity->setFont(scaledFont(*quantity, 1.4, false));
        const int row = 2 * (i / slots_in_row);
        grid->addWidget(size, row, i % slots_in_row);
        grid->addWidget(quantity, row + 1, i % slots_in_row);
    }
    return grid;
}

QGridLayout* newTotals() {
    auto* const grid = new QGridLayout;
    int row = 0;
    for (const auto& [caption, name] :
         {std::pair("Label71", "TXTPARES"), std::pair("Label72", "TXTOCULTAS")}) {
        auto* const total = named<QLineEdit>(QString::fromLatin1(name));
        total->setAlignment(Qt::AlignCenter);
        total->setFont(scaledFont(*total, 1.4, true));
        total->setMaximumWidth(110);
        grid->addWidget(named<QLabel>(QString::fromLatin1(caption)), row, 1, Qt::AlignRight);
        grid->addWidget(total, row++, 2);
    }
    grid->addWidget(named<QLabel>(QStringLiteral("Label7(50)")), 0, 0);
    grid->setColumnStretch(0, 1);
    return grid;
}

QLabel* newPhotograph() {
    constexpr QSize room(230, 200);
    auto* const photograph = named<QLabel>(QStringLiteral("pctimage"));
    photograph->setFixedSize(room);
    photograph->setFrameShape(QFrame::StyledPanel);
    photograph->setAlignment(Qt::AlignCenter);
    return photograph;
}

QGroupBox* newItemPanel() {
    auto* const panel = named<QGroupBox>(QStringLiteral("Frame1"));
    auto* const grid = newGrid(*panel);
    addList(*grid, QStringLiteral("cmb_referencia"), {0, 0, 5});
    auto* const below = new QHBoxLayout;
    below->setContentsMargins(0, 8, 0, 4);
    below->setSpacing(16);
    auto* const left = new QVBoxLayout;
    left->addLayout(newSlots());
    left->addLayout(newTotals());
    left->addStretch();
    below->addLayout(left, 1);
    below->addWidget(newPhotograph(), 0, Qt::AlignTop);
    grid->addLayout(below, 2, 0, 1, 5);
    addEdit(*grid, QStringLiteral("txtdescricao"), {2, 0, 3});
    addEdit(*grid, QStringLiteral("txtcor"), {2, 3, 2});
    int column = 0;
    for (const char* const name :
         {"txtcodigo", "txtsemana", "txtbandeira", "txtpreco", "txtpromocao"}) {
        addEdit(*grid, QString::fromLatin1(name), {3, column++});
    }
    grid->setRowStretch(8, 1);
    return panel;
}

QGroupBox* newCorrugatedPanel() {
    auto* const panel = named<QGroupBox>(QStringLiteral("Frame3"));
    auto* const grid = newGrid(*panel);
    addList(*grid, QStringLiteral("cmb_referencia1"), {0, 0, 4});
    const auto addRow = [&](int row, std::initializer_list<const char*> names) {
        int column = 0;
        for (const char* const name : names) {
            addEdit(*grid, QString::fromLatin1(name), {row, column++});
        }
    };
    addRow(1, {"txtcodigo1", "txtcor1", "txtsemana1", "txtqte1"});
    addEdit(*grid, QStringLiteral("txtdescricao1"), {2, 0, 3});
    addEdit(*grid, QStringLiteral("txtprepack"), {2, 3});
    addEdit(*grid, QStringLiteral("txtgrade1"), {3, 0, 3});
    addEdit(*grid, QStringLiteral("txttotgrade"), {3, 3});
    addEdit(*grid, QStringLiteral("txtgrade2"), {4, 0, 3});
    grid->addWidget(named<QLabel>(QStringLiteral("lblean")), 8, 3, Qt::AlignBottom);
    grid->addWidget(named<QLineEdit>(QStringLiteral("txtean")), 9, 3);
    addRow(5, {"txtfornecedor1", "txtdestino1", "txtvolume"});
    addList(*grid, QStringLiteral("cmb_vol1"), {6, 0});
    addList(*grid, QStringLiteral("cmb_vol2"), {6, 1});
    grid->setRowStretch(14, 1);
    return panel;
}

QGroupBox* newOptionsPanel() {
    auto* const panel = named<QGroupBox>(QStringLiteral("Frame2"));
    auto* const grid = newGrid(*panel);
    addEdit(*grid, QStringLiteral("txtlote"), {0, 0});
    addEdit(*grid, QStringLiteral("txtcliente"), {0, 1});
    grid->setColumnStretch(1, 3);
    return panel;
}

QPushButton* newCommand(const QString& name) {
    auto* const command = named<QPushButton>(name);
    command->setAutoDefault(true); // Enter presses it
    command->setMinimumHeight(38);
    return command;
}

QGridLayout* newPrinterAndCommands() {
    auto* const grid = new QGridLayout;
    addList(*grid, QStringLiteral("CMBPRINTER"), {0, 0, 2});
    auto* const print = newCommand(QStringLiteral("cmd_printacessorio"));
    print->setFont(scaledFont(*print, 1.2, true));
    grid->addWidget(print, 0, 2, 2, 2);
    int column = 0;
    for (const char* const name : {"cmd_calibra", "cmd_parametro", "cmd_sair"}) {
        const int columns = column == 2 ? 2 : 1;
        grid->addWidget(newCommand(QString::fromLatin1(name)), 2, column++, 1, columns);
    }
    return grid;
}

// The keyboard walks from the order to the item and its quantities, and from there to the command.
void orderTabs(QWidget& window) {
    QStringList names{"cmbtipo", "txtarquivo", "cmb_referencia", "cmb_referencia1"};
    for (int i = 0; i < slots_in_row * slot_rows; ++i) {
        names << QStringLiteral("txtnumero(%1)").arg(i);
    }
    names << "TXTPARES"
          << "TXTOCULTAS"
          << "txtdescricao"
          << "txtcor"
          << "txtcodigo"
          << "txtsemana"
          << "txtbandeira"
          << "txtpreco"
          << "txtpromocao"
          << "txtcodigo1"
          << "txtcor1"
          << "txtsemana1"
          << "txtqte1"
          << "txtdescricao1"
          << "txtprepack"
          << "txtgrade1"
          << "txttotgrade"
          << "txtgrade2"
          << "txtean"
          << "txtfornecedor1"
          << "txtdestino1"
          << "txtvolume"
          << "cmb_vol1"
          << "cmb_vol2"
          << "txtlote"
          << "txtcliente"
          << "CMBPRINTER"
          << "cmd_printacessorio"
          << "cmd_calibra"
          << "cmd_parametro"
          << "cmd_sair";
    QWidget* before = nullptr;
    for (const QString& name : names) {
        auto* const widget = window.findChild<QWidget*>(name);
        if (before != nullptr) {
            QWidget::setTabOrder(before, widget);
        }
        before = widget;
    }
}

} // namespace

WorkbenchWindow::WorkbenchWindow() {
    setObjectName(QStringLiteral("FrmPadrao"));
    auto* const centre = new QWidget;
    auto* const column = new QVBoxLayout(centre);
    column->addWidget(newOrderPanel());
    // One of the two item panels shows, in the same place.
    auto* const item = new QGridLayout;
    item->addWidget(newItemPanel(), 0, 0);
    QGroupBox* const corrugated = newCorrugatedPanel();
    item->addWidget(corrugated, 0, 0);
    column->addLayout(item, 1);
    column->addWidget(newOptionsPanel());
    column->addLayout(newPrinterAndCommands());
    setCentralWidget(centre);
    statusBar()->setSizeGripEnabled(false);
    orderTabs(*this);
    // Not where the label kind is: leaving that would load the last order before another is typed.
    findChild<QLineEdit*>(QStringLiteral("txtarquivo"))->setFocus();
}

void WorkbenchWindow::tell(const QString& status, const QString& tooltip) {
    statusBar()->showMessage(status);
    statusBar()->setToolTip(tooltip);
}

void WorkbenchWindow::closeEvent(QCloseEvent* event) {
    closed_();
    QMainWindow::closeEvent(event);
}

void WorkbenchWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    resized_();
}

} // namespace etiquetas
