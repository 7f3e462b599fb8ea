#pragma once

#include "desktop/printing/LabelPage.h"

#include <QImage>
#include <QSizeF>

namespace etiquetas {

/// Size of a page in millimetres; that of the built-in devices where it is the printer's own.
[[nodiscard]] QSizeF sizeOf(const LabelPage& page);

/// The page as a print head of this resolution, in dots to the inch, burns it: one pixel a dot.
/// Printers that are not sent dots may show greys otherwise.
[[nodiscard]] QImage headImage(const LabelPage& page, int resolution);

} // namespace etiquetas
