#pragma once

#include "channel/Transporte.h"

namespace etiquetas {

struct FrmPadrao;
struct MargensLinguagem;
struct TestLabel;

/// The test label of a dialog that calibrates margins, as a program in the printer's language, with
/// the margins of the dialog's fields. `cmbintensidade` and `cmbvelocidade` set darkness and speed.
/// A line whose margin is no number of 16 bits where it needs one is left out.
[[nodiscard]] PrinterProgram testLabelProgram(const FrmPadrao& form, const TestLabel& label,
                                              const MargensLinguagem& dialog);

} // namespace etiquetas
