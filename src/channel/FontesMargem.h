#pragma once

#include "base/Text.h"

#include <vector>

namespace etiquetas {

struct FrmPadrao;

// Where labels in a printer language get their margins from: the settings file, in the language of
// `lbllinguagem` ("ZPL", any other text is PPLA). A blank value takes its default, and so do all
// where there is no settings file.

/// Margins as texts, in the language's own units. `superior` is empty where the language has none.
struct MargensDeEtiqueta {
    std::vector<Text> colunas; // from left to right
    Text superior;
};

/// Hidden label, three columns.
[[nodiscard]] MargensDeEtiqueta pega_margemoculta(const FrmPadrao& form);

/// Hidden label, seven columns.
[[nodiscard]] MargensDeEtiqueta pega_margemoculta7(const FrmPadrao& form);

/// Hidden label, eight columns. In PPLA the eighth column stands on the seventh.
[[nodiscard]] MargensDeEtiqueta pega_margemoculta8(const FrmPadrao& form);

/// Box front label, two columns.
[[nodiscard]] MargensDeEtiqueta pega_margemfc(const FrmPadrao& form);

/// Second box front label, two columns. In PPLA its top is that of ZPL.
[[nodiscard]] MargensDeEtiqueta pega_margemfc2(const FrmPadrao& form);

/// Corrugated label, one column.
[[nodiscard]] MargensDeEtiqueta pega_margemcorrugado(const FrmPadrao& form);

} // namespace etiquetas
