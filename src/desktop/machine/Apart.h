#pragma once

#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <type_traits>
#include <utility>

namespace etiquetas {

// A print server that takes a connection and never answers holds whoever asks it for minutes, and a
// call to it does not end. So it is asked on a thread of its own, which is left behind.

/// How long the print system may take to answer.
inline constexpr std::chrono::seconds print_system_patience{10};

/// Goes on until a time is over.
class Deadline {
  public:
    explicit Deadline(std::chrono::milliseconds time)
        : end_(std::chrono::steady_clock::now() + time) {}

    [[nodiscard]] bool operator()() const { return std::chrono::steady_clock::now() < end_; }

  private:
    std::chrono::steady_clock::time_point end_;
};

/// Begins a deed on a thread of its own. Nobody may wait for its end, so that it must own all that
/// it uses.
template <typename Deed>
[[nodiscard]] std::future<std::invoke_result_t<Deed&>> begunApart(Deed deed) {
    std::packaged_task<std::invoke_result_t<Deed&>()> task(std::move(deed));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    return result;
}

/// The result of a deed that was begun, or throws what that throws. Meanwhile `goes_on` is asked
/// every few milliseconds on this thread; nothing where it says no.
template <typename Result, typename GoesOn>
[[nodiscard]] std::optional<Result> awaited(std::future<Result> result, GoesOn&& goes_on) {
    constexpr std::chrono::milliseconds glance{10};
    while (result.wait_for(glance) != std::future_status::ready) {
        if (!goes_on()) {
            return std::nullopt;
        }
    }
    return result.get();
}

/// Runs a deed on a thread of its own, and waits for it as long as `goes_on` says so.
template <typename Deed, typename GoesOn>
[[nodiscard]] auto apart(Deed deed, GoesOn&& goes_on)
    -> std::optional<std::invoke_result_t<Deed&>> {
    return awaited(begunApart(std::move(deed)), std::forward<GoesOn>(goes_on));
}

} // namespace etiquetas
