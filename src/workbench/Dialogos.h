#pragma once

namespace etiquetas {

struct FrmPadrao;

// The commands that open a dialog beside the Workbench. A dialog that is open already comes to the
// front and keeps what it shows.

/// Opens the margin dialog of the label kind; a kind without one opens nothing. Without an order,
/// whose item a test print needs, the operator is told so instead.
void cmd_calibra_click(FrmPadrao& form);

/// Opens the printer parameters.
void cmd_parametro_click(FrmPadrao& form);

} // namespace etiquetas
