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

/// Runs a deed on a thread of its own and gives its result, or throws what it throws. Meanwhile
/// `goes_on` is asked every few milliseconds on this thread; nothing where it says no. The deed may
/// still run then, so that it must own all that it uses.
template <typename Deed, typename GoesOn>
[[nodiscard]] auto apart(Deed deed, GoesOn&& goes_on)
    -> std::optional<std::invoke_result_t<Deed&>> {
    constexpr std::chrono::milliseconds glance{10};
    std::packaged_task<std::invoke_result_t<Deed&>()> task(std::move(deed));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    while (result.wait_for(glance) != std::future_status::ready) {
        if (!goes_on()) {
            return std::nullopt;
        }
    }
    return result.get();
}

} // namespace etiquetas
