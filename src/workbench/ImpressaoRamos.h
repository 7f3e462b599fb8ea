#pragma once

#include "workbench/ImpressaoComum.h"

namespace etiquetas {

// The branches of the Print command, one for each label kind. Each prints the item on the Workbench
// as one job, and tells whether the command goes on behind it.

/// Hidden labels: two for each pair of each size.
Course printHiddenLabels(FrmPadrao& form);

/// Box front labels: one for each pair of each size. A size without a barcode is passed over.
Course printBoxFronts(FrmPadrao& form);

/// Box front labels with a photograph, on the printer's own page.
Course printBoxFronts100x40(FrmPadrao& form);

/// Accessory labels: as many as `TXTPARES` tells.
Course printAccessories(FrmPadrao& form);

/// Carton labels: one for each volume from `cmb_vol1` to `cmb_vol2`; just the first where the
/// second is below it.
Course printCartons(FrmPadrao& form);

} // namespace etiquetas
