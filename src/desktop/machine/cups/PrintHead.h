#pragma once

#include <QPageSize>
#include <QPoint>
#include <QString>

#include <cups/raster.h>
#include <memory>
#include <optional>
#include <utility>

struct ppd_file_s; // of the print system's library

namespace etiquetas {

/// A form of pages of dots.
struct RasterFormat {
    const char* type = nullptr; // of a document
    cups_mode_t mode = CUPS_RASTER_WRITE;
};

/// Where the dots of a page go, as its head has them.
struct RasterPage {
    cups_page_header2_t header{};
    QPoint corner; // of the head's dots on the page
};

/// The print head behind a queue of the print system: of one colour, with dots that are as far
/// apart in both directions. Its driver takes pages as dots, or there is no driver and the printer
/// takes them.
class PrintHead {
  public:
    /// Asks the print system, which may take as long as it likes. Nothing where it has no such
    /// queue, or the queue's driver is another one: of no known resolution (203, 300 or 600 dots to
    /// the inch), or of more colours. Drivers tell all this in their description (PPD), which the
    /// print system makes by itself for printers without one.
    [[nodiscard]] static std::optional<PrintHead> ofQueue(const QString& queue);

    [[nodiscard]] const RasterFormat& format() const { return format_; }
    /// Whether jobs must tell their sheet besides: no driver reads it in their pages.
    [[nodiscard]] bool isDriverless() const;
    /// Dots to the inch.
    [[nodiscard]] int resolution() const;
    /// The page that the queue has without being told another one.
    [[nodiscard]] QPageSize ownPage() const;
    /// How a page of this size is to be described, which is cut to the largest one that the printer
    /// takes; without a size the queue's own page. Nothing where it would not be one of dots.
    [[nodiscard]] std::optional<RasterPage> page(const std::optional<QPageSize>& size) const;

  private:
    PrintHead(std::shared_ptr<ppd_file_s> driver, const RasterFormat& format)
        : driver_(std::move(driver)), format_(format) {}

    std::shared_ptr<ppd_file_s> driver_;
    RasterFormat format_;
};

} // namespace etiquetas
