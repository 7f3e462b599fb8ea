#include "desktop/printing/WholeDots.h"

#include "desktop/printing/LabelPage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

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

constexpr double most_moved = 0.2; // millimetres, but in a Code 39

// The parts of an EAN-13 by the modules where they begin: its guards, and six digits before and six
// behind the middle one.
constexpr std::array ean_parts{0, 3, 10, 17, 24, 31, 38, 45, 50, 57, 64, 71, 78, 85, 92, 95};
constexpr int ean_modules = ean_parts.back();

/// Looks for the edges by which decoders tell the digits of an EAN-13 best, none farther from its
/// measure than it may be. All places for the ends of a part are tried, and for the edges in it
/// those around the nearest dot.
class EanSearch {
  public:
    explicit EanSearch(const Symbol& symbol) : symbol_(symbol) {}

    /// Nothing where the dots are too large for that.
    [[nodiscard]] std::optional<Edges> best() const {
        std::vector<Way> ways;
        for (const int place : placesOf(0)) {
            ways.push_back({singleEdges(symbol_), 0});
            ways.back().edges.front() = place;
        }
        for (std::size_t part = 1; part < ean_parts.size(); ++part) {
            ways = extended(ways, changesIn(ean_parts.at(part - 1), ean_parts.at(part)));
        }
        const auto best =
            std::min_element(ways.begin(), ways.end(), [](const Way& one, const Way& other) {
                return one.fault < other.fault;
            });
        return best == ways.end() ? std::nullopt : std::optional(best->edges);
    }

  private:
    // Edges, of which those up to some part are chosen, and how far these are off.
    struct Way {
        Edges edges;
        double fault = 0;
    };

    [[nodiscard]] bool mayStandAt(int place, int module) const {
        return std::abs(place - symbol_.edge(module)) <= most_moved * symbol_.per_millimetre;
    }

    [[nodiscard]] std::vector<int> placesOf(int module) const {
        const int middle = nearest(symbol_.edge(module));
        const int reach = nearest(most_moved * symbol_.per_millimetre) + 1;
        std::vector<int> places;
        for (int place = middle - reach; place <= middle + reach; ++place) {
            if (mayStandAt(place, module)) {
                places.push_back(place);
            }
        }
        return places;
    }

    // The modules that begin with a change between bar and space, and both ends.
    [[nodiscard]] std::vector<int> changesIn(int first, int last) const {
        std::vector<int> changes{first};
        for (int i = first + 1; i < last; ++i) {
            if (symbol_.isDark(i) != symbol_.isDark(i - 1)) {
                changes.push_back(i);
            }
        }
        changes.push_back(last);
        return changes;
    }

    // The best way to each place where the part may end.
    [[nodiscard]] std::vector<Way> extended(const std::vector<Way>& ways,
                                            const std::vector<int>& changes) const {
        std::vector<Way> longer;
        for (const int end : placesOf(changes.back())) {
            std::optional<Way> best;
            for (const Way& way : ways) {
                extend(way, changes, end, best);
            }
            if (best) {
                longer.push_back(std::move(*best));
            }
        }
        return longer;
    }

    // By each choice of edges in the part; replaces the best way by a better one.
    void extend(const Way& way, const std::vector<int>& changes, int end,
                std::optional<Way>& best) const {
        constexpr std::array shifts{-1, 0, 1};
        const auto choices = static_cast<int>(std::pow(shifts.size(), changes.size() - 2));
        const int begin = way.edges[static_cast<std::size_t>(changes.front())];
        const double module = static_cast<double>(end - begin) / (changes.back() - changes.front());
        Edges edges(changes.size());
        edges.front() = begin;
        edges.back() = end;
        for (int choice = 0; choice < choices; ++choice) {
            int left = choice;
            for (std::size_t i = 1; i + 1 < changes.size(); ++i) {
                edges[i] = begin + nearest((changes[i] - changes.front()) * module) +
                           shifts.at(static_cast<std::size_t>(left) % shifts.size());
                left /= static_cast<int>(shifts.size());
            }
            const double fault = way.fault + faultOf(edges, changes);
            if (stands(edges, changes) && (!best || fault < best->fault)) {
                best = {way.edges, fault};
                for (std::size_t i = 1; i < changes.size(); ++i) {
                    at(best->edges, changes[i]) = edges[i];
                }
            }
        }
    }

    [[nodiscard]] bool stands(const Edges& edges, const std::vector<int>& changes) const {
        for (std::size_t i = 1; i < edges.size(); ++i) {
            if (edges[i] <= edges[i - 1] || !mayStandAt(edges[i], changes[i])) {
                return false;
            }
        }
        return true;
    }

    // How far the edges of a part are off, in its own modules, by which it is decoded (ISO/IEC
    // 15420): the distances between like edges, which count twice, since half a module makes one
    // another digit; its bars together; each bar and space. The worst counts most by far.
    [[nodiscard]] double faultOf(const Edges& edges, const std::vector<int>& changes) const {
        const int modules = changes.back() - changes.front();
        const int dots = edges.back() - edges.front();
        const auto off = [&](std::size_t from, std::size_t to) {
            return static_cast<double>(edges[to] - edges[from]) * modules / dots -
                   (changes[to] - changes[from]);
        };
        double fault = fourthPower(dots / symbol_.module - modules);
        double every_other = 0;
        for (std::size_t i = 0; i + 1 < edges.size(); ++i) {
            fault += fourthPower(off(i, i + 1));
            fault += i + 2 < edges.size() ? fourthPower(2 * off(i, i + 2)) : 0;
            every_other += i % 2 == 0 ? off(i, i + 1) : 0;
        }
        return fault + fourthPower(every_other);
    }

    static double fourthPower(double number) { return number * number * number * number; }

    const Symbol& symbol_;
};

Edges edgesOf(const Symbol& symbol) {
    constexpr double most_moved_code39 = 0.4; // millimetres
    if (Edges edges = equalModules(symbol); keepsWithin(most_moved, symbol, edges)) {
        return edges;
    }
    if (isCode39(symbol)) {
        if (Edges edges = code39Characters(symbol); keepsWithin(most_moved_code39, symbol, edges)) {
            return edges;
        }
    }
    if (symbol.count() == ean_modules) {
        if (auto edges = EanSearch(symbol).best()) {
            return *std::move(edges);
        }
    }
    return singleEdges(symbol);
}

} // namespace

std::vector<int> modulesInDots(const QImage& symbol, double left, double right, int resolution) {
    const double per_millimetre = resolution / millimetres_per_inch;
    return edgesOf({symbol, left * per_millimetre, (right - left) * per_millimetre / symbol.width(),
                    per_millimetre});
}

std::optional<QRectF> placeInWholeDots(const QRectF& place, int modules) {
    constexpr double dot = millimetres_per_inch / 203;
    constexpr double most_moved_in_file = 0.1; // millimetres
    // Edges stand a little within their dots: what a renderer rounds then never reaches the next.
    constexpr double inset = 0.25; // dots
    const double dots = modules * std::max(1.0, std::round(place.width() / modules / dot));
    const double start = std::round(place.center().x() / dot - dots / 2);
    const double left = (start + inset) * dot;
    const double right = (start + dots - inset) * dot;
    if (std::abs(left - place.left()) > most_moved_in_file ||
        std::abs(right - place.right()) > most_moved_in_file) {
        return std::nullopt;
    }
    return QRectF(left, place.top(), right - left, place.height());
}

} // namespace etiquetas
