#include "desktop/printing/QtPrintSurface.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/FontTable.h"
#include "desktop/printing/PdfFile.h"

#include <QCursor>
#include <QDir>
#include <QGuiApplication>
#include <QScopeGuard>

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

QtPrintSurface::QtPrintSurface(const QtPrinters& printers, const QString& folder, Clock clock)
    : printers_(&printers), folder_(QDir(folder).filePath(pdf_folder.toString())),
      clock_(std::move(clock)), fonts_(installedFamilies()),
      faces_(offeredFaces(fonts_.families())) {
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
    requirePositive(twips);
    dropEarlierPageSize();
    width_ = twips;
}

void QtPrintSurface::Height(int twips) {
    requirePositive(twips);
    dropEarlierPageSize();
    height_ = twips;
}

void QtPrintSurface::Print(TextView text) {
    if (text.empty()) {
        return;
    }
    LabelPage& drawn = drawnPage();
    const QPointF baseline(x_ * unitMillimetres(),
                           y_ * unitMillimetres() + font_->ascent(fontMillimetres()));
    drawn.marks.emplace_back(
        TextMark{baseline, toQString(text), font_->font(), font_->scaleFor(fontMillimetres())});
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
    if (job_) {
        job_->endPage();
    }
}

void QtPrintSurface::EndDoc() {
    // A job that fails is over too: what has reached the printer must not come out twice.
    auto job = std::exchange(job_, std::nullopt);
    if (!job) {
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // a long job takes its time here
    const auto restored = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    EndedJob ended{.target = job->target(), .pages = job->pageCount()};
    const auto told = qScopeGuard([this, &ended] { job_ended_(ended); });
    ended.file = deliver(*job);
    ended.delivered = true;
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

// Forgets a size that was set before the current printer was selected.
void QtPrintSurface::dropEarlierPageSize() {
    if (size_selection_ != printers_->selections()) {
        size_selection_ = printers_->selections();
        width_.reset();
        height_.reset();
    }
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
    const PrintTarget& target = printers_->current();
    const auto known = resolutions_.find(target.name);
    return known != resolutions_.end()
               ? known->second
               : resolutions_.emplace(target.name, resolutionOf(target)).first->second;
}

std::optional<QPageSize> QtPrintSurface::pageSize() const {
    const bool of_this_selection = size_selection_ == printers_->selections();
    if (!of_this_selection || !width_ || !height_) {
        return std::nullopt;
    }
    return labelPageSize(*width_, *height_);
}

QRectF QtPrintSurface::place(float x, float y, float width, float height) const {
    const double scale = unitMillimetres();
    return {x * scale, y * scale, width * scale, height * scale};
}

LabelPage& QtPrintSurface::drawnPage() {
    if (!job_) {
        job_.emplace(printers_->current());
    }
    return job_->page(pageSize());
}

// Tells the file of the job, if it went into one.
QString QtPrintSurface::deliver(PrintJob& job) const {
    if (job.target().built_in) {
        return writePdfFile(folder_, clock_(), [&job](const QString& path) { job.write(path); });
    }
    job.send();
    return {};
}

} // namespace etiquetas
