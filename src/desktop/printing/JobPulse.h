#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace etiquetas {

/// How far a job has come.
struct JobProgress {
    std::size_t labels = 0;
    std::size_t in_all = 0; // 0 while the labels are still being drawn, when nobody knows
    bool can_cancel = true;
};

/// What the operator wants of a job that takes long.
enum class JobWish : std::uint8_t { goes_on, ends };

/// Lets the windows live while a job takes long: it beats half a second after the job's first step,
/// and from then on every fiftieth of a second at most.
class JobPulse {
  public:
    using Beat = std::function<JobWish(const JobProgress& progress)>;
    using Milliseconds = std::chrono::milliseconds;

    explicit JobPulse(Milliseconds first = Milliseconds(500), Milliseconds next = Milliseconds(20))
        : first_(first), next_(next) {}

    /// What runs at each beat, and what runs once it beats no more.
    void onBeat(Beat beat, std::function<void()> rests) {
        beat_ = std::move(beat);
        rests_ = std::move(rests);
    }

    /// The job has come this far. Throws a `Failure` where the operator cancels it.
    void step(const JobProgress& progress);
    /// The job is over, or waits for the operator.
    void rest();
    /// True from a cancellation until it rests.
    [[nodiscard]] bool isCancelled() const { return cancelled_; }

  private:
    using Time = std::chrono::steady_clock;

    Milliseconds first_;
    Milliseconds next_;
    Beat beat_ = [](const JobProgress&) { return JobWish::goes_on; };
    std::function<void()> rests_ = [] {};
    std::optional<Time::time_point> due_;
    bool cancelled_ = false;
};

} // namespace etiquetas
