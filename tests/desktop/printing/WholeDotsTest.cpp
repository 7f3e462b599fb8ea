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

// In modules.
static std::vector<DotBar> drawnBars(const QImage& row) {
    std::vector<DotBar> bars;
    for (int i = 0; i < row.width(); ++i) {
        if (row.pixelIndex(i, 0) != 0) {
            continue;
        }
        if (bars.empty() || bars.back().end != i) {
            bars.push_back({i, i});
        }
        ++bars.back().end;
    }
    return bars;
}

static void expectEqualModules(const Stamp& stamp, const std::vector<DotBar>& modules,
                               const std::vector<DotBar>& dots) {
    for (std::size_t i = 0; i < dots.size(); ++i) {
        EXPECT_EQ(dots[i].end - dots[i].begin, (modules[i].end - modules[i].begin) * stamp.module);
        const bool follows_gap = stamp.code39 && modules[i].begin % 13 == 0;
        if (i > 0 && !follows_gap) {
            EXPECT_EQ(dots[i].begin - dots[i - 1].end,
                      (modules[i].begin - modules[i - 1].end) * stamp.module);
        }
    }
}

// Those of the left half, which begin where the bar before them ends.
static void expectDigitsNearTheirMeasure(const std::vector<DotBar>& modules,
                                         const std::vector<DotBar>& dots) {
    for (std::size_t i = 1; i < 13; i += 2) {
        const double module = (dots[i + 2].end - dots[i].end) / 7.0;
        EXPECT_NEAR(dots[i + 1].end - dots[i].end, (modules[i + 1].end - modules[i].end) * module,
                    0.51);
        EXPECT_NEAR(dots[i + 2].begin - dots[i + 1].begin,
                    (modules[i + 2].begin - modules[i + 1].begin) * module, 0.51);
    }
}

TEST(BarsInDots, takeEqualModulesOrKeepDigitsAndEdgesNearTheirMeasure) {
    for (const Stamp& stamp : {Stamp{"small labels", false, 35, 203, 2, 0.2},
                               Stamp{"photograph", false, 60, 203, 0, 0.13},
                               Stamp{"small labels, fine", false, 35, 300, 0, 0.09},
                               Stamp{"carton", true, 60, 203, 2, 0.4}}) {
        SCOPED_TRACE(stamp.name);
        const BarsMark mark = stamped(stamp);
        const QRectF place = mark.inkPlace();
        const std::vector<DotBar> modules = drawnBars(mark.ink);
        const std::vector<DotBar> dots =
            barsInDots(mark.ink, place.left(), place.right(), stamp.resolution);
        ASSERT_EQ(dots.size(), modules.size());
        const double module = stamp.width / mark.row.width();
        for (std::size_t i = 0; i < dots.size(); ++i) {
            const double dot = 25.4 / stamp.resolution;
            EXPECT_NEAR(dots[i].begin * dot, place.left() + modules[i].begin * module, stamp.moved);
            EXPECT_NEAR(dots[i].end * dot, place.left() + modules[i].end * module, stamp.moved);
        }
        stamp.module > 0 ? expectEqualModules(stamp, modules, dots)
                         : expectDigitsNearTheirMeasure(modules, dots);
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
