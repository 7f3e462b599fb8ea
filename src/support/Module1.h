#pragma once

#include "platform/Fields.h"
#include "platform/Keys.h"

namespace etiquetas {

/// Selects a field's text as it gains the focus, so that typing replaces it. Blanks at its ends
/// don't count towards the length.
void SelecionaTexto(TextField& field);

/// The key of a whole-number field: digits, backspace and the minus sign pass, any other key is
/// swallowed (0). It looks at one key at a time.
[[nodiscard]] KeyCode SoNumero(KeyCode key);

/// The key of a decimal field: as `SoNumero`, and the comma passes. A point becomes a comma, so
/// that the numeric keypad writes decimals.
[[nodiscard]] KeyCode SoDecimal(KeyCode key);

} // namespace etiquetas
