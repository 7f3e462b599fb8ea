#pragma once

#include "base/Failure.h"
#include "base/Text.h"
#include "labels/JobSetup.h"
#include "model/FrmPadrao.h"
#include "orders/Complemento.h"
#include "platform/MessageBoxes.h"
#include "workbench/LabelKinds.h"

namespace etiquetas {

// What the branches of the Print command share: each label kind has one. A step that fails is
// passed over.

/// Asks the operator; true only on Yes.
[[nodiscard]] bool confirm(FrmPadrao& form, Text question);

/// An item without a colour is printed only when the operator wants it so.
[[nodiscard]] Course askAboutColour(FrmPadrao& form, const TextField& colour);

/// Both logos must have been loaded, whichever banner the order has.
[[nodiscard]] Course checkLogos(FrmPadrao& form);

/// Ends the command where the item has no code.
[[nodiscard]] Course checkCode(FrmPadrao& form, const TextField& code);

/// Tells the operator where no item is chosen. Not every branch ends then.
Course checkDescription(FrmPadrao& form, const TextField& description);

/// Sets up a job of labels two across, from the first column on: printer, unit, page, margins,
/// font, banner.
void beginStrips(FrmPadrao& form, const Stock& stock);

/// Ends the command where the size that was looked up last has no master code or no barcode.
[[nodiscard]] Course checkSizeCodes(FrmPadrao& form);

/// Prints the sizes of the item and ends the job: looks up the codes of each filled size slot in
/// turn, and hands the slot to `print`, which tells the course. Where that ends, the job stays open
/// as far as it has gone.
template <typename Print>
[[nodiscard]] Course printSizes(FrmPadrao& form, Print&& print) {
    for (std::size_t slot = 0; slot < total_slots; ++slot) {
        if (isBlank(form.txtnumero[slot].text)) {
            continue;
        }
        skip([&] { ret_codcomplemento(form, form.Label7[slot].caption); });
        if (print(slot) == Course::ends) {
            return Course::ends;
        }
    }
    endJob(form);
    return Course::goes_on;
}

} // namespace etiquetas
