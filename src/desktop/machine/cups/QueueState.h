#pragma once

#include <QByteArray>
#include <QString>

namespace etiquetas {

/// Why the last call of this thread to CUPS failed, without a full stop; empty where it did not.
[[nodiscard]] QString printSystemError();

/// Asks why a queue prints nothing for now: it was stopped, by hand or by a fault of its printer.
/// Empty where it prints, and where nobody tells.
[[nodiscard]] QString standstillOf(const QByteArray& queue);

} // namespace etiquetas
