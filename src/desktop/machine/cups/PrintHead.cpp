#include "desktop/machine/cups/PrintHead.h"

#include "desktop/machine/PrintSystem.h"

#include <QFile>
#include <QSizeF>

#include <algorithm>
#include <array>
#include <ctime>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <cups/raster.h>
#include <span>

namespace etiquetas {

namespace {

using Driver = std::shared_ptr<ppd_file_t>;

Driver driverOf(const QString& queue) {
    constexpr std::size_t longest_path = 1024;
    std::array<char, longest_path> path{};
    std::time_t changed = 0;
    if (cupsGetPPD3(CUPS_HTTP_DEFAULT, queue.toLocal8Bit().constData(), &changed, path.data(),
                    path.size()) != HTTP_STATUS_OK) {
        return nullptr;
    }
    Driver driver(ppdOpenFile(path.data()), [](ppd_file_t* file) { ppdClose(file); });
    QFile::remove(QFile::decodeName(path.data()));
    return driver;
}

bool takesRaster(const Driver& driver) {
    const auto filters =
        std::span(driver->filters, static_cast<std::size_t>(std::max(0, driver->num_filters)));
    const bool told_anew = ppdFindAttr(driver.get(), "cupsFilter2", nullptr) != nullptr;
    return !told_anew && std::any_of(filters.begin(), filters.end(), [](const char* filter) {
        return QByteArray(filter).startsWith("application/vnd.cups-raster ");
    });
}

// One bit a dot, from the page's top-left corner on.
bool isPageOfDots(const cups_page_header2_t& header) {
    const bool black_or_white =
        header.cupsColorSpace == CUPS_CSPACE_K || header.cupsColorSpace == CUPS_CSPACE_W;
    const bool from_corner =
        header.cupsImagingBBox[0] == 0 && header.cupsImagingBBox[3] == header.cupsPageSize[1];
    return black_or_white && from_corner && header.cupsBitsPerPixel == 1 &&
           header.cupsNumColors == 1 && header.HWResolution[0] == header.HWResolution[1] &&
           isHeadResolution(static_cast<int>(header.HWResolution[0]));
}

// What the print system's own filters do before they draw pages.
void markPage(ppd_file_t* driver, const std::optional<QPageSize>& size) {
    ppdMarkDefaults(driver);
    if (size) {
        const QSizeF points = size->size(QPageSize::Point);
        const auto bounded = [driver](double length, int side) {
            return std::clamp(length, static_cast<double>(driver->custom_min[side]),
                              static_cast<double>(driver->custom_max[side]));
        };
        const QString custom = QStringLiteral("Custom.%1x%2")
                                   .arg(bounded(points.width(), 0))
                                   .arg(bounded(points.height(), 1));
        ppdMarkOption(driver, "PageSize", custom.toLatin1().constData());
    }
}

} // namespace

std::optional<PrintHead> PrintHead::ofQueue(const QString& queue) {
    const Driver driver = driverOf(queue);
    if (driver == nullptr || driver->color_device != 0 || driver->variable_sizes == 0 ||
        !takesRaster(driver)) {
        return std::nullopt;
    }
    PrintHead head(driver);
    return head.pageHeader(std::nullopt) ? std::optional(head) : std::nullopt;
}

int PrintHead::resolution() const {
    return static_cast<int>(pageHeader(std::nullopt)->HWResolution[0]);
}

QPageSize PrintHead::ownPage() const {
    const auto header = pageHeader(std::nullopt);
    return QPageSize(QSizeF(header->cupsPageSize[0], header->cupsPageSize[1]), QPageSize::Point,
                     QString(), QPageSize::ExactMatch);
}

std::optional<cups_page_header2_t>
PrintHead::pageHeader(const std::optional<QPageSize>& size) const {
    cups_page_header2_t header{};
    markPage(driver_.get(), size);
    const bool told = cupsRasterInterpretPPD(&header, driver_.get(), 0, nullptr, nullptr) == 0;
    return told && isPageOfDots(header) ? std::optional(header) : std::nullopt;
}

} // namespace etiquetas
