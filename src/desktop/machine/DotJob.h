#pragma once

#include "desktop/machine/PrintHead.h"

#include <QImage>
#include <QPageSize>
#include <QString>
#include <QTemporaryFile>

#include <memory>
#include <optional>

namespace etiquetas {

/// A job whose pages are the dots of a print head. It is written as the driver of the head reads it
/// (the print system's raster), so that no filter has anything left to decide.
class DotJob {
  public:
    explicit DotJob(PrintHead head);

    /// Adds a page of this size, or the queue's own: one bit to the dot, black where it is 0. What
    /// stands beyond the head is cut off. False where the page can't be described to the driver, or
    /// not be written.
    [[nodiscard]] bool add(const QImage& dots, const std::optional<QPageSize>& size);

    /// Ends the job and sends it to its queue, once. Tells why the print system has not taken it;
    /// empty where it has.
    [[nodiscard]] QString send(const QString& queue, const QString& title);

  private:
    struct CloseRaster {
        void operator()(cups_raster_t* raster) const;
    };

    void describe(const std::optional<QPageSize>& size);

    PrintHead head_;
    std::optional<cups_page_header2_t> header_; // of pages of this size
    std::optional<QPageSize> size_;
    QTemporaryFile draft_;
    std::unique_ptr<cups_raster_t, CloseRaster> raster_; // closed before the draft
};

} // namespace etiquetas
