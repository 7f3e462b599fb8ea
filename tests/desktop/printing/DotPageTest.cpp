#include "desktop/printing/DotPage.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// Of 1, how much of a part is black.
static double inkIn(const QImage& dots, const QRect& part) {
    int black = 0;
    for (int i = 0; i < part.width() * part.height(); ++i) {
        const QPoint dot(part.x() + i % part.width(), part.y() + i / part.width());
        black += dots.pixelIndex(dot) == 0 ? 1 : 0;
    }
    return static_cast<double>(black) / part.width() / part.height();
}

TEST(DotPages, cutLineArtDitherPhotographsAndKeepThinRules) {
    QImage logo(40, 40, QImage::Format_Mono); // black where it is 0
    logo.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    for (int i = 0; i < 40 * 40; ++i) {
        logo.setPixel(i % 40, i / 40, i % 40 < 20 ? 0 : 1);
    }
    QImage photograph(40, 40, QImage::Format_RGB32);
    photograph.fill(qRgb(128, 128, 128));
    LabelPage page;
    page.marks = {ImageMark{QRectF(0, 0, 20, 20), logo},
                  ImageMark{QRectF(25, 0, 20, 20), photograph},
                  BoxMark{QRectF(50, 5, 40, 0.04), Qt::black}};
    const QImage dots = DotPages(203).draw(
        page, QPageSize(QSizeF(100, 40), QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    EXPECT_EQ(dots.format(), QImage::Format_Mono);
    EXPECT_EQ(dots.size(), QSize(798, 319)) << "of 283 by 113 points";
    EXPECT_EQ(inkIn(dots, {0, 0, 78, 78}), 1);
    EXPECT_EQ(inkIn(dots, {82, 0, 78, 160}), 0);
    EXPECT_NEAR(inkIn(dots, {205, 5, 150, 150}), 0.5, 0.03);
    EXPECT_EQ(inkIn(dots, {400, 40, 319, 1}), 1) << "a rule thinner than a dot";
    EXPECT_EQ(inkIn(dots, {400, 41, 319, 1}), 0);
}

} // namespace etiquetas::test
