#pragma once

#include "desktop/windows/EventBridge.h"

namespace etiquetas {

class DialogWindow;
struct FrmPadrao;
struct MargensDialog;
class WorkbenchWindow;

// Bind the fields of a dialog to the widgets of its window, found by their object names, and to
// their event handlers. The window is open over the main window while the dialog is.

/// Rows of a margin dialog, which is one of the form's.
[[nodiscard]] BridgedWindow marginTable(FrmPadrao& form, MargensDialog& dialog,
                                        DialogWindow& window, WorkbenchWindow& main);

/// Rows of the printer parameters.
[[nodiscard]] BridgedWindow parameterTable(FrmPadrao& form, DialogWindow& window,
                                           WorkbenchWindow& main);

} // namespace etiquetas
