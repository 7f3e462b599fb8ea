#pragma once

#include "platform/MessageBoxes.h"
#include "platform/Pointer.h"
#include "platform/PrintSurface.h"

namespace etiquetas {

/// Tells the operator which of the label faces the surface's printer does not offer. It installs
/// nothing and never fails; a surface that can't list its faces lacks them all.
void VerificaFontes(const PrintSurface& surface, Pointer& pointer, MessageBoxes& messages);

} // namespace etiquetas
