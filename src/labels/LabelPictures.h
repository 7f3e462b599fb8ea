#pragma once

#include "base/Text.h"
#include "labels/LabelDrawing.h"

#include <optional>

namespace etiquetas {

struct FrmPadrao;
struct LabelTexts;

// The pictures of a label: its bars and the logo of its banner.

/// Draws the EAN-13 bars of the first 12 characters of `txtbarra` in `Picture1`. A barcode that is
/// refused is a failure.
void drawEan(FrmPadrao& form, const LabelTexts& label, const Point& origin);

/// `txtbarra` takes the label's barcode, and its bars are drawn, while the surface is in pixels; a
/// barcode that is refused leaves it so.
void drawBars(FrmPadrao& form, const LabelTexts& label, const Point& origin);

/// Where a layout has a logo, and how many pixels of the picture's width it takes, from the left;
/// all of them where it does not tell.
struct LogoStamp {
    Box box;
    std::optional<float> source_width = {};
};

/// The logo of a layout for either banner.
struct Logo {
    LogoStamp lumira;
    LogoStamp brisako;
};

/// Stamps the logo of the label's banner: LUMIRA where `flag` is "L". A logo that is not loaded
/// stamps nothing.
void stampLogo(FrmPadrao& form, TextView flag, const Logo& logo, const Point& origin);

} // namespace etiquetas
