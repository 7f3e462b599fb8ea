#include "desktop/printing/PictureMarks.h"

#include <gtest/gtest.h>

namespace etiquetas {

TEST(CropOf, staysWithinTheEdgesOfThePicture) {
    const Raster picture{40, 10, {}};
    EXPECT_EQ(cropOf(picture, {.x = 20, .width = 300}), QRect(20, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.x = -20, .width = 40}), QRect(0, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.y = 5, .height = 3}), QRect(0, 5, 40, 3));
    EXPECT_TRUE(cropOf(picture, {.x = 50}).isEmpty());
    const Raster shrunk{40, 10, {}, 10};
    EXPECT_EQ(cropOf(shrunk, {.x = 50, .width = 300}), QRect(5, 0, 30, 10));
}

TEST(PictureMarks, stampsEqualRowsOfBarsAsOneImageOfOneRowAndBlankOnesAsPaper) {
    constexpr Pixel ink = black_pixel;
    constexpr Pixel paper = white_pixel;
    const Picture bars =
        std::make_shared<const Raster>(Raster{2, 3, {paper, ink, paper, ink, paper, paper}});
    LabelPage page;
    PictureMarks marks;
    marks.stamp(page, bars, QRect(0, 0, 2, 3), QRectF(10, 20, 8, 6));
    marks.stamp(page, std::make_shared<const Raster>(*bars), QRect(0, 0, 2, 3), QRectF());
    ASSERT_EQ(page.marks.size(), 4);
    const auto* const rows = std::get_if<BarsMark>(page.marks.data());
    ASSERT_NE(rows, nullptr);
    EXPECT_EQ(rows->place, QRectF(10, 20, 8, 4));
    EXPECT_EQ(rows->row.size(), QSize(2, 1));
    EXPECT_EQ(rows->row.depth(), 1) << "bits";
    EXPECT_EQ(rows->row.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(rows->row.pixelColor(1, 0), QColor(Qt::black));
    EXPECT_EQ(rows->ink.size(), QSize(1, 1));
    EXPECT_EQ(rows->ink.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(rows->symbol.cacheKey(), rows->ink.cacheKey());
    EXPECT_EQ(rows->inkPlace(), QRectF(14, 20, 4, 4));
    EXPECT_EQ(std::get<BarsMark>(page.marks[2]).row.cacheKey(), rows->row.cacheKey());
    const auto* const blank = std::get_if<BoxMark>(&page.marks[1]);
    ASSERT_NE(blank, nullptr);
    EXPECT_EQ(blank->place, QRectF(10, 24, 8, 2));
    EXPECT_EQ(blank->colour, QColor(Qt::white));
}

TEST(PictureMarks, reusesTheImageOfAPictureAndCropAndNoOther) {
    PictureMarks marks;
    const auto image_of_stamp = [&marks](const Picture& picture, const QRect& crop) {
        LabelPage page;
        marks.stamp(page, picture, crop, QRectF(0, 0, 1, 1));
        return std::get<ImageMark>(page.marks.front()).image.cacheKey();
    };
    const Raster grey{2, 1, {0x808080, 0x808080}};
    const Picture picture = std::make_shared<const Raster>(grey);
    const Picture other = std::make_shared<const Raster>(grey);
    const QRect whole(0, 0, 2, 1);
    const auto first = image_of_stamp(picture, whole);
    EXPECT_NE(image_of_stamp(other, whole), first);
    EXPECT_NE(image_of_stamp(picture, QRect(1, 0, 1, 1)), first);
    EXPECT_EQ(image_of_stamp(picture, whole), first);
}

} // namespace etiquetas
