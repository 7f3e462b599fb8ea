#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace etiquetas {

using Text = std::u16string;
using TextView = std::u16string_view;

/// The text without the blanks (U+0020, nothing else) at its ends.
[[nodiscard]] TextView trimmed(TextView text);

/// True when nothing but blanks (U+0020) stands in the text.
[[nodiscard]] bool isBlank(TextView text);

/// The first `count` characters, or the whole text where it is shorter.
[[nodiscard]] TextView left(TextView text, std::size_t count);

/// The last `count` characters, or the whole text where it is shorter.
[[nodiscard]] TextView right(TextView text, std::size_t count);

/// `count` characters from position `first`, the first character being 1; what lies outside the
/// text is left out. `first` is at least 1.
[[nodiscard]] TextView mid(TextView text, std::size_t first, std::size_t count);

/// The parts between the separators, as views into `text`; one part when there is none.
[[nodiscard]] std::vector<TextView> split(TextView text, char16_t separator);

/// One character in upper case; covers every letter of code page 1252.
[[nodiscard]] char16_t upperCase(char16_t character);

/// The text in upper case; covers every letter of code page 1252.
[[nodiscard]] Text upperCase(TextView text);

/// True when both texts are the same in upper case.
[[nodiscard]] bool equalIgnoringCase(TextView one, TextView other);

/// True when `one` sorts before `other`, ignoring case; texts that differ only in case sort by
/// their characters, so that the order is total.
[[nodiscard]] bool sortsBefore(TextView one, TextView other);

/// True when the name fits the pattern, ignoring case: "*" stands for any run of characters, "?"
/// for any one character.
[[nodiscard]] bool matchesPattern(TextView name, TextView pattern);

/// The text with each occurrence of `from`, found from left to right, replaced by `to`.
[[nodiscard]] Text replaceAll(TextView text, TextView from, TextView to);

} // namespace etiquetas
