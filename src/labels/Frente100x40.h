#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

struct FrmPadrao;

/// Draws `quantidade` box front labels of one size with the photograph of the product, 100 by 40
/// mm, one to a page, all texts in the face `NomeFonte`. A description that reaches 50 mm is broken
/// at the last blank before. A price of "0,00" is none.
///
/// Everything stands from (`PackLinhaX`, `PackLinhaY`). `flag` is the banner ("L" or other).
/// `barra` has 12 or 13 digits; one that is refused is a failure that ends the drawing at its first
/// label. `ref3` is the end of the item code, `numero` the size.
void Eti100_40_1(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3, TextView codigo,
                 TextView barra, TextView numero, TextView preco, std::int16_t quantidade);

} // namespace etiquetas
