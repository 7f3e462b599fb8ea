#include "desktop/preview/PreviewWindow.h"

#include "ui_PreviewWindow.h"

#include <QFileDialog>
#include <QLocale>
#include <QMenu>
#include <QShortcut>

#include <algorithm>
#include <cmath>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr double zoom_step = 1.25;

QString counted(std::size_t count, const QString& one, const QString& many) {
    const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
    return brazil.toString(static_cast<qulonglong>(count)) + u' ' + (count == 1 ? one : many);
}

} // namespace

PreviewWindow::PreviewWindow()
    : form_(std::make_unique<Ui::PreviewWindow>()), printer_menu_(new QMenu(this)) {
    form_->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating); // the keyboard stays where the operator works
    connectPages();
    connectZoom();
    form_->dots->addItem(u"Desenho"_s);
    for (const int resolution : {203, 300, 600}) {
        form_->dots->addItem(u"%1 dpi"_s.arg(resolution), resolution);
    }
    connect(form_->dots, &QComboBox::currentIndexChanged, this, [this] {
        const QVariant dots = form_->dots->currentData();
        form_->page_view->showDots(dots.isValid() ? std::optional(dots.toInt()) : std::nullopt);
    });
    connect(form_->save, &QToolButton::clicked, this, [this] { save(); });
    form_->print->setMenu(printer_menu_);
    connect(printer_menu_, &QMenu::aboutToShow, this, [this] { fillPrinters(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::connectPages() {
    const auto on = [this](QToolButton& button, Qt::Key key, auto&& page) {
        const auto go = [this, page] { goTo(page()); };
        connect(&button, &QToolButton::clicked, this, go);
        connect(new QShortcut(key, this), &QShortcut::activated, this, go);
    };
    const auto last = [this] { return job_.pages->size() - 1; };
    on(*form_->first_page, Qt::Key_Home, [] { return std::size_t{0}; });
    on(*form_->previous_page, Qt::Key_PageUp, [this] { return page_ > 0 ? page_ - 1 : 0; });
    on(*form_->next_page, Qt::Key_PageDown, [this, last] { return std::min(page_ + 1, last()); });
    on(*form_->last_page, Qt::Key_End, last);
}

void PreviewWindow::connectZoom() {
    PageView& view = *form_->page_view;
    const auto on = [this](QToolButton& button, const QKeySequence& key, auto&& zoom) {
        connect(&button, &QToolButton::clicked, this, zoom);
        connect(new QShortcut(key, this), &QShortcut::activated, this, zoom);
    };
    on(*form_->fit, Qt::Key_0, [&view] { view.fit(); });
    on(*form_->true_size, Qt::Key_1, [&view] { view.zoomTo(1); });
    on(*form_->double_size, Qt::Key_2, [&view] { view.zoomTo(2); });
    on(*form_->larger, Qt::Key_Plus, [&view] { view.zoomTo(view.zoom() * zoom_step); });
    on(*form_->smaller, Qt::Key_Minus, [&view] { view.zoomTo(view.zoom() / zoom_step); });
    connect(&view, &PageView::zoomed, this, [this] { showZoom(); });
}

void PreviewWindow::showJob(const PreviewedJob& job) {
    form_->page_view->showPage(nullptr);
    job_ = job;
    setWindowTitle(u"Pré-visualização – %1"_s.arg(job.title));
    goTo(0);
    show();
    raise();
}

void PreviewWindow::goTo(std::size_t page) {
    page_ = page;
    const std::size_t pages = job_.pages->size();
    form_->page_number->setText(u"Página %1 de %2 · %3"_s.arg(page + 1).arg(pages).arg(
        counted(labelsOn(*job_.pages), u"etiqueta"_s, u"etiquetas"_s)));
    form_->first_page->setEnabled(page > 0);
    form_->previous_page->setEnabled(page > 0);
    form_->next_page->setEnabled(page + 1 < pages);
    form_->last_page->setEnabled(page + 1 < pages);
    form_->page_view->showPage(&job_.pages->at(page));
}

void PreviewWindow::showZoom() {
    form_->zoom->setText(u"%1 %"_s.arg(std::lround(form_->page_view->zoom() * 100)));
}

void PreviewWindow::fillPrinters() {
    printer_menu_->clear();
    for (const PrintTarget& printer : printers_) {
        // An ampersand would be the mnemonic of the entry.
        connect(printer_menu_->addAction(QString(printer.name).replace(u'&', u"&&"_s)),
                &QAction::triggered, this, [this, printer] { print_(job_, printer); });
    }
}

void PreviewWindow::save() {
    QFileDialog picker(this, u"Salvar PDF"_s);
    picker.setAcceptMode(QFileDialog::AcceptSave);
    picker.setNameFilter(u"PDF (*.pdf)"_s);
    picker.setDefaultSuffix(u"pdf"_s);
    picker.selectFile(job_.title);
    if (picker.exec() == QDialog::Accepted) {
        save_(job_, picker.selectedFiles().first());
    }
}

} // namespace etiquetas
