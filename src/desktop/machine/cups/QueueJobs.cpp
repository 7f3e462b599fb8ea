#include "desktop/machine/cups/QueueJobs.h"

#include "desktop/machine/cups/QueueState.h"

#include <algorithm>
#include <initializer_list>
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

ssize_t appendTo(void* bytes, unsigned char* from, std::size_t length) {
    static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(from),
                                            static_cast<qsizetype>(length));
    return static_cast<ssize_t>(length);
}

struct JobOption {
    const char* name;
    const char* value;
};

// Of a job, in the form that CUPS takes.
class JobOptions {
  public:
    JobOptions(std::initializer_list<JobOption> options) {
        for (const JobOption& option : options) {
            add(option);
        }
    }
    ~JobOptions() { cupsFreeOptions(count_, list_); }
    JobOptions(const JobOptions&) = delete;
    JobOptions(JobOptions&&) = delete;
    JobOptions& operator=(const JobOptions&) = delete;
    JobOptions& operator=(JobOptions&&) = delete;

    void add(const JobOption& option) {
        count_ = cupsAddOption(option.name, option.value, count_, &list_);
    }
    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] cups_option_t* list() const { return list_; }

  private:
    int count_ = 0;
    cups_option_t* list_ = nullptr;
};

} // namespace

// Labels come out one to a page, upright and of their own size, whatever else the queue is set to;
// on a sheet that is larger they stand in its corner.
int QueueDocument::createdJob() const {
    JobOptions options{{"sides", "one-sided"},    {"number-up", "1"},
                       {"print-scaling", "none"}, {"nopdfAutoRotate", "true"},
                       {"position", "top-left"},  {"job-sheets", "none,none"}};
    if (!sheet_.isEmpty()) {
        options.add({"media", sheet_.constData()});
    }
    return cupsCreateJob(CUPS_HTTP_DEFAULT, queue_.constData(), title_.constData(), options.count(),
                         options.list());
}

bool QueueDocument::hasTaken(int job, const char* format) const {
    constexpr int last_document = 1;
    return cupsStartDocument(CUPS_HTTP_DEFAULT, queue_.constData(), job, title_.constData(), format,
                             last_document) == HTTP_STATUS_CONTINUE &&
           cupsWriteRequestData(CUPS_HTTP_DEFAULT, bytes_.constData(),
                                static_cast<std::size_t>(bytes_.size())) == HTTP_STATUS_CONTINUE &&
           cupsFinishDocument(CUPS_HTTP_DEFAULT, queue_.constData()) < IPP_STATUS_ERROR_BAD_REQUEST;
}

Submission QueueDocument::send(const char* format) const {
    const int job = createdJob();
    if (job > 0 && hasTaken(job, format)) {
        return {.refusal = {}, .number = job, .waits = standstillOf(queue_)};
    }
    const QString reason = printSystemError();
    if (job > 0) {
        cupsCancelJob2(CUPS_HTTP_DEFAULT, queue_.constData(), job, 0);
    }
    return {.refusal = reason.isEmpty() ? u"o trabalho não foi aceito"_s : reason, .waits = {}};
}

void RasterJob::CloseRaster::operator()(cups_raster_t* raster) const {
    cupsRasterClose(raster);
}

RasterJob::RasterJob(QueueDocument document, PrintHead head)
    : head_(std::move(head)), document_(std::move(document)),
      raster_(cupsRasterOpenIO(appendTo, &document_.bytes(), CUPS_RASTER_WRITE_COMPRESSED)) {}

void RasterJob::describe(const std::optional<QPageSize>& size) {
    if (!header_ || size_ != size) {
        header_ = head_.pageHeader(size);
        size_ = size;
    }
}

bool RasterJob::add(const QImage& dots, const std::optional<QPageSize>& size) {
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

Submission RasterJob::send() {
    raster_.reset();
    return document_.send("application/vnd.cups-raster");
}

PdfJob::PdfJob(QueueDocument document, int resolution)
    : document_(std::move(document)), buffer_(&document_.bytes()), writer_(&buffer_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.setResolution(resolution);
    writer_.setPageMargins(QMarginsF());
}

Submission PdfJob::send(const std::optional<QPageSize>& sheet) {
    if (sheet) {
        document_.takeSheet(sheet->key());
    }
    return document_.send(CUPS_FORMAT_PDF);
}

} // namespace etiquetas
