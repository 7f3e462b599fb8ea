#pragma once

#include "desktop/machine/Apart.h"
#include "desktop/machine/PrintSystem.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/LabelPage.h"

#include <QPageSize>
#include <QString>

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>

namespace etiquetas {

class JobPulse;

/// Dots to the inch of a printer; fails where the machine does not have it, or its print system
/// does not answer in time. The windows live meanwhile.
[[nodiscard]] int resolutionOf(const PrintTarget& target, JobPulse& pulse);

/// A job that is being put together. The printer gets nothing before the job is complete, since
/// the print system takes back no job once it has been begun: an unfinished one would be printed.
class PrintJob {
  public:
    using Patience = std::chrono::milliseconds;

    /// A job for this printer; fails where the machine does not have it, or its print system does
    /// not answer in time. The pulse, which must outlive the job, lets the windows live.
    PrintJob(const PrintTarget& target, JobPulse& pulse, LabelPages pages = {},
             Patience patience = print_system_patience);

    [[nodiscard]] const PrintTarget& target() const { return target_; }
    /// Dots to the inch.
    [[nodiscard]] int resolution() const;

    /// Pages that have been begun.
    [[nodiscard]] const LabelPages& pages() const { return pages_; }
    /// The page that is drawn on. The first call and the first one after `endPage` start a new
    /// page of this size.
    [[nodiscard]] LabelPage& page(const std::optional<QPageSize>& size);
    /// Ends the page that is drawn on, with the labels that stand on it.
    void endPage(std::size_t labels);

    // Each of these is done once, and takes the pages.

    /// Sends the job to its printer and tells what the print system has made of it; fails where the
    /// print system does not take it, or not in time. What was given up is broken off, so that it
    /// is not sent later.
    Submission send();
    /// Writes the job into this file, as PDF; fails where that is not possible.
    void write(const QString& path);

  private:
    PrintTarget target_;
    JobPulse* pulse_;
    Patience patience_;
    std::unique_ptr<PrintQueue> queue_; // none for the built-in devices
    LabelPages pages_;
    bool page_ended_ = true;
};

} // namespace etiquetas
