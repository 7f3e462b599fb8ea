#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

struct FrmPadrao;

/// Draws `quantidade` hidden labels of one size, 40 by 20 mm, two across, from column
/// `coluna_etiqueta` on. The description is broken once for all of them; a description that fits
/// one line lets the colour move up.
///
/// `flag` is the banner ("L" or other): without a size, a label of the other banner ends after its
/// barcode digits. `barra` has 12 or 13 digits; one that is refused is a failure that ends the
/// drawing at its first label. `ref3` is the end of the item code, `numero` the size. `NomeFonte`
/// takes the face of the label's small texts.
void Imprime_Oculta_40_20_2(FrmPadrao& form, TextView flag, TextView descricao, TextView ref3,
                            TextView master, TextView barra, TextView numero,
                            std::int16_t quantidade, TextView cor);

} // namespace etiquetas
