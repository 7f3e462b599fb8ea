#include "desktop/printing/PrintJob.h"

#include "desktop/machine/Apart.h"
#include "desktop/machine/KeptHeap.h"
#include "desktop/machine/PrintSystem.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/OutgoingJob.h"
#include "desktop/printing/PrintFailure.h"

#include <QLocale>
#include <QPdfWriter>

#include <algorithm>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

constexpr int built_in_resolution = 1200; // dots to the inch

const QString job_name = u"Etiquetas"_s;

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
    const auto drawn = std::make_shared<OutgoingJob::Drawn>(0);
    const std::size_t in_all = labelsOn(pages_);
    Stall stall(patience_, pages_.size());
    const auto goes_on = [&] {
        const std::size_t labels = *drawn;
        pulse_->step({.labels = labels, .in_all = in_all, .can_cancel = false});
        return stall(labels);
    };
    const auto told =
        apart(OutgoingJob(std::move(queue_), job_name, std::move(pages_), drawn), goes_on);
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
