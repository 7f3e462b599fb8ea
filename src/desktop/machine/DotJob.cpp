#include "desktop/machine/DotJob.h"

#include "desktop/machine/PrintSystem.h"

#include <QDir>

#include <algorithm>
#include <cups/cups.h>
#include <cups/raster.h>
#include <utility>
#include <vector>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr int byte_bits = 8;

// A row as the driver counts its colours: in K a bit is ink, in W it is paper. What the page has no
// dots for is paper.
std::vector<uchar> driverRow(const QImage& dots, int y, const cups_page_header2_t& header) {
    const bool bit_is_ink = header.cupsColorSpace == CUPS_CSPACE_K;
    constexpr uchar all_bits = 0xFF;
    std::vector<uchar> row(header.cupsBytesPerLine, bit_is_ink ? uchar{0} : all_bits);
    if (y >= dots.height()) {
        return row;
    }
    const int width = std::min(dots.width(), static_cast<int>(header.cupsWidth));
    const uchar* const bits = dots.constScanLine(y);
    for (int x = 0; x < width; x += byte_bits) {
        const int absent = std::max(0, x + byte_bits - width);
        const auto used = static_cast<uchar>(all_bits << absent);
        const auto ink = static_cast<uchar>(~bits[x / byte_bits] & used);
        row[static_cast<std::size_t>(x / byte_bits)] = bit_is_ink ? ink : static_cast<uchar>(~ink);
    }
    return row;
}

} // namespace

void DotJob::CloseRaster::operator()(cups_raster_t* raster) const {
    cupsRasterClose(raster);
}

DotJob::DotJob(PrintHead head)
    : head_(std::move(head)), draft_(QDir::temp().filePath(u"etiquetas-XXXXXX.ras"_s)) {
    if (draft_.open()) {
        raster_.reset(cupsRasterOpen(draft_.handle(), CUPS_RASTER_WRITE_COMPRESSED));
    }
}

void DotJob::describe(const std::optional<QPageSize>& size) {
    if (!header_ || size_ != size) {
        header_ = head_.pageHeader(size);
        size_ = size;
    }
}

bool DotJob::add(const QImage& dots, const std::optional<QPageSize>& size) {
    describe(size);
    if (raster_ == nullptr || !header_ || cupsRasterWriteHeader2(raster_.get(), &*header_) == 0) {
        return false;
    }
    for (int y = 0; y < static_cast<int>(header_->cupsHeight); ++y) {
        std::vector<uchar> row = driverRow(dots, y, *header_);
        const auto length = static_cast<unsigned>(row.size());
        if (cupsRasterWritePixels(raster_.get(), row.data(), length) != length) {
            return false;
        }
    }
    return true;
}

QString DotJob::send(const QString& queue, const QString& title) {
    raster_.reset();
    cups_option_t* options = nullptr;
    const int count = cupsAddOption("document-format", "application/vnd.cups-raster", 0, &options);
    const int job = cupsPrintFile2(CUPS_HTTP_DEFAULT, queue.toLocal8Bit().constData(),
                                   QFile::encodeName(draft_.fileName()).constData(),
                                   title.toUtf8().constData(), count, options);
    cupsFreeOptions(count, options);
    if (job > 0) {
        return {};
    }
    const QString reason = printSystemError();
    return reason.isEmpty() ? u"o trabalho não foi aceito"_s : reason;
}

} // namespace etiquetas
