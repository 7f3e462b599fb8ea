#pragma once

#include <QString>

namespace etiquetas {

struct ConsoleOptions;

/// True where the arguments ask for more than the window, so that no display is needed: any option
/// of ours but those that name the folder or open the manual.
[[nodiscard]] bool asksForConsole(int argc, const char* const* argv);

/// Does what the command line asks for, without a display, and returns the exit code. Makes the
/// toolkit's application.
[[nodiscard]] int runConsole(int argc, char** argv);

} // namespace etiquetas
