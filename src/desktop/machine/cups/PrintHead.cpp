#include "desktop/machine/cups/PrintHead.h"

#include "desktop/machine/PrintSystem.h"

#include <QFile>
#include <QSizeF>

#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <cups/pwg.h>
#include <iterator>
#include <span>
#include <vector>

namespace etiquetas {

namespace {

constexpr float points_to_inch = 72;

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

// A form that needs no filter, and how a description begins to tell that it is taken.
struct TakenFormat {
    const char* told;
    RasterFormat format;
};

constexpr RasterFormat of_drivers{"application/vnd.cups-raster", CUPS_RASTER_WRITE_COMPRESSED};
constexpr std::array taken_formats{
    TakenFormat{"application/vnd.cups-raster ", of_drivers},
    TakenFormat{"image/pwg-raster image/pwg-raster ", {"image/pwg-raster", CUPS_RASTER_WRITE_PWG}},
    TakenFormat{"image/urf image/urf ", {"image/urf", CUPS_RASTER_WRITE_APPLE}}};

// What a driver takes, or a printer without one. A newer keyword holds in place of the older one.
std::vector<QByteArray> filtersOf(const Driver& driver) {
    constexpr const char* newer = "cupsFilter2";
    std::vector<QByteArray> told;
    for (const ppd_attr_t* one = ppdFindAttr(driver.get(), newer, nullptr); one != nullptr;
         one = ppdFindNextAttr(driver.get(), newer, nullptr)) {
        told.emplace_back(one->value);
    }
    if (told.empty()) {
        const auto count = static_cast<std::size_t>(std::max(0, driver->num_filters));
        std::ranges::copy(std::span(driver->filters, count), std::back_inserter(told));
    }
    return told;
}

std::optional<RasterFormat> formatOf(const Driver& driver) {
    for (const QByteArray& filter : filtersOf(driver)) {
        for (const TakenFormat& taken : taken_formats) {
            if (filter.startsWith(taken.told)) {
                return taken.format;
            }
        }
    }
    return std::nullopt;
}

bool isPageOfDots(const cups_page_header2_t& header) {
    const bool black_or_white = header.cupsColorSpace == CUPS_CSPACE_K ||
                                header.cupsColorSpace == CUPS_CSPACE_W ||
                                header.cupsColorSpace == CUPS_CSPACE_SW;
    const bool bits_or_bytes = header.cupsBitsPerPixel == 1 || header.cupsBitsPerPixel == 8;
    return black_or_white && bits_or_bytes && header.cupsNumColors == 1 &&
           header.HWResolution[0] == header.HWResolution[1] &&
           isHeadResolution(static_cast<int>(header.HWResolution[0]));
}

// Drivers get the part of a page that they print on, which begins at the margins.
QPoint cornerOf(const cups_page_header2_t& header) {
    const auto dots = [&header](float points) {
        return static_cast<int>(
            std::lround(points * static_cast<float>(header.HWResolution[0]) / points_to_inch));
    };
    return {dots(header.cupsImagingBBox[0]),
            dots(header.cupsPageSize[1] - header.cupsImagingBBox[3])};
}

// Printers without a driver get whole pages, in the form of PWG 5102.4. Bits are not told in the
// other form of such pages.
cups_page_header2_t driverlessHeader(const cups_page_header2_t& told, const RasterFormat& format) {
    const auto hundredths = [](float points) { // of a millimetre
        constexpr float hundredths_to_inch = 2540;
        return static_cast<int>(std::lround(points * hundredths_to_inch / points_to_inch));
    };
    const int width = hundredths(told.cupsPageSize[0]);
    const int length = hundredths(told.cupsPageSize[1]);
    constexpr std::size_t longest_name = 64;
    std::array<char, longest_name> name{};
    pwgFormatSizeName(name.data(), name.size(), "custom", nullptr, width, length, "mm");
    pwg_media_t media{name.data(), nullptr, nullptr, width, length};
    const bool in_bits = format.mode == CUPS_RASTER_WRITE_PWG && told.cupsBitsPerPixel == 1;
    const int resolution = static_cast<int>(told.HWResolution[0]);
    cups_page_header2_t header{};
    cupsRasterInitPWGHeader(&header, &media, in_bits ? "black_1" : "sgray_8", resolution,
                            resolution, "one-sided", nullptr);
    return header;
}

// Where a printer without a driver prints up to its edges, CUPS tells its own page by another name
// than it lists it by, with ".Borderless" behind.
void markOwnPage(ppd_file_t* driver) {
    const ppd_option_t* const sizes = ppdFindOption(driver, "PageSize");
    if (sizes != nullptr && ppdFindMarkedChoice(driver, "PageSize") == nullptr) {
        const QByteArray listed = QByteArray(&sizes->defchoice[0]) + ".Borderless";
        ppdMarkOption(driver, "PageSize", listed.constData());
    }
}

// What the print system's own filters do before they draw pages.
void markPage(ppd_file_t* driver, const std::optional<QPageSize>& size) {
    ppdMarkDefaults(driver);
    markOwnPage(driver);
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
    if (driver == nullptr || driver->color_device != 0) {
        return std::nullopt;
    }
    const auto format = formatOf(driver);
    if (!format) {
        return std::nullopt;
    }
    PrintHead head(driver, *format);
    return head.page(std::nullopt) ? std::optional(head) : std::nullopt;
}

bool PrintHead::isDriverless() const {
    return format_.mode != of_drivers.mode;
}

int PrintHead::resolution() const {
    return static_cast<int>(page(std::nullopt)->header.HWResolution[0]);
}

QPageSize PrintHead::ownPage() const {
    const cups_page_header2_t header = page(std::nullopt)->header;
    return QPageSize(QSizeF(header.cupsPageSize[0], header.cupsPageSize[1]), QPageSize::Point,
                     QString(), QPageSize::ExactMatch);
}

std::optional<RasterPage> PrintHead::page(const std::optional<QPageSize>& size) const {
    cups_page_header2_t header{};
    markPage(driver_.get(), size);
    const bool told = cupsRasterInterpretPPD(&header, driver_.get(), 0, nullptr, nullptr) == 0;
    if (!told || !isPageOfDots(header)) {
        return std::nullopt;
    }
    return isDriverless() ? RasterPage{driverlessHeader(header, format_), {}}
                          : RasterPage{header, cornerOf(header)};
}

} // namespace etiquetas
