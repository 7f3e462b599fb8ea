#pragma once

namespace etiquetas {

struct FrmPadrao;

/// Ends a label of a strip of two: behind the second column the strip's page ends, and column 1 is
/// next.
void endLabel(FrmPadrao& form);

} // namespace etiquetas
