#pragma once

#include "orders/OrderIndex.h"

namespace etiquetas {

class OrderLine;
struct FrmPadrao;

/// Fills the Workbench with the accessory chosen in `cmb_referencia`: the item fields and the
/// quantity from its first line in `List1`. Lines of width 11 take a size slot each, and the one
/// beyond the last slot is reported. Where no line matches, the item fields keep the values of the
/// item before.
void carrega_grade_Acessorio(FrmPadrao& form);

/// Adds an accessory line to an index of the order by its items, and gives the first line of the
/// same one; `none` where the line is too short.
LineIndex::Line indexAccessoryLine(LineIndex& index, LineIndex::Line number,
                                   const OrderBytes& line);

/// Whether a line of this width is one that the loader reads; it passes over all others.
[[nodiscard]] bool hasAccessoryLayout(const OrderLine& line);

} // namespace etiquetas
