#pragma once

#include "review/Finding.h"

#include <vector>

namespace etiquetas {

class PrintSurface;
struct FrmPadrao;

/// Reads the loaded order once more and tells what an operator would stumble over when they print
/// it with the label kind that is chosen, item by item in the order of the item list; what concerns
/// no item comes first. Nothing is printed, no field changes, and no file is written. Nothing is
/// found where no order is loaded. Fails where the file can't be read.
///
/// Texts are measured by `measure`, whose font changes: it is not to be the surface that the next
/// job is drawn on. A print surface of its own on the same printers has the same faces.
[[nodiscard]] std::vector<Finding> reviewOrder(const FrmPadrao& form, PrintSurface& measure);

} // namespace etiquetas
