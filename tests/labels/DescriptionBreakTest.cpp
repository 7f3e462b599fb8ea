#include "labels/DescriptionBreak.h"

#include "support/FakePlatform.h"
#include "support/RandomTexts.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(DescriptionBreakTest, FindsTheBreakOfAWalkThroughAllBeginnings) {
    FakePlatform machine;
    machine.printers.FontName(u"Calibri");
    machine.printers.FontSize(7);
    machine.printers.ScaleMode(ScaleMode::millimetres);
    expectBreaksOfAWalk(machine.printers);
}

TEST(DescriptionBreakTest, MeasuresALongTextAFewTimes) {
    constexpr std::size_t characters = 20'000;
    constexpr std::size_t few = 40; // twice the binary digits of the length
    FakePlatform machine;
    machine.printers.FontSize(7);
    const auto never = [](float) { return false; };
    EXPECT_EQ(firstPrefix(machine.printers, Text(characters, u'W'), never), characters + 1);
    EXPECT_LE(machine.logged({"measure"}).size(), few);
}

} // namespace etiquetas::test
