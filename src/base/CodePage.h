#pragma once

#include "base/Text.h"

#include <string>
#include <string_view>

namespace etiquetas {

/// Bytes of Windows code page 1252 as text. The five bytes that the code page leaves undefined
/// become the control characters of the same number, so that every byte survives the round trip.
[[nodiscard]] Text fromCodePage1252(std::string_view bytes);

/// Adds bytes of Windows code page 1252 to a text.
void appendCodePage1252(Text& text, std::string_view bytes);

/// Text as bytes of Windows code page 1252; a character that it does not hold becomes "?".
[[nodiscard]] std::string toCodePage1252(TextView text);

} // namespace etiquetas
