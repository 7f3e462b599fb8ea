#pragma once

#include "base/Text.h"

#include <optional>

namespace etiquetas {

class Files;

// The margins of the printer languages: positions in the language's own units (dots in ZPL), whole
// numbers. They stand in the settings file beside the millimetres of the drawn labels.

/// A key in the settings file, and what stands for a blank value.
struct MarginKey {
    TextView key;
    TextView default_value;
};

/// The text of the key, empty where it is missing; nothing where there is no settings file.
[[nodiscard]] std::optional<Text> storedMargin(const Files& files, const MarginKey& margin);

/// Stores a text under the key, whatever it holds. Where that can't be done, nobody is told.
void storeMargin(Files& files, const MarginKey& margin, TextView value);

} // namespace etiquetas
