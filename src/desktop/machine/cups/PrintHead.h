#pragma once

#include <QPageSize>
#include <QString>

#include <cups/raster.h>
#include <memory>
#include <optional>
#include <utility>

struct ppd_file_s; // of the print system's library

namespace etiquetas {

/// The print head behind a queue of the print system: of one colour, with dots that are as far
/// apart in both directions. Its driver takes pages as dots.
class PrintHead {
  public:
    /// Asks the print system, which may take as long as it likes. Nothing where it has no such
    /// queue, or the queue's driver is another one: of no known resolution (203, 300 or 600 dots to
    /// the inch), of more colours or tones, or without pages of any size. Drivers tell all this in
    /// their description (PPD).
    [[nodiscard]] static std::optional<PrintHead> ofQueue(const QString& queue);

    /// Dots to the inch.
    [[nodiscard]] int resolution() const;
    /// The page that the queue has without being told another one.
    [[nodiscard]] QPageSize ownPage() const;
    /// How the driver wants a page of this size to be described, which is cut to the largest one
    /// that it takes; without a size the queue's own page. Nothing where its dots can't stand from
    /// the page's top-left corner on.
    [[nodiscard]] std::optional<cups_page_header2_t>
    pageHeader(const std::optional<QPageSize>& size) const;

  private:
    explicit PrintHead(std::shared_ptr<ppd_file_s> driver) : driver_(std::move(driver)) {}

    std::shared_ptr<ppd_file_s> driver_;
};

} // namespace etiquetas
