#pragma once

#include "base/Text.h"

#include <cstdint>
#include <vector>

namespace etiquetas {

struct FrmPadrao;

// The road of labels in a printer language: the program goes into the job file, and the
// command file takes that to the printer's port.

/// A program in a printer language, line by line.
using PrinterProgram = std::vector<Text>;

/// How the last line of the command file ends: as any other, or with one more line feed in it.
enum class CommandFileEnd : std::uint8_t { plain, extra_line_feed };

/// Writes the job file anew and starts the command file, which runs beside the system; both stand
/// in the program's folder. The job before is never left in place of one that can't be written. A
/// command file that is there stays as it is, with the port of the day it was written. A step that
/// fails is passed over, and nobody is told.
void sendProgram(FrmPadrao& form, const PrinterProgram& program, CommandFileEnd end);

} // namespace etiquetas
