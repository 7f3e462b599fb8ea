#pragma once

#include "base/Text.h"

namespace etiquetas {

struct FrmPadrao;

/// Finds barcode and master code of the item on the Workbench in one size, and leaves them in
/// `lblbarra` and `lblmaster`, or empties both. A 12-digit barcode gets its check digit. Size 0
/// reads the order as accessory lines. Fails, both labels empty, where the size is no number.
void ret_codcomplemento(FrmPadrao& form, TextView tamanho);

/// Check digit of 12 digits (GS1 General Specifications), as text with room for a sign in front: a
/// blank. A character that is no digit counts 0.
[[nodiscard]] Text DigitoEan(TextView codigo);

/// Loads the photograph of the product into `pctimage`, or clears it where there is none or where
/// its file is no picture. A code that is no plain file name has none.
void pega_imagem(FrmPadrao& form);

} // namespace etiquetas
