#pragma once

#include <QColor>
#include <QPalette>

namespace etiquetas {

/// The desktop's palette with paper of that colour under texts: they are dark in every theme.
[[nodiscard]] QPalette paperPalette(const QColor& paper);

/// The desktop's palette for a field that is locked: it takes the colours of the window around it.
[[nodiscard]] QPalette lockedPalette();

/// The colour that marks what has the focus or counts just now, plain on the desktop's windows.
[[nodiscard]] QColor markColour();

} // namespace etiquetas
