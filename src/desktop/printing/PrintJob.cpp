#include "desktop/printing/PrintJob.h"

#include "desktop/machine/Apart.h"
#include "desktop/machine/DotJob.h"
#include "desktop/machine/PrintHead.h"
#include "desktop/machine/PrintSystem.h"
#include "desktop/printing/DotPage.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/PrintFailure.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinterInfo>

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

QString noAnswer(const QString& printer) {
    return u"O sistema de impressão não respondeu em %1 segundos (impressora \"%2\")."_s
        .arg(print_system_patience.count())
        .arg(printer);
}

// Nothing where the machine lacks the printer: it would silently become a PDF printer without a
// file.
std::unique_ptr<QPrinter> foundPrinter(const QString& name) {
    if (QPrinterInfo::printerInfo(name).isNull()) {
        return nullptr;
    }
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::NativeFormat);
    printer->setPrinterName(name);
    printer->setDocName(job_name);
    printer->setFullPage(true);
    return printer;
}

// None for a built-in device.
std::unique_ptr<QPrinter> makePrinter(const PrintTarget& target) {
    if (target.device != Device::printer) {
        return nullptr;
    }
    auto found =
        apart([name = target.name] { return foundPrinter(name); }, Deadline(print_system_patience));
    if (!found) {
        throw printFailure(noAnswer(target.name));
    }
    if (*found == nullptr) {
        throw printFailure(u"A impressora \"%1\" não está instalada."_s.arg(target.name));
    }
    return std::move(*found);
}

int resolutionOf(const QPrinter* printer) {
    return printer == nullptr ? built_in_resolution : printer->resolution();
}

// Whether the job is to go on, so many of its labels having been drawn.
using GoesOn = std::function<bool(std::size_t labels)>;

// Orientation stays portrait: a page wider than high is not turned then.
bool startPage(QPagedPaintDevice& device, const QPageSize& size, QPainter& painter) {
    device.setPageSize(size);
    return painter.isActive() ? device.newPage() : painter.begin(&device);
}

