#pragma once

#include <QByteArrayView>
#include <QString>

namespace etiquetas {

/// Puts a file of these bytes in place of the one of that name, if there is one. The bytes are
/// forced to the disk before they take the name: a power cut leaves the old file or the new one,
/// whole. False where that fails; the old file is there then.
[[nodiscard]] bool writeWhole(const QString& path, QByteArrayView bytes);

} // namespace etiquetas
