#include "desktop/windows/WindowUnit.h"

#include <QtMath>

#include <algorithm>

namespace etiquetas {

namespace {

constexpr double twips_per_pixel = 15;
constexpr double reference_dots = 9.0 * 96; // points by dots per inch
constexpr double readable_points = 7.5;

// How large the unit may be for a window to fit.
double fittingFactor(TwipSize window, QSize room) {
    return twips_per_pixel *
           std::min(double(room.width()) / window.width, double(room.height()) / window.height);
}

} // namespace

WindowUnit::WindowUnit(double font_points, double dots_per_inch, TwipSize window, QSize room) {
    const double fitting_points = fittingFactor(window, room) * reference_dots / dots_per_inch;
    font_points_ = std::min(font_points, std::max(fitting_points, readable_points));
    factor_ = font_points_ * dots_per_inch / reference_dots;
}

int WindowUnit::pixels(int reference_pixels) const {
    return qRound(reference_pixels * factor_);
}

QSize WindowUnit::pixels(TwipSize size) const {
    constexpr double rounding = 1e-6; // what shrank until it fits may lack that much of a pixel
    const auto length = [this](int twips) {
        return qFloor(twips / twips_per_pixel * factor_ + rounding);
    };
    return {length(size.width), length(size.height)};
}

} // namespace etiquetas
