#pragma once

#include "desktop/machine/PrintSystem.h"
#include "desktop/machine/cups/PrintHead.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QString>

#include <cups/cups.h>
#include <cups/raster.h>
#include <memory>
#include <optional>
#include <string>

namespace etiquetas {

/// Hands a whole document to a queue as one job. One that is not taken to its end is taken back.
class QueueDocument {
  public:
    QueueDocument(const QString& queue, const QString& title)
        : queue_(queue.toLocal8Bit()), title_(title.toUtf8()) {}

    /// What the job holds.
    [[nodiscard]] QByteArray& bytes() { return bytes_; }
    /// The sheet that the whole job asks for, as the print system calls it; a driver that
    /// reads it in the job itself needs none.
    void takeSheet(const QString& name) { sheet_ = name.toLatin1(); }

    /// Sends what the job holds, which is of this type.
    [[nodiscard]] Submission send(const char* format) const;

  private:
    [[nodiscard]] int createdJob() const;
    [[nodiscard]] bool hasTaken(int job, const char* format) const;

    QByteArray queue_;
    QByteArray title_;
    QByteArray bytes_;
    QByteArray sheet_;
};

/// A job that is written as the driver of a print head reads it, or its printer where it needs no
/// driver, so that no filter has anything left to decide. Measured: of the filters that draw pages
/// of PDF at 203 dots to the inch, with one bit to the dot, one strews ink over white paper and one
/// draws all a little smaller, whatever stands on the page.
class RasterJob final : public DotJob {
  public:
    RasterJob(QueueDocument document, PrintHead head);

    [[nodiscard]] int resolution() const override { return head_.resolution(); }
    [[nodiscard]] QPageSize ownPage() const override { return head_.ownPage(); }
    [[nodiscard]] bool add(const QImage& dots, const std::optional<QPageSize>& size) override;
    [[nodiscard]] Submission send(const std::optional<QPageSize>& sheet) override;

  private:
    struct CloseRaster {
        void operator()(cups_raster_t* raster) const;
    };

    void describe(const std::optional<QPageSize>& size);

    PrintHead head_;
    std::optional<RasterPage> page_; // of this size
    std::optional<QPageSize> size_;
    QueueDocument document_;
    std::unique_ptr<cups_raster_t, CloseRaster> raster_; // closed before the document
};

/// A job that is written as PDF, which all queues take.
class PdfJob final : public DocumentJob {
  public:
    PdfJob(QueueDocument document, int resolution);

    [[nodiscard]] QPagedPaintDevice& pages() override { return writer_; }
    [[nodiscard]] Submission send(const std::optional<QPageSize>& sheet) override;

  private:
    QueueDocument document_;
    QBuffer buffer_;
    QPdfWriter writer_;
};

} // namespace etiquetas
