#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

struct FrmPadrao;

/// Draws `quantidade` box front labels of one size, 40 by 45 mm, two across, from column
/// `coluna_etiqueta` on. `descricao` loses its line ends, in the caller's text too, and is cut
/// where it reaches 32 mm, within a word if need be. A price of "0,00" is none, and the item code
/// takes its room.
///
/// `flag` is the banner ("L" or other). `barra` has 12 or 13 digits; one that is refused is a
/// failure that ends the drawing at its first label. `ref3` is the end of the item code, `numero`
/// the size. `NomeFonte` takes the face that the description is measured in.
// As many arguments as the label has texts.
// NOLINTNEXTLINE(readability-function-size)
void Imprime_40_45_2(FrmPadrao& form, TextView flag, Text& descricao, TextView cor, TextView ref3,
                     TextView master, TextView barra, TextView numero, TextView preco,
                     std::int16_t quantidade, TextView promocao, TextView semana,
                     TextView bandeira);

} // namespace etiquetas
