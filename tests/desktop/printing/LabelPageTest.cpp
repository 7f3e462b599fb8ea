#include "desktop/printing/LabelPage.h"

#include <gtest/gtest.h>

namespace etiquetas {

// In 71 twips a print system that counts in points would find one less where they are rounded down.
TEST(LabelPageSize, isNeverSmallerThanItsTwipsAndAtMostAHundredthLarger) {
    const QSizeF page = labelPageSize(71, 9000).size(QPageSize::Millimeter);
    EXPECT_GE(page.width(), 71 * 25.4 / 1440);
    EXPECT_LE(page.width(), 71 * 25.4 / 1440 + 0.01);
    EXPECT_NEAR(page.height(), 158.75, 1e-9);
}

} // namespace etiquetas
