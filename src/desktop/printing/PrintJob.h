#pragma once

#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/LabelPage.h"

#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace etiquetas {

/// Dots to the inch of a printer; fails where the machine does not have it.
[[nodiscard]] int resolutionOf(const PrintTarget& target);

/// A job that is being put together. The printer gets nothing before the job is complete, since
/// the print system takes back no job once it has been begun: an unfinished one would be printed.
class PrintJob {
  public:
    /// A job for this printer; fails where the machine does not have it.
    explicit PrintJob(const PrintTarget& target);

    [[nodiscard]] const PrintTarget& target() const { return target_; }
    /// Pages that have been begun.
    [[nodiscard]] std::size_t pageCount() const { return pages_.size(); }
    /// Dots to the inch.
    [[nodiscard]] int resolution() const { return printer_->resolution(); }

    /// The page that is drawn on. The first call and the first one after `endPage` start a new
    /// page of this size.
    [[nodiscard]] LabelPage& page(const std::optional<QPageSize>& size);
    void endPage() { page_ended_ = true; }

    /// Sends the job to its printer; fails where the print system does not take it.
    void send();
    /// Writes the job of the built-in device into this file; fails where that is not possible.
    void write(const QString& path);

  private:
    [[nodiscard]] bool startPage(const LabelPage& page, QPainter& painter);
    void drawPages();

    PrintTarget target_;
    std::unique_ptr<QPrinter> printer_;
    QPageSize own_page_size_; // of the printer
    std::vector<LabelPage> pages_;
    bool page_ended_ = true;
};

} // namespace etiquetas
