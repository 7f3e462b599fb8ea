#include "desktop/printing/QtPrintSurface.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/FontTable.h"
#include "desktop/printing/PdfFile.h"

#include <QDir>

#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr double millimetres_per_point = millimetres_per_inch / 72;

Failure invalidCall(const char16_t* description) {
    return {failure_number::invalid_call, u"PrintSurface", description};
}

void requirePositive(int twips) {
    if (twips <= 0) {
        throw invalidCall(u"Chamada inválida: a página precisa de um tamanho.");
    }
}

QColor colourOf(Pixel pixel) {
    return QColor::fromRgb(pixel);
}

} // namespace

QtPrintSurface::QtPrintSurface(const QtPrinters& printers, const QString& folder,
                               JobDelivery::Clock clock)
    : printers_(&printers),
      delivery_(QDir(folder).filePath(pdf_folder.toString()), std::move(clock)),
      fonts_(installedFamilies()), faces_(offeredFaces(fonts_.families())) {
    selectFont();
}

void QtPrintSurface::FontName(TextView face) {
    face_ = face;
    selectFont();
}

void QtPrintSurface::FontSize(float points) {
    if (!(points > 0)) {
        throw invalidCall(u"Chamada inválida: o tamanho da fonte precisa ser positivo.");
    }
    points_ = points;
}

void QtPrintSurface::FontBold(bool bold) {
    bold_ = bold;
    selectFont();
}

void QtPrintSurface::PaperSize(int kind) {
    if (kind != user_defined_paper) {
        throw invalidCall(u"Chamada inválida: só há papel de tamanho livre.");
    }
}

void QtPrintSurface::Width(int twips) {
    takePageLength(width_, twips);
}

void QtPrintSurface::Height(int twips) {
    takePageLength(height_, twips);
}

void QtPrintSurface::Print(TextView text) {
    if (text.empty()) {
        return;
    }
    LabelPage& drawn = drawnPage();
    const QPointF baseline(x_ * unitMillimetres(),
                           y_ * unitMillimetres() + font_->ascent(fontMillimetres()));
    drawn.marks.emplace_back(
        TextMark{baseline, heldOnce(text), font_->font(), font_->scaleFor(fontMillimetres())});
}

float QtPrintSurface::TextWidth(TextView text) const {
    return static_cast<float>(font_->width(toQString(text), fontMillimetres()) / unitMillimetres());
}

void QtPrintSurface::Line(int flags, float x1, float y1, float x2, float y2, Pixel colour) {
    if (flags != filled_box) {
        throw invalidCall(u"Chamada inválida: só há linhas em forma de caixa cheia.");
    }
    LabelPage& drawn = drawnPage();
    const QRectF box = place(x1, y1, x2 - x1, y2 - y1);
    drawn.marks.emplace_back(BoxMark{box.normalized(), colourOf(colour)});
}

void QtPrintSurface::PaintPicture(const Picture& picture, float x, float y, float width,
                                  float height, const SourceArea& source) {
    if (!picture) {
        return;
    }
    const QRect crop = cropOf(*picture, source);
    if (crop.isEmpty() || !(width > 0) || !(height > 0)) {
        return;
    }
    LabelPage& drawn = drawnPage();
    picture_marks_.stamp(drawn, picture, crop, place(x, y, width, height));
}

void QtPrintSurface::NewPage() {
    endPage();
}

void QtPrintSurface::EndDoc() {
    endPage();
    const std::size_t cut_off = takeCutOff();
    // A job that fails is over too: what has reached the printer must not come out twice.
    auto job = std::exchange(job_, std::nullopt);
    const auto refused = std::exchange(refused_, std::nullopt);
    if (job) {
        delivery_.deliver(*job, cut_off);
    } else if (refused) {
        delivery_.tellRefused(refused->target, refused->reason);
    }
}

std::size_t QtPrintSurface::FontCount() const {
    return static_cast<std::size_t>(faces_.size());
}

Text QtPrintSurface::Fonts(std::size_t index) const {
    if (index >= FontCount()) {
        throw subscriptOutOfRange();
    }
    return toText(faces_[static_cast<qsizetype>(index)]);
}

// A size that was set before the current printer was selected is forgotten.
void QtPrintSurface::takePageLength(std::optional<int>& length, int twips) {
    requirePositive(twips);
    if (size_selection_ != printers_->selections()) {
        size_selection_ = printers_->selections();
        width_.reset();
        height_.reset();
    }
    length = twips;
    size_.reset();
    if (width_ && height_) {
        size_ = labelPageSize(*width_, *height_);
    }
}

// The same text for all marks that have it: a label is printed many times.
QString QtPrintSurface::heldOnce(TextView text) {
    constexpr qsizetype most = 4096;
    if (texts_.size() == most) {
        texts_.clear();
    }
    return *texts_.insert(toQString(text));
}

double QtPrintSurface::fontMillimetres() const {
    return points_ * millimetres_per_point;
}

// Of one unit of the coordinates.
double QtPrintSurface::unitMillimetres() const {
    return scale_mode_ == etiquetas::ScaleMode::pixels ? millimetres_per_inch / resolution() : 1.0;
}

int QtPrintSurface::resolution() const {
    if (job_) {
        return job_->resolution();
    }
    failWhereRefused();
    const PrintTarget& target = printers_->current();
    const auto known = resolutions_.find(target.name);
    return known != resolutions_.end()
               ? known->second
               : resolutions_.emplace(target.name, resolutionOf(target, delivery_.pulse()))
                     .first->second;
}

std::optional<QPageSize> QtPrintSurface::pageSize() const {
    return size_selection_ == printers_->selections() ? size_ : std::nullopt;
}

QRectF QtPrintSurface::place(float x, float y, float width, float height) const {
    const double scale = unitMillimetres();
    return {x * scale, y * scale, width * scale, height * scale};
}

void QtPrintSurface::failWhereRefused() const {
    if (refused_ && refused_->selection == printers_->selections()) {
        throw refused_->reason;
    }
}

LabelPage& QtPrintSurface::drawnPage() {
    failWhereRefused();
    try {
        beginJob();
    } catch (const Failure& failure) {
        const PrintTarget target = job_ ? job_->target() : printers_->current();
        refused_ = {.target = target, .selection = printers_->selections(), .reason = failure};
        job_.reset();
        throw;
    }
    return job_->page(pageSize());
}

// Begins a job with the first drawing, and lets the operator cancel it with any later one.
void QtPrintSurface::beginJob() {
    if (!job_) {
        refused_.reset();
        job_.emplace(printers_->current(), delivery_.pulse());
    }
    delivery_.pulse().step({.labels = count_().finished - job_start_.finished});
}

void QtPrintSurface::endPage() {
    const std::size_t finished = count_().finished;
    if (job_) {
        job_->endPage(finished - page_start_);
    }
    page_start_ = finished;
}

// Labels of the job that ends that were begun and not finished.
std::size_t QtPrintSurface::takeCutOff() {
    const LabelCount now = count_();
    const LabelCount start = std::exchange(job_start_, now);
    return (now.begun - start.begun) - (now.finished - start.finished);
}

} // namespace etiquetas
