#include "desktop/printing/OutgoingJob.h"

#include "desktop/printing/DotPage.h"

#include <QFont>
#include <QImage>

#include <algorithm>
#include <map>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// The page that holds each of these.
QPageSize pageOfAll(const LabelPages& pages, const PageSizes& size_of) {
    QPageSize all = size_of(pages.front());
    for (const LabelPage& page : pages) {
        const QSizeF before = all.size(QPageSize::Millimeter);
        const QSizeF both = before.expandedTo(size_of(page).size(QPageSize::Millimeter));
        if (both != before) {
            all = QPageSize(both, QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
        }
    }
    return all;
}

// Fonts keep what they have been drawn with, which must not be shared between threads.
QFont detached(const QFont& font) {
    QFont own = font;
    own.setPixelSize(font.pixelSize() + 1);
    own.setPixelSize(font.pixelSize());
    return own;
}

using OwnFonts = std::map<QString, QFont>;

QList<Mark> withOwnFonts(QList<Mark> marks, OwnFonts& own) {
    for (Mark& mark : marks) {
        if (auto* const text = std::get_if<TextMark>(&mark)) {
            const auto [known, is_new] = own.try_emplace(text->font.key());
            known->second = is_new ? detached(text->font) : known->second;
            text->font = known->second;
        }
    }
    return marks;
}

// One font of its own for each font of the pages, so that it is stored once in the job. Equal pages
// share their marks still.
LabelPages withOwnFonts(LabelPages pages) {
    OwnFonts own;
    QList<Mark> before;
    QList<Mark> before_by_own;
    for (LabelPage& page : pages) {
        if (!page.marks.isSharedWith(before)) {
            before = page.marks;
            before_by_own = withOwnFonts(page.marks, own);
        }
        page.marks = before_by_own;
    }
    return pages;
}

// Whether two pages, one behind the other, are those of one label that is printed many times.
bool areAlike(const LabelPage& page, const LabelPage& before) {
    return page.marks.isSharedWith(before.marks) && page.size == before.size;
}

} // namespace

OutgoingJob::OutgoingJob(std::unique_ptr<PrintQueue> queue, QString title, LabelPages pages,
                         std::shared_ptr<Drawn> drawn)
    : queue_(std::move(queue)), title_(std::move(title)), pages_(withOwnFonts(std::move(pages))),
      drawn_(std::move(drawn)) {}

Submission OutgoingJob::operator()() const {
    const auto dots = queue_->dotJob(title_);
    return dots != nullptr && draw(*dots) ? dots->send(sheet()) : sendDocument();
}

// Labels keep their places; what lies beyond a page that is bounded is beyond the stock.
QPageSize OutgoingJob::sizeOf(const LabelPage& page) const {
    return page.size ? queue_->bounded(*page.size) : queue_->ownPage().value_or(builtInPage());
}

std::optional<QPageSize> OutgoingJob::sheet() const {
    const bool is_own =
        std::all_of(pages_.begin(), pages_.end(), [](const LabelPage& page) { return !page.size; });
    return is_own ? queue_->ownPage()
                  : queue_->sheetFor(
                        pageOfAll(pages_, [this](const LabelPage& page) { return sizeOf(page); }));
}

bool OutgoingJob::draw(DotJob& job) const {
    DotPages dots(job.resolution());
    const QPageSize own_page = job.ownPage();
    const LabelPage* before = nullptr;
    QImage image;
    return std::all_of(pages_.begin(), pages_.end(), [&](const LabelPage& page) {
        *drawn_ += page.labels;
        if (before == nullptr || !areAlike(page, *before)) {
            image = dots.draw(page, own_page);
        }
        before = &page;
        const bool has_own_size = page.size && queue_->takesAnySize();
        return job.add(image, has_own_size ? std::optional(sizeOf(page)) : std::nullopt);
    });
}

Submission OutgoingJob::sendDocument() const {
    const auto job = queue_->documentJob(title_);
    const bool is_drawn = drawPages(
        job->pages(), pages_, [this](const LabelPage& page) { return sizeOf(page); },
        [this](std::size_t labels) { *drawn_ = labels; });
    return is_drawn ? job->send(sheet())
                    : Submission{.refusal = u"o trabalho não pôde ser iniciado"_s, .waits = {}};
}

} // namespace etiquetas
