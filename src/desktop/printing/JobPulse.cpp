#include "desktop/printing/JobPulse.h"

#include "desktop/printing/PrintFailure.h"

namespace etiquetas {

using namespace Qt::StringLiterals;

void JobPulse::step(const JobProgress& progress) {
    const auto now = Time::now();
    if (!due_) {
        due_ = now + first_;
    }
    if (now < *due_) {
        return;
    }
    const JobWish wish = beat_(progress);
    due_ = Time::now() + next_;
    if (wish == JobWish::ends && progress.can_cancel) {
        cancelled_ = true;
        throw printFailure(u"O trabalho foi cancelado."_s);
    }
}

void JobPulse::rest() {
    cancelled_ = false;
    if (due_) {
        due_.reset();
        rests_();
    }
}

} // namespace etiquetas
