#pragma once

#include "base/Text.h"

#include <cstdint>

namespace etiquetas {

struct FrmPadrao;

/// Draws one carton label, 100 by 140 mm, for each volume number from `de` to `ate`, one to a page;
/// none where `de` is above `ate`. Description and size run shrink until they fit. The volume
/// number is padded to the length of `lblmax`. The size run is that of `txtgrade1` and `txtgrade2`;
/// the arguments `grade1` and `grade2` are not read.
///
/// Texts and bars stand from (`PackX`, `PackY`); rules and logo from (`PackLinhaX`, `PackLinhaY`),
/// which are set from the former. `flag` is the banner ("L" or other). The Code 39 bars hold all of
/// `barra` while `txtean` is visible, else its first 12 characters; a text that they can't hold is
/// a failure that ends the drawing at its first label. `NomeFonte` takes the label's one face.
// As many arguments as the label has texts.
// NOLINTNEXTLINE(readability-function-size)
void EtiPack(FrmPadrao& form, TextView flag, TextView destino, TextView pedido, TextView codigo,
             TextView fornecedor, TextView descricao, TextView cor, TextView barra, TextView grade1,
             TextView grade2, TextView totgrade, std::int16_t de, std::int16_t ate,
             TextView semana);

} // namespace etiquetas
