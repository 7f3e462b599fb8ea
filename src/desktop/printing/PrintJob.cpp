#include "desktop/printing/PrintJob.h"

#include "desktop/printing/PrintFailure.h"

#include <QPainter>
#include <QPrinterInfo>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A printer that the machine lacks would silently become a PDF printer without a file.
void requirePrinter(const PrintTarget& target) {
    if (!target.built_in && QPrinterInfo::printerInfo(target.name).isNull()) {
        throw printFailure(u"A impressora \"%1\" não está instalada."_s.arg(target.name));
    }
}

// The built-in device has the stock of the one label that takes the printer's own page. In whole
// points, as pages are, that is 283 by 113: the label has nothing in the 0.2 mm beyond.
QPageSize builtInPage() {
    return QPageSize(QSizeF(100, 40), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}

std::unique_ptr<QPrinter> makePrinter(const PrintTarget& target) {
    requirePrinter(target);
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (target.built_in) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setPageSize(builtInPage());
    } else {
        printer->setOutputFormat(QPrinter::NativeFormat);
        printer->setPrinterName(target.name);
    }
    printer->setDocName(u"Etiquetas"_s);
    printer->setFullPage(true);
    return printer;
}

} // namespace

int resolutionOf(const PrintTarget& target) {
    return makePrinter(target)->resolution();
}

PrintJob::PrintJob(const PrintTarget& target)
    : target_(target), printer_(makePrinter(target)),
      own_page_size_(printer_->pageLayout().pageSize()) {}

LabelPage& PrintJob::page(const std::optional<QPageSize>& size) {
    if (page_ended_) {
        pages_.push_back({size, {}});
        page_ended_ = false;
    }
    return pages_.back();
}

void PrintJob::send() {
    drawPages();
}

void PrintJob::write(const QString& path) {
    printer_->setOutputFileName(path);
    drawPages();
}

// Orientation stays portrait: a page wider than high is not turned then.
bool PrintJob::startPage(const LabelPage& page, QPainter& painter) {
    printer_->setPageSize(page.size.value_or(own_page_size_));
    return painter.isActive() ? printer_->newPage() : painter.begin(printer_.get());
}

void PrintJob::drawPages() {
    QPainter painter;
    for (const LabelPage& page : pages_) {
        if (!startPage(page, painter)) {
            throw printFailure(u"A impressora \"%1\" não aceita o trabalho."_s.arg(target_.name));
        }
        const double dots = printer_->resolution() / millimetres_per_inch;
        painter.setWorldTransform(QTransform::fromScale(dots, dots));
        for (const Mark& mark : page.marks) {
            draw(painter, mark);
        }
    }
}

} // namespace etiquetas
