#pragma once

#include "base/Text.h"

#include <QString>

namespace etiquetas {

/// The text as the toolkit holds it.
[[nodiscard]] inline QString toQString(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// The toolkit's text as the system holds it.
[[nodiscard]] inline Text toText(const QString& text) {
    return text.toStdU16String();
}

} // namespace etiquetas
