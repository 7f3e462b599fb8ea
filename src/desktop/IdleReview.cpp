#include "desktop/IdleReview.h"

#include "base/Failure.h"

#include <QElapsedTimer>

namespace etiquetas {

namespace {

// Reading so many lines takes a few hundredths of a second; more would be felt.
constexpr std::size_t most_lines = 20'000;

// Until the window is looked after again, in ms.
constexpr qint64 slice = 10;

} // namespace

IdleReview::IdleReview(const FrmPadrao& form, const QtPrinters& printers, const QString& folder,
                       std::function<bool()> is_busy)
    : form_(form), files_(folder), measure_(printers, folder), is_busy_(std::move(is_busy)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { work(); });
}

void IdleReview::begin() {
    review_.reset();
    findings_.clear();
    is_done_ = false;
    if (form_.List1.entries.size() <= most_lines) {
        timer_.start();
    }
}

const std::vector<Finding>& IdleReview::finish() {
    timer_.stop();
    while (!is_done_ && step()) {
    }
    return findings_;
}

std::optional<std::size_t> IdleReview::count() const {
    return is_done_ ? std::optional(findings_.size()) : std::nullopt;
}

// Nothing runs beside an event, which may change the order.
void IdleReview::work() {
    if (is_busy_()) {
        return;
    }
    QElapsedTimer clock;
    clock.start();
    while (step()) {
        if (clock.elapsed() >= slice) {
            return;
        }
    }
    timer_.stop();
    ended_();
}

// False at the end, which a failure is too.
bool IdleReview::step() {
    bool goes_on = false;
    skip([&] {
        if (!review_) {
            review_.emplace(form_, files_, measure_);
            goes_on = true;
            return;
        }
        goes_on = review_->next();
        if (!goes_on) {
            findings_ = review_->findings();
        }
    });
    if (!goes_on) {
        is_done_ = true;
        review_.reset();
    }
    return goes_on;
}

} // namespace etiquetas
