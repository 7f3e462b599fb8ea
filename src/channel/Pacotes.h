#pragma once

#include "base/Text.h"

namespace etiquetas {

struct CheckBox;
struct FrmPadrao;

// Labels of the item on the Workbench as ZPL programs. A line whose number is none of 16 bits is
// left out, and a step that fails is passed over.

/// Prints the item code on strips of two labels, one for each unit of `txtnumero(2)`; with the
/// check box on, a strip with the order's data goes ahead.
void Imprime_OcultaNova(FrmPadrao& form, const CheckBox& cabecalho);

/// Prints a label for each pack, two on a strip; `txtnumero(2)` is the number of packs. A blank
/// number is reported and gets the focus, and nothing is printed.
void Imprime_Pacote(FrmPadrao& form);

/// The code with as many zeros in front as its trimmed text lacks of 13 characters.
[[nodiscard]] Text RET_CODCERTO(TextView codigo);

} // namespace etiquetas
