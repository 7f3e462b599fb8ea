#pragma once

#include <QString>

namespace etiquetas {

/// Why the last call of this thread to the machine's print system failed; empty where it did not,
/// and where the machine has none that tells.
[[nodiscard]] QString printSystemError();

/// Shuts each connection of this program to the machine's print system, whatever thread has it:
/// what waits for an answer fails, and what has not been sent yet is not sent any more.
void breakOffPrintSystem();

} // namespace etiquetas
