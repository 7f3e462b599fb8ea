#include "desktop/windows/FindingsWindow.h"

#include "desktop/machine/QtText.h"
#include "desktop/windows/FocusRing.h"
#include "desktop/windows/WorkbenchWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

enum Column { line_column, item_column, text_column, columns };

// In pixels at the reference font.
constexpr QSize usual_size(640, 320);

QString countOf(const std::vector<Finding>& findings) {
    switch (findings.size()) {
    case 0:
        return u"nada em que se tropece"_s;
    case 1:
        return u"1 achado"_s;
    default:
        return u"%1 achados"_s.arg(findings.size());
    }
}

} // namespace

FindingsWindow::FindingsWindow(WorkbenchWindow& main) : QDialog(&main), main_(main) {
    setObjectName(u"FindingsWindow"_s);
    setWindowTitle(u"Conferência do pedido"_s);
    auto* const rows = new QVBoxLayout(this);
    heading_ = new QLabel;
    rows->addWidget(heading_);
    table_ = new QTableWidget(0, columns);
    table_->setObjectName(u"findings"_s);
    table_->setAccessibleName(u"Achados do pedido"_s);
    table_->setHorizontalHeaderLabels({u"Linha"_s, u"Item"_s, u"Achado"_s});
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    rows->addWidget(table_);
    auto* const close = new QPushButton(u"&Fechar"_s);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    rows->addWidget(close, 0, Qt::AlignRight);
    new FocusRing(*this);
}

void FindingsWindow::show(const QString& file, const std::vector<Finding>& findings) {
    QFont font = QApplication::font();
    font.setPointSizeF(main_.unit().fontPoints());
    setFont(font);
    if (!isVisible()) {
        resize(main_.unit().pixels(usual_size.width()), main_.unit().pixels(usual_size.height()));
    }
    heading_->setText(file.isEmpty() ? u"Nenhum pedido carregado."_s
                                     : u"%1: %2"_s.arg(file, countOf(findings)));
    list(findings);
    QDialog::show();
    raise();
    activateWindow();
}

void FindingsWindow::list(const std::vector<Finding>& findings) {
    table_->setRowCount(static_cast<int>(findings.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const Finding& finding = findings[static_cast<std::size_t>(row)];
        const QString line = finding.line == 0 ? QString() : QString::number(finding.line);
        table_->setItem(row, line_column, new QTableWidgetItem(line));
        table_->setItem(row, item_column, new QTableWidgetItem(toQString(finding.item)));
        table_->setItem(row, text_column, new QTableWidgetItem(toQString(finding.text)));
    }
    table_->resizeColumnsToContents();
    table_->setCurrentCell(0, 0);
}

} // namespace etiquetas
