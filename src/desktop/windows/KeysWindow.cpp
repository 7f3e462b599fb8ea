#include "desktop/windows/KeysWindow.h"

#include "desktop/windows/FocusRing.h"
#include "desktop/windows/ManualView.h"
#include "desktop/windows/WorkbenchWindow.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <array>

namespace etiquetas {

namespace {

struct KeyHelp {
    const char* keys;
    const char* effect;
};

constexpr std::array<KeyHelp, 13> help{{
    {"Enter, ↓", "Próximo campo; num comando, Enter o executa"},
    {"↑", "Campo anterior"},
    {"Tab, Shift+Tab", "Próximo campo ou comando, ou o anterior"},
    {"F4, Alt+↓", "Abre a lista do campo"},
    {"F2", "Mostra ou esconde as opções (Adicionar, Empresa)"},
    {"F3", "Destrava ou trava a grade da etiqueta Corrugado"},
    {"F5", "Abre a pasta das últimas etiquetas gravadas em PDF"},
    {"F6", "Mostra os achados da conferência do pedido"},
    {"Alt+I", "Imprimir Etiquetas"},
    {"Alt+C", "Calibrar Etiquetas"},
    {"Alt+P", "Parâmetro de Impressão"},
    {"Alt+S", "Sair"},
    {"Esc", "Fecha a lista ou a janela aberta"},
}};

QLayout* keyTable() {
    auto* const grid = new QGridLayout;
    int row = 0;
    for (const auto& [keys, effect] : help) {
        auto* const key = new QLabel(QStringLiteral("<b>%1</b>").arg(QString::fromUtf8(keys)));
        auto* const told = new QLabel(QString::fromUtf8(effect));
        told->setWordWrap(true);
        grid->addWidget(key, row, 0, Qt::AlignRight | Qt::AlignTop);
        grid->addWidget(told, row, 1, Qt::AlignTop);
        ++row;
    }
    grid->setRowStretch(row, 1);
    return grid;
}

} // namespace

KeysWindow::KeysWindow(WorkbenchWindow& main) : QDialog(&main), main_(main) {
    constexpr int manual_share = 2; // of the room, to one of the keys
    setObjectName(QStringLiteral("KeysWindow"));
    setWindowTitle(QStringLiteral("Ajuda"));
    auto* const grid = new QGridLayout(this);
    auto* const manual = new ManualView(this);
    auto* const close = new QPushButton(QStringLiteral("&Fechar"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    grid->addLayout(keyTable(), 0, 0);
    grid->addWidget(manual, 0, 1);
    grid->addWidget(close, 1, 1, Qt::AlignRight);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, manual_share);
    new FocusRing(*this);
    manual->setFocus();
}

void KeysWindow::open() {
    constexpr QSize reference(1000, 640); // pixels at the reference font
    const WindowUnit& unit = main_.unit();
    if (!isVisible()) {
        const QSize wanted(unit.pixels(reference.width()), unit.pixels(reference.height()));
        resize(wanted.boundedTo(main_.screen()->availableSize()));
    }
    QFont font = QApplication::font();
    font.setPointSizeF(main_.unit().fontPoints());
    setFont(font);
    show();
    raise();
    activateWindow();
}

} // namespace etiquetas
