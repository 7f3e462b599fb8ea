#pragma once

#include "base/Text.h"

namespace etiquetas {

struct FrmPadrao;

/// Draws a strip of its own with the order number in both columns, so that the batches on a roll
/// can be told apart: `tipo` "OCULTA" for 40 by 20 mm labels, "FC" for 40 by 45 mm ones, in any
/// case. Any other `tipo` draws nothing.
void Imprime_CabecAlho(FrmPadrao& form, TextView tipo);

} // namespace etiquetas
