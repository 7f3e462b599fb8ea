#pragma once

#include "base/Text.h"
#include "labels/LabelText.h"

namespace etiquetas {

struct FrmPadrao;

// What the labels share that stand two across on a strip.

/// A box on the surface, millimetres.
struct Box {
    Point corner;
    float width;
    float height;
};

/// Draws the EAN-13 bars of the barcode's first 12 characters in `Picture1`; `txtbarra` keeps the
/// whole value. A barcode that is refused leaves the surface in pixels.
void desenha_barras(FrmPadrao& form, TextView barra);

/// Stamps `Picture1` on the surface.
void carimba_barras(FrmPadrao& form, const Box& box);

/// Ends a label: behind the second column the strip's page ends, and column 1 is next.
void fecha_etiqueta(FrmPadrao& form);

} // namespace etiquetas
