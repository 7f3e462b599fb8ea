#pragma once

#include <QString>

namespace etiquetas {

struct FrmPadrao;

/// True while a margin dialog is open, which is so during its test print alone: the Print command
/// closes all of them.
[[nodiscard]] bool isTestPrint(const FrmPadrao& form);

/// What a job that is drawn now is of, in words: kind, order and item, for the name of its file and
/// the title of the preview.
[[nodiscard]] QString jobTitle(const FrmPadrao& form);

} // namespace etiquetas
