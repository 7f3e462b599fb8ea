#pragma once

#include "base/Text.h"

namespace etiquetas {

class FolderPicker;

/// Lets the operator pick a folder, under that title; a path of any length is taken. Empty where
/// they picked none, and where the picker fails.
[[nodiscard]] Text BrowseFolder(FolderPicker& folders, TextView title);

} // namespace etiquetas
