#pragma once

#include "desktop/machine/Draft.h"

#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace etiquetas {

/// The names of the drafts of `writeWhole`, with wildcards.
inline constexpr QStringView whole_file_drafts = u".*.rascunho";

/// Puts a file of these bytes in place of the one of that name, if there is one; the new one has
/// the permissions of the old one. The bytes are forced to the disk before they take the name: a
/// power cut leaves the old file or the new one, whole. False where that fails; the old file is
/// there then.
[[nodiscard]] bool writeWhole(const QString& path, QByteArrayView bytes);

} // namespace etiquetas
