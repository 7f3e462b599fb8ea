#pragma once

#include "base/Text.h"

namespace etiquetas {

struct FrmPadrao;

/// Totals the filled size slots into `TXTPARES`, and twice that into `TXTOCULTAS`. Fails, the
/// totals unchanged, where a quantity is no number or the total leaves 16 bits.
void soma(FrmPadrao& form);

/// Empties and hides the 14 size slots.
void OCULTA_ITENS(FrmPadrao& form);

/// Gives a size and its quantity the first free slot; false when all are taken. A blank size leaves
/// its slot free.
bool fillSlot(FrmPadrao& form, TextView size, TextView quantity);

/// Tells the operator that a size of the order found no slot.
void tellSlotsAreFull(FrmPadrao& form);

/// Shows and unlocks the filled size slots, adds `txtlote` to each quantity while the options panel
/// shows, and totals them. Fails where a number does not convert or leaves 16 bits.
void EXIBE_ITENS(FrmPadrao& form);

/// Empties the item fields and then fails with a subscript out of range, so that the size slots and
/// the corrugated fields keep their values until the next load replaces them.
void limpa_objetos(FrmPadrao& form);

/// The named step after the item loaders; there is nothing to hide.
void oculta_objetos(FrmPadrao& form);

} // namespace etiquetas
