#pragma once

#include "base/Failure.h"
#include "base/Text.h"

namespace etiquetas {

/// A text that a symbology does not take; `source` names the drawing.
[[nodiscard]] inline Failure barFailure(TextView source, TextView description) {
    constexpr std::uint32_t number = 0x80040201;
    return {static_cast<std::int32_t>(number), Text(source), Text(description)};
}

/// What is said of a character that a symbology lacks.
inline constexpr TextView invalid_character = u"An Invalid Character Found in Bar Text";

} // namespace etiquetas
