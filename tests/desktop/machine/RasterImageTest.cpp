#include "desktop/machine/RasterImage.h"

#include <gtest/gtest.h>

namespace etiquetas {

// Three by two pixels, each of a colour of its own.
static const Raster six_colours{3, 2, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF}};

TEST(RasterImage, isAnOpaqueImageOfTheSamePixelsOrOfAPartOfThem) {
    const QImage image = imageOf(six_colours);
    ASSERT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixel(0, 0), 0xFF000000U);
    EXPECT_EQ(image.pixel(2, 0), 0xFF00FF00U);
    EXPECT_EQ(image.pixel(1, 1), 0xFF123456U);
    EXPECT_EQ(imageOf(six_colours, QRect(1, 1, 2, 1)), image.copy(1, 1, 2, 1));
}

// Rows of three pixels of 24 bits are padded; a raster has no padding.
TEST(RasterImage, comesBackFromAnImageWithPaddedRows) {
    const Raster back = rasterOf(imageOf(six_colours).convertToFormat(QImage::Format_RGB888));
    EXPECT_EQ(back.width, 3);
    EXPECT_EQ(back.height, 2);
    EXPECT_EQ(back.pixels, six_colours.pixels);
}

} // namespace etiquetas
