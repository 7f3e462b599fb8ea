#include "desktop/printing/PrintJob.h"

#include "desktop/machine/Apart.h"
#include "desktop/machine/KeptHeap.h"
#include "desktop/machine/PrintSystem.h"
#include "desktop/printing/DotPage.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/PrintFailure.h"
#include "desktop/printing/ShapedTexts.h"

#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <atomic>
#include <functional>
#include <map>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr int built_in_resolution = 1200; // dots to the inch

const QString job_name = u"Etiquetas"_s;
const QString not_begun = u"o trabalho não pôde ser iniciado"_s;

QString noAnswer(const QString& printer, PrintJob::Patience patience) {
    return u"O sistema de impressão não respondeu em %1 segundos (impressora \"%2\")."_s
        .arg(QLocale(QLocale::Portuguese, QLocale::Brazil)
                 .toString(std::chrono::duration<double>(patience).count()))
        .arg(printer);
}

// None for a built-in device. The print system is asked once for all that a job must know of it.
std::unique_ptr<PrintQueue> lookUpQueue(const PrintTarget& target, JobPulse& pulse,
                                        PrintJob::Patience patience) {
    if (target.device != Device::printer) {
        return {};
    }
    const auto goes_on = [&pulse, in_time = Deadline(patience)] {
        pulse.step({});
        return in_time();
    };
    auto found = apart([name = target.name] { return findQueue(name); }, goes_on);
    if (!found) {
        throw printFailure(noAnswer(target.name, patience));
    }
    if (*found == nullptr) {
        throw printFailure(u"A impressora \"%1\" não está instalada."_s.arg(target.name));
    }
    return std::move(*found);
}

int resolutionOf(const PrintQueue* queue) {
    return queue == nullptr ? built_in_resolution : queue->resolution();
}

// The size that a page is drawn in.
using PageSizes = std::function<QPageSize(const LabelPage& page)>;

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

// Orientation stays portrait: a page wider than high is not turned then.
bool startPage(QPagedPaintDevice& device, const QPageSize& size, QPainter& painter) {
    device.setPageSize(size);
    return painter.isActive() ? device.newPage() : painter.begin(&device);
}

// Tells before each page how many labels have been drawn. False where the device takes no page.
bool drawPages(QPagedPaintDevice& device, const LabelPages& pages, const PageSizes& size_of,
               const std::function<void(std::size_t labels)>& tell) {
    QPainter painter;
    ShapedTexts texts;
    std::size_t labels = 0;
    for (const LabelPage& page : pages) {
        tell(labels);
        if (!startPage(device, size_of(page), painter)) {
            return false;
        }
        const double dots = device.logicalDpiX() / millimetres_per_inch;
        painter.setWorldTransform(QTransform::fromScale(dots, dots));
        draw(painter, page, texts);
        labels += page.labels;
    }
    return true;
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

// Labels that the thread that sends a job has drawn.
using Drawn = std::atomic<std::size_t>;

// A job on its way to the print system, on a thread of its own. It goes there once, as the dots of
// the print head or else as a document, when all pages are drawn: drawing asks nobody.
struct Outgoing {
    std::unique_ptr<PrintQueue> queue;
    LabelPages pages;
    std::shared_ptr<Drawn> drawn;

    [[nodiscard]] Submission operator()() const {
        const QPageSize own_page = queue->ownPage().value_or(builtInPage());
        const auto size_of = [&](const LabelPage& page) {
            return page.size ? queue->bounded(*page.size) : own_page;
        };
        const auto sheet = sheetOf(size_of);
        const auto dots = queue->dotJob(job_name);
        return dots != nullptr && draw(*dots) ? dots->send(sheet) : sendDocument(size_of, sheet);
    }

  private:
    [[nodiscard]] std::optional<QPageSize> sheetOf(const PageSizes& size_of) const {
        const bool is_own = std::all_of(pages.begin(), pages.end(),
                                        [](const LabelPage& page) { return !page.size; });
        return is_own ? queue->ownPage() : queue->sheetFor(pageOfAll(pages, size_of));
    }

    // Labels keep their places; what lies beyond a page that is bounded is beyond the stock.
    [[nodiscard]] bool draw(DotJob& job) const {
        DotPages dots(job.resolution());
        const QPageSize own_page = job.ownPage();
        const LabelPage* before = nullptr;
        QImage image;
        return std::all_of(pages.begin(), pages.end(), [&](const LabelPage& page) {
            *drawn += page.labels;
            if (before == nullptr || !areAlike(page, *before)) {
                image = dots.draw(page, own_page);
            }
            before = &page;
            const bool has_own_size = page.size && queue->takesAnySize();
            return job.add(image,
                           has_own_size ? std::optional(queue->bounded(*page.size)) : std::nullopt);
        });
    }

    [[nodiscard]] Submission sendDocument(const PageSizes& size_of,
                                          const std::optional<QPageSize>& sheet) const {
        const auto job = queue->documentJob(job_name);
        const auto tell = [this](std::size_t labels) { *drawn = labels; };
        return drawPages(job->pages(), pages, size_of, tell)
                   ? job->send(sheet)
                   : Submission{.refusal = not_begun, .waits = {}};
    }
};

// Goes on as long as labels are drawn. The last step sends them all at once, which takes its time.
// What takes too long is broken off, and is given another second to end by that: it may ask again.
class Stall {
  public:
    Stall(PrintJob::Patience patience, std::size_t pages)
        : patience_(patience + std::chrono::milliseconds(pages)) {}

    bool operator()(std::size_t labels) {
        if (std::exchange(labels_, labels) != labels) {
            deadline_ = Deadline(patience_);
        }
        if (deadline_()) {
            return true;
        }
        if (!std::exchange(is_broken_off_, true)) {
            end_ = Deadline(std::chrono::seconds(1));
        }
        breakOffPrintSystem();
        return end_();
    }

    [[nodiscard]] bool isBrokenOff() const { return is_broken_off_; }

  private:
    std::chrono::milliseconds patience_;
    std::size_t labels_ = 0;
    Deadline deadline_{patience_};
    Deadline end_{patience_}; // once it is broken off
    bool is_broken_off_ = false;
};

} // namespace

