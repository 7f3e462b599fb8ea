#pragma once

#include <QString>

namespace etiquetas {

/// Why the last call of this thread to the machine's print system failed; empty where it did not,
/// and where the machine has none that tells.
[[nodiscard]] QString printSystemError();

} // namespace etiquetas