// Tells before each page how many labels have been drawn. False where the device takes no page, or
// `goes_on` says no.
bool drawPages(QPagedPaintDevice& device, const LabelPages& pages, const QPageSize& own_page,
               const GoesOn& goes_on) {
    QPainter painter;
    std::size_t labels = 0;
    for (const LabelPage& page : pages) {
        if (!goes_on(labels) || !startPage(device, page.size.value_or(own_page), painter)) {
            return false;
        }
        const double dots = device.logicalDpiX() / millimetres_per_inch;
        painter.setWorldTransform(QTransform::fromScale(dots, dots));
        draw(painter, page);
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

// One font of its own for each font of the pages, so that it is stored once in the job.
LabelPages withOwnFonts(LabelPages pages) {
    std::map<QString, QFont> own;
    for (LabelPage& page : pages) {
        for (Mark& mark : page.marks) {
            if (auto* const text = std::get_if<TextMark>(&mark)) {
                const auto [known, is_new] = own.try_emplace(text->font.key());
                known->second = is_new ? detached(text->font) : known->second;
                text->font = known->second;
            }
        }
    }
    return pages;
}

// What the thread that sends a job and the one that waits for it tell each other.
struct Sending {
    std::atomic<std::size_t> labels = 0;
    std::atomic<bool> given_up = false;

    bool goesOn(std::size_t sent) {
        labels = sent;
        return !given_up;
    }
};

// A job on its way to the print system, on a thread of its own. It goes there once, as the dots of
// the print head or else as the toolkit's document.
struct Outgoing {
    QString queue;
    std::unique_ptr<QPrinter> printer;
    std::optional<PrintHead> head; // that takes all pages
    LabelPages pages;
    std::shared_ptr<Sending> sending;

    // Tells why the print system has not taken the job; empty where it has.
    [[nodiscard]] QString operator()() const { return head ? sendDots() : sendDocument(); }

  private:
    [[nodiscard]] QString sendDots() const {
        DotJob job(*head);
        DotPages dots(head->resolution());
        const QPageSize own_page = head->ownPage();
        std::size_t labels = 0;
        for (const LabelPage& page : pages) {
            if (!sending->goesOn(labels) || !job.add(dots.draw(page, own_page), page.size)) {
                return not_begun;
            }
            labels += page.labels;
        }
        return sending->goesOn(labels) ? job.send(queue, job_name) : not_begun;
    }

    [[nodiscard]] QString sendDocument() const {
        const auto goes_on = [this](std::size_t labels) { return sending->goesOn(labels); };
        const QPageSize own_page = printer->pageLayout().pageSize();
        return drawPages(*printer, pages, own_page, goes_on) ? printSystemError() : not_begun;
    }
};

bool takesAll(const PrintHead& head, const LabelPages& pages) {
    const auto last_of_size = [](const LabelPage& one, const LabelPage& next) {
        return one.size != next.size;
    };
    auto page = pages.begin();
    while (page != pages.end() && head.pageHeader(page->size)) {
        const auto last = std::adjacent_find(page, pages.end(), last_of_size);
        page = last == pages.end() ? last : std::next(last);
    }
    return page == pages.end();
}

// The head behind a queue, where it takes each of the pages; none where the print system does not
// tell it in time.
std::optional<PrintHead> headFor(const QString& queue, const LabelPages& pages) {
    const auto told =
        apart([queue] { return PrintHead::ofQueue(queue); }, Deadline(print_system_patience));
    const auto head = told.value_or(std::nullopt);
    return head && takesAll(*head, pages) ? head : std::nullopt;
}

// Goes on as long as labels are drawn. The last step sends them all at once, which takes its time.
class Stall {
  public:
    explicit Stall(std::size_t pages)
        : patience_(print_system_patience + std::chrono::milliseconds(pages)) {}

    bool operator()(std::size_t labels) {
        if (std::exchange(labels_, labels) != labels) {
            deadline_ = Deadline(patience_);
        }
        return deadline_();
    }

  private:
    std::chrono::milliseconds patience_;
    std::size_t labels_ = 0;
    Deadline deadline_{patience_};
};

} // namespace

int resolutionOf(const PrintTarget& target) {
    return resolutionOf(makePrinter(target).get());
}

PrintJob::PrintJob(const PrintTarget& target, LabelPages pages)
    : target_(target), printer_(makePrinter(target)), pages_(std::move(pages)) {}

int PrintJob::resolution() const {
    return resolutionOf(printer_.get());
}

LabelPage& PrintJob::page(const std::optional<QPageSize>& size) {
    if (page_ended_) {
        pages_.push_back({.size = size, .marks = {}});
        page_ended_ = false;
    }
    return pages_.back();
}

void PrintJob::endPage(std::size_t labels) {
    if (!page_ended_) {
        pages_.back().labels = labels;
        page_ended_ = true;
    }
}

void PrintJob::send(JobPulse& pulse) {
    const auto sending = std::make_shared<Sending>();
    const std::size_t in_all = labelsOn(pages_);
    auto head = headFor(target_.name, pages_);
    Stall stall(pages_.size());
    const auto goes_on = [&] {
        const std::size_t labels = sending->labels;
        pulse.step({.labels = labels, .in_all = in_all, .can_cancel = false});
        return stall(labels);
    };
    const auto refusal = apart(Outgoing{target_.name, std::move(printer_), std::move(head),
                                        withOwnFonts(std::move(pages_)), sending},
                               goes_on);
    if (!refusal) {
        sending->given_up = true;
        throw printFailure(noAnswer(target_.name) +
                           u" As etiquetas ainda podem sair: confira antes de imprimir de novo."_s);
    }
    if (!refusal->isEmpty()) {
        throw printFailure(
            u"A impressora \"%1\" não aceitou o trabalho: %2."_s.arg(target_.name, *refusal));
    }
}

void PrintJob::write(const QString& path, JobPulse& pulse) {
    QPdfWriter writer(path);
    writer.setResolution(built_in_resolution);
    writer.setPageMargins(QMarginsF());
    writer.setTitle(job_name);
    const std::size_t in_all = labelsOn(pages_);
    const auto goes_on = [&pulse, in_all](std::size_t labels) {
        pulse.step({.labels = labels, .in_all = in_all});
        return true;
    };
    if (!drawPages(writer, pages_, builtInPage(), goes_on)) {
        throw printFailure(u"O arquivo \"%1\" não pôde ser gravado."_s.arg(path));
    }
}

} // namespace etiquetas
