#include "desktop/console/Progress.h"

#include "desktop/console/ConsoleText.h"

#include <chrono>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

Progress::Progress(QString work) : work_(std::move(work)), teller_([this] { tellEachSecond(); }) {}

Progress::~Progress() {
    {
        const std::lock_guard lock(mutex_);
        is_ended_ = true;
    }
    ended_.notify_one();
    teller_.join();
}

void Progress::tellEachSecond() {
    std::unique_lock lock(mutex_);
    for (int seconds = 1;
         !ended_.wait_for(lock, std::chrono::seconds(1), [this] { return is_ended_; }); ++seconds) {
        tell(u"%1 (%2 s)"_s.arg(work_).arg(seconds));
    }
}

} // namespace etiquetas
