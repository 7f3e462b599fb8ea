#pragma once

#include <cstdint>
#include <exception>
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

/// Skip mode: runs one step and passes over its failure in silence. Tells whether the step went
/// through. Only a `Failure` is passed over; any other exception is a fault of the program.
template <typename Step>
bool skip(Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

} // namespace etiquetas
