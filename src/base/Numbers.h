#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

// Numbers in texts, by the rules of Brazilian Portuguese (comma decimal, points that group are
// passed over), whatever the locale of the machine.

/// True when the text is a number: "1.234,56", " R$ 5", "(5)", "12-", "1E3", "&H10".
[[nodiscard]] bool isNumeric(TextView text);

/// True when the one character is a digit, the only character that is a number by itself.
[[nodiscard]] bool isNumeric(char16_t character);

/// The text as a 16-bit integer, a half rounded to the even neighbour. Fails with a type mismatch
/// where it is no number, and with an overflow beyond -32768 to 32767.
[[nodiscard]] std::int16_t toInteger16(TextView text);

/// The text as a 32-bit float, correctly rounded. Fails with a type mismatch where it is no
/// number, and with an overflow beyond the float's range.
[[nodiscard]] float toSingle(TextView text);

/// A sum or product of 16-bit integers brought back to 16 bits; fails with an overflow.
[[nodiscard]] std::int16_t toInteger16(std::int32_t value);

/// Plain digits, with a minus sign where the number is negative.
[[nodiscard]] Text numberText(std::int32_t value);

/// Plain digits with room for the sign in front: a blank where the number is not negative.
[[nodiscard]] Text signedNumberText(std::int32_t value);

/// The number in a pattern of "#" and zeros: at least so many digits as there are zeros in the
/// pattern, filled with zeros on the left, no grouping (7 in "#000" is "007").
[[nodiscard]] Text formatted(std::int32_t value, TextView pattern);

} // namespace etiquetas
