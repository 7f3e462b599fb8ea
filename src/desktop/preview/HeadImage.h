#pragma once

#include "desktop/printing/LabelPage.h"

#include <QImage>
#include <QSizeF>

namespace etiquetas {

/// Size of a page in millimetres; that of the built-in devices where it is the printer's own.
[[nodiscard]] QSizeF sizeOf(const LabelPage& page);

/// The page as a print head of this resolution, in dots to the inch, burns it: one pixel a dot,
/// black where at least half of the dot is covered. Bars take each dot by its centre. Print systems
/// that turn grey into patterns of dots show photographs otherwise.
[[nodiscard]] QImage headImage(const LabelPage& page, int resolution);

} // namespace etiquetas
