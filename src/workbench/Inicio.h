#pragma once

namespace etiquetas {

struct FrmPadrao;

/// The start-up, run once when the window is created: printers, logos, label kinds, settings, saved
/// fields, caption, fonts. A step that fails is passed over, so that the window always opens.
void FrmPadrao_load(FrmPadrao& form);

/// The window has one size: 11250 by 10065 twips.
void FrmPadrao_resize(FrmPadrao& form);

/// Closes the margin dialogs.
void FrmPadrao_unload(FrmPadrao& form);

/// Closes the three margin dialogs, those of the hidden, box front and corrugated labels in this
/// order.
void closeMarginDialogs(FrmPadrao& form);

} // namespace etiquetas
