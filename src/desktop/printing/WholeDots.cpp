#include "desktop/printing/WholeDots.h"

#include "desktop/printing/LabelPage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace etiquetas {

namespace {

/// A symbol on a head. Measures are in dots.
struct Symbol {
    const QImage& modules;
    double left;
    double module;         // width of one
    double per_millimetre; // dots

    [[nodiscard]] int count() const { return modules.width(); }
    [[nodiscard]] double edge(int module_number) const { return left + module_number * module; }
    [[nodiscard]] bool isDark(int module_number) const {
        return modules.pixelIndex(module_number, 0) == 0;
    }
};

// Where each module begins, and at last where the symbol ends.
using Edges = std::vector<int>;

int& at(Edges& edges, int module) {
    return edges[static_cast<std::size_t>(module)];
}

int nearest(double dots) {
    return static_cast<int>(std::lround(dots));
}

bool keepsWithin(double millimetres, const Symbol& symbol, Edges& edges) {
    for (int i = 0; i <= symbol.count(); ++i) {
        if (std::abs(at(edges, i) - symbol.edge(i)) > millimetres * symbol.per_millimetre) {
            return false;
        }
    }
    return true;
}

// Modules of the same number of dots from `first` on, whose middle stays where it is.
void setEqually(const Symbol& symbol, int first, int count, int dots, Edges& edges) {
    const double middle = symbol.edge(first) + count * symbol.module / 2;
    const int start = nearest(middle - count * dots / 2.0);
    for (int i = 0; i <= count; ++i) {
        at(edges, first + i) = start + i * dots;
    }
}

Edges noEdges(const Symbol& symbol) {
    return Edges(static_cast<std::size_t>(symbol.count()) + 1);
}

Edges equalModules(const Symbol& symbol) {
    Edges edges = noEdges(symbol);
    setEqually(symbol, 0, symbol.count(), std::max(1, nearest(symbol.module)), edges);
    return edges;
}

// A character of Code 39 takes twelve modules, and a white one follows between two of them.
constexpr int code39_character = 12;
constexpr int code39_pitch = code39_character + 1;

bool isCode39(const Symbol& symbol) {
    if (symbol.count() % code39_pitch != code39_character) {
        return false;
    }
    for (int gap = code39_character; gap < symbol.count(); gap += code39_pitch) {
        if (symbol.isDark(gap) || !symbol.isDark(gap + 1)) {
            return false;
        }
    }
    return true;
}

// The nearest whole number of dots that leaves each gap about a module.
int code39Module(double module) {
    const int dots = nearest(module);
    const bool leaves_gaps = code39_pitch * module - code39_character * dots >= dots - 1;
    return std::max(1, leaves_gaps ? dots : static_cast<int>(module));
}

Edges code39Characters(const Symbol& symbol) {
    const int dots = code39Module(symbol.module);
    Edges edges = noEdges(symbol);
    for (int first = 0; first < symbol.count(); first += code39_pitch) {
        setEqually(symbol, first, code39_character, dots, edges);
    }
    return edges;
}

Edges singleEdges(const Symbol& symbol) {
    Edges edges = noEdges(symbol);
    for (int i = 0; i <= symbol.count(); ++i) {
        at(edges, i) = nearest(symbol.edge(i));
    }
    return edges;
}

// An EAN-13 has six digits between its first and its middle guard and six between that and the
// last.
constexpr int ean_modules = 95;
constexpr int ean_digit = 7;
constexpr std::array ean_digits{3, 10, 17, 24, 31, 38, 50, 57, 64, 71, 78, 85};

// A decoder tells a digit by the distances between its like edges, from bar to bar and from space
// to space (ISO/IEC 15420). The digit and each of them get the nearest whole number of dots.
void setDigit(const Symbol& symbol, int first, Edges& edges) {
    const double module =
        static_cast<double>(at(edges, first + ean_digit) - at(edges, first)) / ean_digit;
    std::vector<int> inner;
    for (int i = first + 1; i < first + ean_digit; ++i) {
        if (symbol.isDark(i) != symbol.isDark(i - 1)) {
            inner.push_back(i);
            const int like = inner.size() == 3 ? inner.front() : first;
            at(edges, i) = at(edges, like) + nearest((i - like) * module);
        }
    }
}

Edges eanDigits(const Symbol& symbol) {
    Edges edges = singleEdges(symbol);
    for (const int first : ean_digits) {
        setDigit(symbol, first, edges);
    }
    return edges;
}

Edges edgesOf(const Symbol& symbol) {
    constexpr double most_moved = 0.2;        // millimetres
    constexpr double most_moved_code39 = 0.4; // millimetres
    if (Edges edges = equalModules(symbol); keepsWithin(most_moved, symbol, edges)) {
        return edges;
    }
    if (isCode39(symbol)) {
        if (Edges edges = code39Characters(symbol); keepsWithin(most_moved_code39, symbol, edges)) {
            return edges;
        }
    }
    return symbol.count() == ean_modules ? eanDigits(symbol) : singleEdges(symbol);
}

} // namespace

std::vector<DotBar> barsInDots(const QImage& modules, double left, double right, int resolution) {
    const double per_millimetre = resolution / millimetres_per_inch;
    const Symbol symbol{modules, left * per_millimetre,
                        (right - left) * per_millimetre / modules.width(), per_millimetre};
    Edges edges = edgesOf(symbol);
    std::vector<DotBar> bars;
    for (int first = 0, end = 0; first < symbol.count(); first = end) {
        end = first + 1;
        while (end < symbol.count() && symbol.isDark(end) == symbol.isDark(first)) {
            ++end;
        }
        if (symbol.isDark(first)) {
            bars.push_back({at(edges, first), at(edges, end)});
        }
    }
    return bars;
}

std::optional<QRectF> placeInWholeDots(const QRectF& place, int modules) {
    constexpr double dot = millimetres_per_inch / 203;
    constexpr double most_moved = 0.1; // millimetres
    // Edges stand a little within their dots: what a renderer rounds then never reaches the next.
    constexpr double inset = 0.25; // dots
    const double dots = modules * std::max(1.0, std::round(place.width() / modules / dot));
    const double start = std::round(place.center().x() / dot - dots / 2);
    const double left = (start + inset) * dot;
    const double right = (start + dots - inset) * dot;
    if (std::abs(left - place.left()) > most_moved ||
        std::abs(right - place.right()) > most_moved) {
        return std::nullopt;
    }
    return QRectF(left, place.top(), right - left, place.height());
}

} // namespace etiquetas