int resolutionOf(const PrintTarget& target, JobPulse& pulse) {
    return resolutionOf(lookUpQueue(target, pulse, print_system_patience).get());
}

PrintJob::PrintJob(const PrintTarget& target, JobPulse& pulse, LabelPages pages, Patience patience)
    : target_(target), pulse_(&pulse), patience_(patience),
      queue_(lookUpQueue(target, pulse, patience)), pages_(std::move(pages)) {}

int PrintJob::resolution() const {
    return resolutionOf(queue_.get());
}

LabelPage& PrintJob::page(const std::optional<QPageSize>& size) {
    if (page_ended_) {
        const qsizetype as_before = pages_.empty() ? 0 : pages_.back().marks.size();
        pages_.push_back({.size = size, .marks = {}});
        pages_.back().marks.reserve(as_before);
        page_ended_ = false;
    }
    return pages_.back();
}

void PrintJob::endPage(std::size_t labels) {
    if (page_ended_) {
        return;
    }
    page_ended_ = true;
    LabelPage& page = pages_.back();
    page.labels = labels;
    if (pages_.size() > 1 && page.marks == pages_.rbegin()[1].marks) {
        page.marks = pages_.rbegin()[1].marks; // of a label that is printed many times
    } else {
        page.marks.squeeze();
    }
}

Submission PrintJob::send() {
    const auto drawn = std::make_shared<Drawn>(0);
    const std::size_t in_all = labelsOn(pages_);
    Stall stall(patience_, pages_.size());
    const auto goes_on = [&] {
        const std::size_t labels = *drawn;
        pulse_->step({.labels = labels, .in_all = in_all, .can_cancel = false});
        return stall(labels);
    };
    const auto told =
        apart(Outgoing{std::move(queue_), withOwnFonts(std::move(pages_)), drawn}, goes_on);
    // A job that was broken off with its pages on their way may have been taken, without an answer.
    if (!told || (stall.isBrokenOff() && told->number == 0)) {
        throw printFailure(noAnswer(target_.name, patience_) +
                           u" As etiquetas ainda podem sair: confira antes de imprimir de novo."_s);
    }
    if (!told->refusal.isEmpty()) {
        throw printFailure(
            u"A impressora \"%1\" não aceitou o trabalho: %2."_s.arg(target_.name, told->refusal));
    }
    return *told;
}

void PrintJob::write(const QString& path) {
    const KeptHeap heap;
    QPdfWriter writer(path);
    writer.setResolution(built_in_resolution);
    writer.setPageMargins(QMarginsF());
    writer.setTitle(job_name);
    const std::size_t in_all = labelsOn(pages_);
    const auto tell = [this, in_all](std::size_t labels) {
        pulse_->step({.labels = labels, .in_all = in_all});
    };
    const auto size_of = [](const LabelPage& page) { return page.size.value_or(builtInPage()); };
    if (!drawPages(writer, pages_, size_of, tell)) {
        throw printFailure(u"O arquivo \"%1\" não pôde ser gravado."_s.arg(path));
    }
}

} // namespace etiquetas
