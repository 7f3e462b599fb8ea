#include "orders/OrderFormat.h"

#include "orders/OrderIndex.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(OrderFormatTest, RunsOfBlanksAreReducedInFiveSteps) {
    struct Run {
        std::size_t blanks, left;
    };
    for (const Run& run :
         {Run{.blanks = 1, .left = 1}, Run{.blanks = 2, .left = 1}, Run{.blanks = 3, .left = 1},
          Run{.blanks = 9, .left = 1}, Run{.blanks = 119, .left = 1}, Run{.blanks = 159, .left = 2},
          // 239 is 47 fives and 4, so 51; 12 fours and 3, so 15; then 5, 3 and 2.
          Run{.blanks = 239, .left = 2}, Run{.blanks = 479, .left = 3}}) {
        std::string line = std::string(run.blanks, ' ') + ";\t\t";
        line.resize(copyReduced(line, line.data()));
        EXPECT_EQ(line, std::string(run.left, ' ') + ";\t\t") << run.blanks;
    }
}

TEST(OrderFormatTest, LinesEndInAnyWay) {
    LineCutter file("a\r\n\r\nb\nc\rd");
    for (const std::string_view line : {"a", "", "b", "c", "d"}) {
        EXPECT_EQ(file.next(), line);
    }
    EXPECT_EQ(file.next(), std::nullopt);
}

TEST(OrderFormatTest, KeyIsMadeOfTheFieldsAsTheyStand) {
    const OrderBytes line("0; c ;2;3; \xC9 ;5; m");
    EXPECT_EQ(itemKey(line, box_key), u" m |  É  |  c ");
    EXPECT_TRUE(hasKey(line, box_key));
    EXPECT_FALSE(hasKey(line, accessory_key)); // too short
}

TEST(OrderFormatTest, FieldBeyondTheLineFails) {
    EXPECT_EQ(failureOf([] { (void)OrderLine(u"0;1")[2]; }),
              failure_number::subscript_out_of_range);
}

} // namespace etiquetas::test
