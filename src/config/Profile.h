#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace etiquetas {

// The text of a private-profile file: sections in square brackets, one `key=value` line a key.
// Sections and keys compare without regard to the case of ASCII letters. All is bytes here, so
// that what the program does not know stays as it is when a value is written.

/// Whether the byte order mark of UTF-16 stands at the start of the file, which an editor may have
/// put there: in such a file no section is found, and nothing may be written into it.
[[nodiscard]] bool isUtf16(std::string_view file);

/// The value of a key: of two equal sections only the first is searched, of two equal keys the
/// first counts. Blanks and tabs around it are taken off, and one pair of quotes. Nothing where the
/// section or the key is missing.
[[nodiscard]] std::optional<std::string>
profileValue(std::string_view file, std::string_view section, std::string_view key);

/// The file with the value of the key set. A missing section is appended, a missing key goes
/// after the last key of its section; every other line stays byte for byte. Line ends inside the
/// value are left out, since they would break the file.
[[nodiscard]] std::string withProfileValue(std::string_view file, std::string_view section,
                                           std::string_view key, std::string_view value);

} // namespace etiquetas
