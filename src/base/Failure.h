#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace etiquetas {

/// Numbers of the failures that the system itself raises.
namespace failure_number {
inline constexpr std::int32_t invalid_call = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t subscript_out_of_range = 9;
inline constexpr std::int32_t type_mismatch = 13;
inline constexpr std::int32_t file_access = 75;
inline constexpr std::int32_t invalid_picture = 481;
inline constexpr std::int32_t printer = 482;
} // namespace failure_number

/// The one exception type of the system. What it says to an operator stands in `description`.
class Failure : public std::exception {
  public:
    Failure(std::int32_t number, std::u16string source, std::u16string description)
        : number_(number), source_(std::move(source)), description_(std::move(description)) {}

    [[nodiscard]] std::int32_t number() const noexcept { return number_; }
    [[nodiscard]] const std::u16string& source() const noexcept { return source_; }
    [[nodiscard]] const std::u16string& description() const noexcept { return description_; }
    [[nodiscard]] const char* what() const noexcept override { return "etiquetas::Failure"; }

  private:
    std::int32_t number_;
    std::u16string source_;
    std::u16string description_;
};

/// A text that is no number stands where a number is needed.
[[nodiscard]] Failure typeMismatch();

/// A number lies beyond the range of its type.
[[nodiscard]] Failure overflow();

/// An index lies outside its list.
[[nodiscard]] Failure subscriptOutOfRange();

/// Hears of each failure that `skip` passes over, as long as it lives; the one that was there
/// before hears of them again afterwards. Observers end in the reverse order of their beginning.
///
/// There is one place for an observer in the whole process, the only state of that kind: `skip`
/// stands at a hundred places that know nothing but their step, and none of them should need to
/// know who keeps a log. The library installs no observer, a program does.
class SkipObserver {
  public:
    using Callback = std::function<void(const Failure&)>;

    explicit SkipObserver(Callback told);
    ~SkipObserver();
    SkipObserver(const SkipObserver&) = delete;
    SkipObserver(SkipObserver&&) = delete;
    SkipObserver& operator=(const SkipObserver&) = delete;
    SkipObserver& operator=(SkipObserver&&) = delete;

  private:
    Callback earlier_;
};

/// Tells the observer, if there is one, of a failure that is passed over. What the observer throws
/// is dropped.
void tellSkipObserver(const Failure& failure) noexcept;

/// Skip mode: runs one step and passes over its failure; nobody but the observer is told. Tells
/// whether the step went through. Only a `Failure` is passed over; any other exception is a fault
/// of the program.
template <typename Step>
bool skip(Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const Failure& failure) {
        tellSkipObserver(failure);
        return false;
    }
}

} // namespace etiquetas
