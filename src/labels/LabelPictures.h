#pragma once

#include "base/Text.h"
#include "labels/LabelLayout.h"

#include <optional>

namespace etiquetas {

struct FrmPadrao;

// The pictures of a label: its bars and the logo of its banner.

/// Draws the EAN-13 bars of the first 12 characters of `txtbarra` in `Picture1`. A barcode that is
/// refused is a failure.
void drawEan(FrmPadrao& form);

/// `drawEan` while the surface is in pixels; a barcode that is refused leaves it so.
void drawBars(FrmPadrao& form);

/// The same, and `txtbarra` takes the barcode first.
void drawBars(FrmPadrao& form, TextView barra);

/// Stamps `Picture1` on the surface.
void stampBars(FrmPadrao& form, const Box& box);

/// Where a layout has the logo of a banner, and how many pixels of the picture's width it takes,
/// from the left; all of them where it does not tell.
struct LogoItem {
    Box box;
    std::optional<float> source_width;
};

/// The logo of a layout for either banner.
struct LogoLayout {
    LogoItem lumira;
    LogoItem brisako;
};

/// Stamps the logo of the label's banner: LUMIRA where `flag` is "L". A logo that is not
/// loaded stamps nothing.
void stampLogo(FrmPadrao& form, TextView flag, const LogoLayout& layout, const Point& origin);

} // namespace etiquetas
