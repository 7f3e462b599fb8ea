#pragma once

namespace etiquetas {

struct FrmPadrao;

/// Stores the fields that are to survive in the section "Config" and ends the process at once. The
/// close box of the window stores nothing.
void cmd_sair_click(FrmPadrao& form);

} // namespace etiquetas
