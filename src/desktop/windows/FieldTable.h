#pragma once

#include "desktop/windows/EventBridge.h"

class QWidget;

namespace etiquetas {

struct FrmPadrao;

/// Binds the fields of the Workbench to the widgets of its window, found by their object names, and
/// to their event handlers. It is the one place that knows both.
[[nodiscard]] BridgedWindow fieldTable(FrmPadrao& form, QWidget& window);

} // namespace etiquetas
