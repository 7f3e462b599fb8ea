#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

struct FrmPadrao;

/// Draws `quantidade` accessory labels, 40 by 20 mm, two across, from column `coluna_etiqueta` on.
/// A description too wide for one line is broken after the last separator up to the first
/// character that is too much; one without a separator there is not printed. A price of "0,00" is
/// none.
///
/// Each call moves `Margem_oculta1` by 4.8 and `Margem_oculta11` by 1.5 mm to the left, so that
/// both are to be read anew before each call. `flag` is the banner ("L" or other). `barra` has 12
/// or 13 digits; one that is refused is a failure that ends the drawing at its first label. `ref3`
/// and `pares` are not drawn. `NomeFonte` takes the face of the label's small texts.
// As many arguments as the label has texts.
// NOLINTNEXTLINE(readability-function-size)
void Imprime_Acessorio_40_20_2(FrmPadrao& form, TextView flag, TextView descricao_cor,
                               TextView ref3, TextView codigo, TextView barra, TextView pares,
                               TextView preco, std::int16_t quantidade, TextView bandeira,
                               TextView semana, TextView promocao);

} // namespace etiquetas
