#pragma once

#include "review/DryMachine.h"
#include "review/Finding.h"

#include <vector>

namespace etiquetas {

struct FrmPadrao;

/// What becomes of the texts of the item on the Workbench when its label is drawn on this surface,
/// which is the Workbench's own: broken, shrunk or lost ones, by kind and text; nothing where the
/// label kind has no label.
[[nodiscard]] std::vector<Finding> reviewTexts(FrmPadrao& form, MeasuredSurface& surface);

} // namespace etiquetas
