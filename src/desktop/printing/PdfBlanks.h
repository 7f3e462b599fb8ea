#pragma once

#include <QFile>

namespace etiquetas {

/// Mends the tables of a PDF file that tell what its glyphs say: the toolkit calls a blank a tab
/// there, which programs that copy texts take as it stands. The file, which is open for reading and
/// writing, keeps its length. False where it can't be written.
[[nodiscard]] bool mendBlanks(QFile& pdf);

} // namespace etiquetas
