#pragma once

#include "desktop/machine/PrintSystem.h"
#include "desktop/printing/LabelPage.h"

#include <QPageSize>
#include <QString>

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>

namespace etiquetas {

/// A job on its way to the print system, which a thread of its own may send. It goes there once, as
/// the dots of the print head or else as a document, when all pages are drawn: drawing asks nobody.
class OutgoingJob {
  public:
    /// Labels that have been drawn.
    using Drawn = std::atomic<std::size_t>;

    /// Is made on the thread of the windows, whose fonts it leaves alone.
    OutgoingJob(std::unique_ptr<PrintQueue> queue, QString title, LabelPages pages,
                std::shared_ptr<Drawn> drawn);

    /// Draws the pages and sends them.
    [[nodiscard]] Submission operator()() const;

  private:
    [[nodiscard]] QPageSize sizeOf(const LabelPage& page) const;
    [[nodiscard]] std::optional<QPageSize> sheet() const;
    [[nodiscard]] bool draw(DotJob& job) const;
    [[nodiscard]] Submission sendDocument() const;

    std::unique_ptr<PrintQueue> queue_;
    QString title_;
    LabelPages pages_;
    std::shared_ptr<Drawn> drawn_;
};

} // namespace etiquetas
