#include "desktop/windows/KeysWindow.h"

#include "desktop/windows/FocusRing.h"
#include "desktop/windows/WorkbenchWindow.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

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

} // namespace

KeysWindow::KeysWindow(WorkbenchWindow& main) : QDialog(&main), main_(main) {
    setObjectName(QStringLiteral("KeysWindow"));
    setWindowTitle(QStringLiteral("Teclas"));
    auto* const grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    int row = 0;
    for (const auto& [keys, effect] : help) {
        auto* const key = new QLabel(QStringLiteral("<b>%1</b>").arg(QString::fromUtf8(keys)));
        grid->addWidget(key, row, 0, Qt::AlignRight);
        grid->addWidget(new QLabel(QString::fromUtf8(effect)), row, 1);
        ++row;
    }
    auto* const close = new QPushButton(QStringLiteral("&Fechar"));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    grid->addWidget(close, row, 1, Qt::AlignRight);
    new FocusRing(*this);
}

void KeysWindow::open() {
    QFont font = QApplication::font();
    font.setPointSizeF(main_.unit().fontPoints());
    setFont(font);
    show();
    raise();
    activateWindow();
}

} // namespace etiquetas
