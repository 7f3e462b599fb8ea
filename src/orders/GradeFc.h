#pragma once

#include "orders/OrderIndex.h"

namespace etiquetas {

class OrderLine;
struct FrmPadrao;

/// Fills the Workbench with the box item chosen in `cmb_referencia`: the item fields from its
/// first line in `List1`, one size slot from each of its lines, the totals, the photograph. Where
/// no line matches, the item fields keep the values of the item before. A fifteenth size is
/// reported and left out. Fails where a quantity does not convert or leaves 16 bits.
void carrega_gradeFc(FrmPadrao& form);

/// Adds a box line to an index of the order by its items, and gives the first line of the same one;
/// `none` where the line is too short.
LineIndex::Line indexBoxLine(LineIndex& index, LineIndex::Line number, const OrderBytes& line);

/// Whether a line of this width is one that the loader reads; it passes over all others.
[[nodiscard]] bool hasBoxLayout(const OrderLine& line);

} // namespace etiquetas
