#include "desktop/windows/WindowUnit.h"

#include "support/Cases.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// A desktop, and what the window of 750 by 671 reference pixels is there.
struct Desk {
    const char* name;
    double font_points;
    double dots_per_inch;
    QSize room;
    double shown_points;
    QSize window;
    int hundred; // what 100 pixels at the reference font are
};

// clang-format off
static const std::vector<Desk> desks{
    // name, font, dpi, room, shown points, window, hundred
    {"reference", 9, 96, {1916, 1040}, 9, {750, 671}, 100},
    {"larger_font", 11.25, 96, {1916, 1040}, 11.25, {937, 838}, 125},
    {"more_dots", 9, 120, {1916, 1040}, 9, {937, 838}, 125},
    {"low_screen", 11.25, 96, {1916, 604}, 8.1, {675, 604}, 90},
    {"narrow_screen", 9, 96, {675, 1040}, 8.1, {675, 603}, 90},
    {"too_small_a_screen", 11, 96, {907, 472}, 7.5, {625, 559}, 83},
    {"font_smaller_than_readable", 6, 96, {907, 472}, 6, {500, 447}, 67},
};
// clang-format on

class WindowUnitTest : public testing::TestWithParam<Desk> {};

TEST_P(WindowUnitTest, followsTheFontAndTheRoom) {
    const Desk& desk = GetParam();
    const TwipSize told{11250, 10065};
    const WindowUnit unit(desk.font_points, desk.dots_per_inch, told, desk.room);
    EXPECT_NEAR(unit.fontPoints(), desk.shown_points, 0.01);
    EXPECT_EQ(unit.pixels(told), desk.window);
    EXPECT_EQ(unit.pixels(100), desk.hundred);
}

INSTANTIATE_TEST_SUITE_P(Desks, WindowUnitTest, testing::ValuesIn(desks), CaseName());

} // namespace etiquetas::test
