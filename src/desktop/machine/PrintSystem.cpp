#include "desktop/machine/PrintSystem.h"

#include <QPrinterInfo>

#include <algorithm>
#include <array>

namespace etiquetas {

PrintQueue::PrintQueue(const QPrinterInfo& printer)
    : own_page_(printer.defaultPageSize()), takes_any_size_(printer.supportsCustomPageSizes()) {
    if (takes_any_size_) {
        smallest_ = printer.minimumPhysicalPageSize().size(QPageSize::Point);
        largest_ = printer.maximumPhysicalPageSize().size(QPageSize::Point);
    }
}

std::optional<QPageSize> PrintQueue::ownPage() const {
    return own_page_.isValid() ? std::optional(own_page_) : std::nullopt;
}

QPageSize PrintQueue::bounded(const QPageSize& page) const {
    if (largest_.isEmpty()) {
        return page;
    }
    const QSizeF points = page.size(QPageSize::Point);
    const QSizeF taken = points.expandedTo(smallest_).boundedTo(largest_);
    return taken == points ? page
                           : QPageSize(taken, QPageSize::Point, QString(), QPageSize::ExactMatch);
}

std::optional<QPageSize> PrintQueue::sheetFor(const QPageSize& page) const {
    return takes_any_size_ ? std::optional(page) : ownPage();
}

bool isHeadResolution(int dots) {
    constexpr std::array of_label_printers{203, 300, 600};
    return std::find(of_label_printers.begin(), of_label_printers.end(), dots) !=
           of_label_printers.end();
}

} // namespace etiquetas
