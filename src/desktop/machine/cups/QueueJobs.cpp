#include "desktop/machine/cups/QueueJobs.h"

#include "desktop/machine/cups/QueueState.h"

#include <QPainter>

#include <initializer_list>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// What stands on the head's part of a page; beyond the dots there is paper.
QImage onHead(const QImage& dots, const RasterPage& page) {
    const QSize size(static_cast<int>(page.header.cupsWidth),
                     static_cast<int>(page.header.cupsHeight));
    if (page.corner.isNull() && dots.size() == size) {
        return dots;
    }
    QImage part(size, QImage::Format_Mono);
    part.setColorTable(dots.colorTable());
    constexpr unsigned paper = 1; // as in the dots
    part.fill(paper);
    QPainter(&part).drawImage(-page.corner, dots);
    return part;
}

// As the driver counts its tones: in K the most is ink, else it is paper.
QImage inTonesOf(const cups_page_header2_t& header, QImage page) {
    if (header.cupsBitsPerPixel > 1) {
        page.convertTo(QImage::Format_Grayscale8);
    }
    if (header.cupsColorSpace == CUPS_CSPACE_K) {
        page.invertPixels();
    }
    return page;
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
      raster_(cupsRasterOpenIO(appendTo, &document_.bytes(), head_.format().mode)) {}

void RasterJob::describe(const std::optional<QPageSize>& size) {
    if (!page_ || size_ != size) {
        page_ = head_.page(size);
        size_ = size;
    }
}

bool RasterJob::add(const QImage& dots, const std::optional<QPageSize>& size) {
    describe(size);
    if (raster_ == nullptr || !page_ ||
        cupsRasterWriteHeader2(raster_.get(), &page_->header) == 0) {
        return false;
    }
    QImage page = inTonesOf(page_->header, onHead(dots, *page_));
    const unsigned length = page_->header.cupsBytesPerLine;
    for (int y = 0; y < page.height(); ++y) {
        if (cupsRasterWritePixels(raster_.get(), page.scanLine(y), length) != length) {
            return false;
        }
    }
    return true;
}

Submission RasterJob::send(const std::optional<QPageSize>& sheet) {
    raster_.reset();
    if (sheet && head_.isDriverless()) {
        document_.takeSheet(sheet->key());
    }
    return document_.send(head_.format().type);
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
