#pragma once

#include "base/Text.h"

#include <optional>

namespace etiquetas {

struct FrmPadrao;

/// Loads the order of `txtarquivo` for the label kind of `cmbtipo`: finds its file in the folder of
/// `lblpath`, shows the family's panel, takes the lines to `List1` and the item keys to the item
/// list, and has the first item loaded. What is not found is reported in a message box and hides
/// the Print command; a file that can't be read is reported too. Fails where the item loader does.
void carrega_pedido(FrmPadrao& form);

/// Path of the file that `carrega_pedido` has loaded last; nothing where it found none, or where
/// the file is gone since.
[[nodiscard]] std::optional<Text> loadedOrderPath(const FrmPadrao& form);

} // namespace etiquetas
