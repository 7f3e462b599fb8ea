#include "orders/OrderFormat.h"

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
        EXPECT_EQ(withReducedBlanks(Text(run.blanks, u' ') + u";\t\t"),
                  Text(run.left, u' ') + u";\t\t")
            << run.blanks;
    }
}

TEST(OrderFormatTest, LinesEndInAnyWay) {
    EXPECT_EQ(linesOf(u"a\r\n\r\nb\nc\rd"), (std::vector<TextView>{u"a", u"", u"b", u"c", u"d"}));
}

TEST(OrderFormatTest, KeyIsMadeOfTheFieldsAsTheyStand) {
    EXPECT_EQ(itemKey(OrderLine(u"0; c ;2;3; d ;5; m"), box_key), u" m |  d  |  c ");
    EXPECT_EQ(itemKey(OrderLine(u"0;1;2;3;4;5;6"), accessory_key), std::nullopt); // too short
}

TEST(OrderFormatTest, FieldBeyondTheLineFails) {
    EXPECT_EQ(failureOf([] { (void)OrderLine(u"0;1")[2]; }),
              failure_number::subscript_out_of_range);
}

} // namespace etiquetas::test
