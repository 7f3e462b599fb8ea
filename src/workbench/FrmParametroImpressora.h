#pragma once

namespace etiquetas {

struct FrmPadrao;

// The dialog of the printer parameters, which all stand in the section "Impressora" of the settings
// file. What it stores goes to the Workbench's fields too.

/// Load event, at each opening: all fields as designed, the pick lists filled, the first row of
/// each chosen.
void FrmParametroImpressora_load(FrmPadrao& form);

/// Activation event, after the load. The first one of the run, and only that, shows what is
/// stored.
void FrmParametroImpressora_activate(FrmPadrao& form);

/// Copies the stored values into the fields; changes nothing where there is no settings file.
void load_parametros(FrmPadrao& form);

/// Shows the panel of the selected port alone. What `optParalela`, `optSerial` and `optUsb` do on a
/// click, on entering and on leaving.
void Oculta_Frame(FrmPadrao& form);

/// Lets the operator browse for the order folder; a path that is no folder is reported
/// and not taken, and so is a browse without a choice.
void CMD_GETPATH_click(FrmPadrao& form);

/// Stores all parameters, hands them to the Workbench and closes the dialog. A folder that does not
/// exist is replaced by the program's own; a blank one is told and stored blank, while the
/// Workbench goes on with the program's folder. The command file of the direct printer channel is
/// deleted, so that the next one is written with the new ports.
void cmd_grava_click(FrmPadrao& form);

/// Command "&Sair" of the dialog: closes it and stores nothing.
void FrmParametroImpressora_cmd_sair_click(FrmPadrao& form);

} // namespace etiquetas
