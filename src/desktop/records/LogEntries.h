#pragma once

#include "base/Failure.h"
#include "base/Text.h"
#include "desktop/machine/Log.h"
#include "desktop/printing/JobDelivery.h"
#include "platform/MessageBoxes.h"
#include "platform/Printers.h"

#include <QString>

#include <cstddef>

namespace etiquetas {

// The entries of the log, in Portuguese: support reads them.

/// The log "etiquetas.log" in the folder of the program, begun with the versions and the folder.
[[nodiscard]] Log startedLog(const QString& folder);

/// The machine's printers and the default one.
void logPrinters(Log& log, const Printers& printers);

/// A file that was read and its size; the settings, which are read all the time, are left out.
void logFileRead(Log& log, TextView path, std::size_t bytes);

/// Where a job went, its labels and pages, and whether it was delivered.
void logJob(Log& log, const EndedJob& job);

/// A message box that is about to be shown, and what it was answered.
void logMessage(Log& log, const Message& message);
void logAnswer(Log& log, Answer answer);

/// A draft of a file that a killed program had left and that was removed.
void logDraftRemoved(Log& log, const QString& path);

/// A failure that was passed over.
void logSkipped(Log& log, const Failure& failure);
/// What ends the program.
void logFatal(Log& log, const QString& description);
void logEnd(Log& log, int exit_code);

} // namespace etiquetas
