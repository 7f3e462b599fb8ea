#include "desktop/machine/PrintSystem.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <utility>

namespace etiquetas {

namespace {

// A job begins with its first page, and goes to the print system when its painter ends.
std::unique_ptr<QPrinter> newPrinter(const QString& queue, const QString& title) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::NativeFormat);
    printer->setPrinterName(queue);
    printer->setDocName(title);
    printer->setFullPage(true);
    return printer;
}

class DrawnJob final : public DocumentJob {
  public:
    explicit DrawnJob(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}

    [[nodiscard]] QPagedPaintDevice& pages() override { return *printer_; }
    [[nodiscard]] Submission send(const std::optional<QPageSize>& /*sheet*/) override { return {}; }

  private:
    std::unique_ptr<QPrinter> printer_;
};

// One image to a page, dot on dot.
class ImageJob final : public DotJob {
  public:
    ImageJob(std::unique_ptr<QPrinter> printer, int resolution, const QPageSize& own_page)
        : printer_(std::move(printer)), own_page_(own_page) {
        printer_->setResolution(resolution);
    }

    [[nodiscard]] int resolution() const override { return printer_->resolution(); }
    [[nodiscard]] QPageSize ownPage() const override { return own_page_; }
    [[nodiscard]] bool add(const QImage& dots, const std::optional<QPageSize>& size) override {
        printer_->setPageSize(size.value_or(own_page_));
        const bool begun =
            painter_.isActive() ? printer_->newPage() : painter_.begin(printer_.get());
        if (begun) {
            painter_.drawImage(0, 0, dots);
        }
        return begun;
    }
    [[nodiscard]] Submission send(const std::optional<QPageSize>& /*sheet*/) override {
        painter_.end();
        return {};
    }

  private:
    std::unique_ptr<QPrinter> printer_;
    QPageSize own_page_;
    QPainter painter_; // ends before its printer
};

// The only one of a printer without colours, where it is a label printer's; else 0.
int headResolutionOf(const QPrinterInfo& printer) {
    const QList<QPrinter::ColorMode> colours = printer.supportedColorModes();
    const QList<int> resolutions = printer.supportedResolutions();
    const bool has_one = colours == QList{QPrinter::GrayScale} && !resolutions.isEmpty() &&
                         resolutions.count(resolutions.first()) == resolutions.size();
    return has_one && isHeadResolution(resolutions.first()) ? resolutions.first() : 0;
}

class ToolkitQueue final : public PrintQueue {
  public:
    explicit ToolkitQueue(const QPrinterInfo& printer)
        : PrintQueue(printer), name_(printer.printerName()),
          resolution_(newPrinter(name_, {})->resolution()),
          head_resolution_(headResolutionOf(printer)) {}

    [[nodiscard]] int resolution() const override { return resolution_; }
    [[nodiscard]] std::unique_ptr<DotJob> dotJob(const QString& title) const override {
        if (head_resolution_ == 0) {
            return nullptr;
        }
        auto printer = newPrinter(name_, title);
        const QPageSize own_page = ownPage().value_or(printer->pageLayout().pageSize());
        return std::make_unique<ImageJob>(std::move(printer), head_resolution_, own_page);
    }
    [[nodiscard]] std::unique_ptr<DocumentJob> documentJob(const QString& title) const override {
        return std::make_unique<DrawnJob>(newPrinter(name_, title));
    }

  private:
    QString name_;
    int resolution_;
    int head_resolution_; // 0 where it is no label printer's
};

} // namespace

std::unique_ptr<PrintQueue> findQueue(const QString& name) {
    const auto printer = QPrinterInfo::printerInfo(name);
    return printer.isNull() ? nullptr : std::make_unique<ToolkitQueue>(printer);
}

// A job is handed to the system at once.
void breakOffPrintSystem() {}

} // namespace etiquetas
