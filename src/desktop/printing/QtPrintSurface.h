#pragma once

#include "base/Failure.h"
#include "base/Text.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/JobDelivery.h"
#include "desktop/printing/LabelFont.h"
#include "desktop/printing/PictureMarks.h"
#include "desktop/printing/PrintJob.h"
#include "platform/PrintSurface.h"

#include <QDateTime>
#include <QPageSize>
#include <QRectF>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace etiquetas {

/// Labels that have been begun so far, and those of them that were drawn to their end.
struct LabelCount {
    std::size_t begun = 0;
    std::size_t finished = 0;
};

/// Draws labels on the machine's printers and on the built-in devices, with the same code for all.
/// Positions and widths stand in millimetres, and hold at every resolution; pages have whole
/// points.
class QtPrintSurface final : public PrintSurface {
  public:
    using PrintSurface::PaintPicture;

    /// Jobs begin on the current one of `printers`, which must outlive the surface. Those of the
    /// built-in device become files in the folder "impressos" beneath `folder`, named by `clock`.
    QtPrintSurface(const QtPrinters& printers, const QString& folder,
                   JobDelivery::Clock clock = QDateTime::currentDateTime);

    /// What brings the jobs where they go.
    [[nodiscard]] JobDelivery& delivery() { return delivery_; }
    /// What tells how many labels have been drawn; without it no job has any.
    void countBy(std::function<LabelCount()> labels) { count_ = std::move(labels); }
    /// Forgets the open job, if there is one: nothing of it is printed.
    void dropJob() { job_.reset(); }

    void FontName(TextView face) override;
    /// Fails where the size is not positive.
    void FontSize(float points) override;
    void FontBold(bool bold) override;
    [[nodiscard]] float FontSize() const override { return points_; }

    void CurrentX(float x) override { x_ = x; }
    void CurrentY(float y) override { y_ = y; }
    void ScaleMode(etiquetas::ScaleMode mode) override { scale_mode_ = mode; }

    /// Fails for any kind but `user_defined_paper`.
    void PaperSize(int kind) override;
    /// A size holds from the next page on, until a printer is selected: its own page holds then.
    /// Fails where it is not positive.
    void Width(int twips) override;
    void Height(int twips) override;

    void Print(TextView text) override;
    [[nodiscard]] float TextWidth(TextView text) const override;
    /// Fails for any flags but `filled_box`.
    void Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) override;
    void PaintPicture(const Picture& picture, float x, float y, float width, float height,
                      const SourceArea& source) override;

    void NewPage() override;
    void EndDoc() override;

    [[nodiscard]] std::size_t FontCount() const override;
    /// Fails where there is no such place.
    [[nodiscard]] Text Fonts(std::size_t index) const override;

  private:
    void selectFont() { font_ = &fonts_.get(face_, bold_); }
    void takePageLength(std::optional<int>& length, int twips);
    [[nodiscard]] QString heldOnce(TextView text);
    [[nodiscard]] double fontMillimetres() const;
    [[nodiscard]] double unitMillimetres() const;
    [[nodiscard]] int resolution() const;
    [[nodiscard]] std::optional<QPageSize> pageSize() const;
    [[nodiscard]] QRectF place(float x, float y, float width, float height) const;
    void failWhereRefused() const;
    [[nodiscard]] LabelPage& drawnPage();
    void beginJob();
    void endPage();
    [[nodiscard]] std::size_t takeCutOff();

    // A job that could not be begun, or was cancelled while it was drawn: nothing more is drawn of
    // it until it ends, or another printer is selected.
    struct RefusedJob {
        PrintTarget target;
        std::size_t selection = 0;
        Failure reason;
    };

    const QtPrinters* printers_;
    mutable JobDelivery delivery_; // beats while a printer is looked for
    std::function<LabelCount()> count_ = [] { return LabelCount(); };

    LabelFontCache fonts_;
    QStringList faces_;
    QSet<QString> texts_; // that labels are printed with, each held once
    PictureMarks picture_marks_;
    std::optional<PrintJob> job_;
    std::optional<RefusedJob> refused_;
    LabelCount job_start_;                       // what had been drawn before the job
    std::size_t page_start_ = 0;                 // labels that had been finished before the page
    mutable std::map<QString, int> resolutions_; // dots to the inch, by device name

    Text face_;
    bool bold_ = false;
    float points_ = 8;
    const LabelFont* font_ = nullptr;
    float x_ = 0;
    float y_ = 0;
    etiquetas::ScaleMode scale_mode_ = etiquetas::ScaleMode::millimetres;
    std::optional<int> width_;       // twips
    std::optional<int> height_;      // twips
    std::optional<QPageSize> size_;  // of both
    std::size_t size_selection_ = 0; // selection of the printer that the size was set for
};

} // namespace etiquetas
