#pragma once

#include "base/Failure.h"
#include "desktop/machine/QtText.h"

#include <QString>

namespace etiquetas {

/// A fault of printing, told in Portuguese.
[[nodiscard]] inline Failure printFailure(const QString& description) {
    return {failure_number::printer, u"PrintSurface", toText(description)};
}

} // namespace etiquetas
