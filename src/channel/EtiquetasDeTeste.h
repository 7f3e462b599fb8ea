#pragma once

#include "channel/Transporte.h"

namespace etiquetas {

struct FrmPadrao;
struct MargensLinguagem;

// The test labels of the dialogs that calibrate margins, as programs in the printer's language.
// `cmbintensidade` and `cmbvelocidade` set darkness and speed. A line whose margin is no number
// of 16 bits where it needs one is left out.

/// The item code once in each column, in ZPL.
[[nodiscard]] Programa teste_oculta_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo);

/// The item code once in each column, turned by a quarter, in ZPL.
[[nodiscard]] Programa teste_oculta_virada_zpl(const FrmPadrao& form,
                                               const MargensLinguagem& dialogo);

/// The item code once in each column, in PPLA.
[[nodiscard]] Programa teste_oculta_ppla(const FrmPadrao& form, const MargensLinguagem& dialogo);

/// A sample of a box front label in both columns, in ZPL.
[[nodiscard]] Programa teste_frente_zpl(const FrmPadrao& form, const MargensLinguagem& dialogo);

} // namespace etiquetas
