#pragma once

#include "base/Text.h"

namespace etiquetas {

struct FrmPadrao;

/// What the operator is asked after each job; Yes takes the printed item off the order.
inline constexpr TextView closing_question = u"A Impressão está OK";

/// The Print command: checks the fields for the label kind, prints the item as one job, asks
/// whether the labels came out well and, on yes, takes the item off its list and loads the next
/// one. A step that fails is passed over in silence; what the operator is to know is asked or told
/// in a message box.
void cmd_printacessorio_click(FrmPadrao& form);

} // namespace etiquetas
