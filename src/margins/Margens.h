#pragma once

#include "platform/Keys.h"

namespace etiquetas {

struct FrmPadrao;
struct MargensDialog;
struct TextField;

// The margin dialogs: `FrmMargensOcultaZPL2`, `FrmMargensCxZPL45` and `FrmMargensPackZPL` act
// alike. In each routine `dialog` is one of the three of the form.

/// Load event: all fields as designed, then the margins of the settings file, millimetres with a
/// decimal comma; a margin that is not there is the default.
void margens_load(FrmPadrao& form, MargensDialog& dialog);

/// Entry events of `txtmargem1`, `txtmargem2` and `txtmargemsuperior`: the text is selected, and
/// the keys of a decimal number pass.
void margem_enter(TextField& field);
[[nodiscard]] KeyCode margem_key(KeyCode key);

/// Stores the margins as they were typed, a default for each blank one, and closes the dialog.
void cmd_gravar_click(FrmPadrao& form, MargensDialog& dialog);

/// Prints a strip of two labels, or one carton label, of the item on the Workbench with the margins
/// of the fields; the settings file stays as it is. A blank margin is told, and its field gets the
/// focus; one that is no number leaves its variable as it was. A step that fails is passed over.
///
/// The hidden and the box front label take the first size with a quantity and a barcode. Nothing
/// is drawn where there is none. The box front label prints for its own kind only.
void cmd_teste_click(FrmPadrao& form, MargensDialog& dialog);

/// Closes the dialog.
void cmd_exit_click(FrmPadrao& form, MargensDialog& dialog);

} // namespace etiquetas
