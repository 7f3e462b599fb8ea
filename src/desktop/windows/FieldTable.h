#pragma once

#include "desktop/windows/EventBridge.h"

namespace etiquetas {

class WorkbenchWindow;
struct FrmPadrao;

/// Binds the fields of the Workbench to the widgets of its window, found by their object names, and
/// to their event handlers. It is the one place that knows both.
[[nodiscard]] BridgedWindow fieldTable(FrmPadrao& form, WorkbenchWindow& window);

} // namespace etiquetas
