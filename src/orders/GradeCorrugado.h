#pragma once

#include "orders/OrderIndex.h"

namespace etiquetas {

class OrderLine;
struct FrmPadrao;

/// Fills the corrugated panel with the pack chosen in `cmb_referencia1`, from its first line in
/// `List1`, and offers its carton numbers in `cmb_vol1` and `cmb_vol2`; `lblmax` takes the last
/// one. Where no line matches, all of it is empty. Fails where a carton number is no number or
/// leaves 16 bits.
void carrega_corrugado(FrmPadrao& form);

/// Adds a carton line to an index of the order by its packs, and gives the first line of the same
/// one; `none` where the line is too short.
LineIndex::Line indexCorrugatedLine(LineIndex& index, LineIndex::Line number,
                                    const OrderBytes& line);

/// Whether a line of this width is one that the loader reads; it passes over all others.
[[nodiscard]] bool hasCorrugatedLayout(const OrderLine& line);

} // namespace etiquetas
