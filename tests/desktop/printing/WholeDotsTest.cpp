#include "desktop/printing/WholeDots.h"

#include "barcodes/Code39.h"
#include "barcodes/EAN13and8.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/printing/PictureMarks.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct Stamp {
    const char* name;
    bool code39 = false;
    double width = 0; // millimetres
    int resolution = 0;
    int module = 0;   // dots that each takes, 0 where they differ
    double moved = 0; // millimetres that an edge may be away from its measure
};

static BarsMark stamped(const Stamp& stamp) {
    QtPictures pictures;
    PictureBox box(pictures);
    Text code = u"231045270199";
    stamp.code39 ? DesenhaCode39(box, 1, code, false, false) : DesenhaEan13(box, 1, code, false);
    const Picture bars = box.Picture();
    LabelPage page;
    PictureMarks().stamp(page, bars, QRect(0, 0, bars->width, bars->height),
                         QRectF(3.7, 5, stamp.width, 20));
    return std::get<BarsMark>(page.marks[stamp.code39 ? 1 : 0]); // Code 39 has paper above it
}

// How many dots a run of modules takes.
static int dotsOf(const std::vector<int>& edges, int first, int modules) {
    const auto from = static_cast<std::size_t>(first);
    return edges[from + static_cast<std::size_t>(modules)] - edges[from];
}

static void expectEqualModules(const Stamp& stamp, const std::vector<int>& edges) {
    for (int i = 0; i + 1 < static_cast<int>(edges.size()); ++i) {
        if (const bool is_gap = stamp.code39 && i % 13 == 12; !is_gap) {
            EXPECT_EQ(dotsOf(edges, i, 1), stamp.module) << "module " << i;
        }
    }
}

// Where each bar and each space of a digit begins, and where the digit ends.
static std::vector<int> changesOf(const QImage& symbol, int digit) {
    std::vector<int> changes{digit};
    for (int i = digit + 1; i < digit + 7; ++i) {
        if (symbol.pixelIndex(i, 0) != symbol.pixelIndex(i - 1, 0)) {
            changes.push_back(i);
        }
    }
    changes.push_back(digit + 7);
    return changes;
}

// Decodability (ISO/IEC 15416) of 0.62 at least, the limit of grade A.
static void expectDigitsNearTheirMeasure(const QImage& symbol, const std::vector<int>& edges) {
    for (const int digit : {3, 10, 17, 24, 31, 38, 50, 57, 64, 71, 78, 85}) {
        const std::vector<int> changes = changesOf(symbol, digit);
        ASSERT_EQ(changes.size(), 5U);
        const auto off = [&](std::size_t from, std::size_t to) { // in modules of the digit
            const int modules = changes[to] - changes[from];
            return std::abs(dotsOf(edges, changes[from], modules) * 7.0 / dotsOf(edges, digit, 7) -
                            modules);
        };
        EXPECT_LE(off(0, 2), 0.19) << "the first like edges of the digit at " << digit;
        EXPECT_LE(off(1, 3), 0.19) << "the second like edges of the digit at " << digit;
        EXPECT_LE(off(0, 1) + off(2, 3), 0.38) << "bars of the digit at " << digit;
    }
}

TEST(ModulesInDots, takeEqualDotsOrKeepDigitsAndEdgesNearTheirMeasure) {
    for (const Stamp& stamp : {Stamp{"small labels", false, 35, 203, 2, 0.2},
                               Stamp{"photograph", false, 60, 203, 0, 0.2},
                               Stamp{"small labels, fine", false, 35, 300, 0, 0.2},
                               Stamp{"carton", true, 60, 203, 2, 0.4}}) {
        SCOPED_TRACE(stamp.name);
        const BarsMark mark = stamped(stamp);
        const QRectF place = mark.inkPlace();
        const std::vector<int> edges =
            modulesInDots(mark.symbol, place.left(), place.right(), stamp.resolution);
        ASSERT_EQ(edges.size(), static_cast<std::size_t>(mark.symbol.width()) + 1);
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const double measure =
                place.left() + static_cast<double>(i) * stamp.width / mark.row.width();
            EXPECT_NEAR(edges[i] * 25.4 / stamp.resolution, measure, stamp.moved) << "edge " << i;
        }
        stamp.module > 0 ? expectEqualModules(stamp, edges)
                         : expectDigitsNearTheirMeasure(mark.symbol, edges);
    }
}

TEST(PlaceInWholeDots, movesNoEdgeByMoreThanATenthOfAMillimetre) {
    constexpr double dot = 25.4 / 203;
    const auto moved = placeInWholeDots(QRectF(80.2 * dot, 5, 189 * dot, 8), 95);
    ASSERT_TRUE(moved);
    EXPECT_NEAR(moved->left() / dot, 80.25, 1e-9);
    EXPECT_NEAR(moved->width() / dot, 189.5, 1e-9);
    EXPECT_FALSE(placeInWholeDots(QRectF(80.31 * dot, 5, 188.4 * dot, 8), 95)) << "by 0.13 mm";
}

} // namespace etiquetas::test
