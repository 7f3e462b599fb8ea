#pragma once

#include "base/Text.h"
#include "labels/Stock.h"

#include <cstdint>
#include <span>

namespace etiquetas {

/// Whether the Print command goes on after its branch, to its closing question in the end.
enum class Course : std::uint8_t { goes_on, ends };

/// A kind of label: all that the Workbench knows of it.
struct LabelKind {
    TextView name;      // in `cmbtipo`
    bool offered;       // as an entry of `cmbtipo`; the others have to be typed
    TextView family;    // of its order files; a kind without one can't be looked up
    const Stock* stock; // page, margins and margin dialog
    Course (*print)(FrmPadrao& form, const Stock& stock); // its branch of the Print command
};

/// All kinds; those that are offered stand in the order of `cmbtipo`.
[[nodiscard]] std::span<const LabelKind> labelKinds();

/// The kind of that name; nothing where there is none.
[[nodiscard]] const LabelKind* labelKind(TextView name);

// The branches of the Print command. Each prints the item on the Workbench on its stock, as one
// job, and tells whether the command goes on after it.

/// Hidden labels: two for each pair of each size.
Course printHiddenLabels(FrmPadrao& form, const Stock& stock);

/// Box front labels: one for each pair of each size. A size without a barcode is passed over.
Course printBoxFronts(FrmPadrao& form, const Stock& stock);

/// Box front labels with a photograph: one for each pair of each size that has a barcode.
Course printBoxFronts100x40(FrmPadrao& form, const Stock& stock);

/// Accessory labels: as many as `TXTPARES` tells.
Course printAccessories(FrmPadrao& form, const Stock& stock);

/// Carton labels: one for each volume from `cmb_vol1` to `cmb_vol2`; just the first where the
/// second is below it.
Course printCartons(FrmPadrao& form, const Stock& stock);

} // namespace etiquetas
