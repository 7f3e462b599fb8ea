#include "orders/OrderFormat.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(OrderFormatTest, RunsOfBlanksInFiveSteps) {
    using Case = std::tuple<std::size_t, std::size_t>;
    // 239 = 47 * 5 + 4: 51 = 12 * 4 + 3: 15: 5: 3: 2, and so on for the others.
    for (const auto& [blanks, left] : {Case{1, 1},
                                       {2, 1},
                                       {3, 1},
                                       {4, 1},
                                       {5, 1},
                                       {6, 1},
                                       {7, 1},
                                       {8, 1},
                                       {9, 1},
                                       {119, 1},
                                       {159, 2},
                                       {239, 2},
                                       {479, 3}}) {
        EXPECT_EQ(withReducedBlanks(u"a" + Text(blanks, u' ') + u"b"),
                  u"a" + Text(left, u' ') + u"b")
            << blanks;
    }
    EXPECT_EQ(withReducedBlanks(u"  12;  A  B ;\t\t"), u" 12; A B ;\t\t");
}

TEST(OrderFormatTest, KeysOfTheThreeKinds) {
    const OrderLine line(u"0;um; dois;tres;quatro;cinco;seis 6789;sete5678;oito");
    EXPECT_EQ(itemKey(line, box_key), u"seis 67 | quatro | um");
    EXPECT_EQ(itemKey(line, accessory_key), u"sete567 | tres | um");
    EXPECT_EQ(itemKey(line, corrugated_key), u"seis 6789 | cinco | quatro");
    EXPECT_EQ(itemKey(OrderLine(u"0;1;2;3;4;5"), box_key), std::nullopt);
    EXPECT_EQ(itemKey(OrderLine(u"0;1;2;3;4;5;6"), accessory_key), std::nullopt);
    EXPECT_EQ(itemKey(OrderLine(u"0; c ;2;3; d ;5; m"), box_key), u" m |  d  |  c ");
}

TEST(OrderFormatTest, FieldsBeyondTheLineFail) {
    const OrderLine line(u"a;b");
    EXPECT_EQ(line.width(), 2U);
    EXPECT_EQ(line[1], u"b");
    EXPECT_EQ(failureOf([&] { (void)line[2]; }), failure_number::subscript_out_of_range);
}

TEST(OrderFormatTest, ChosenKeyIsCutInTrimmedParts) {
    const ItemKey key(u" 3104527 | TENIS CASUAL  |AZUL ");
    EXPECT_EQ(key.code, u"3104527");
    EXPECT_EQ(key.description, u"TENIS CASUAL");
    EXPECT_EQ(key.colour, u"AZUL");
    EXPECT_EQ(ItemKey(u"typed").colour, u"");
}

TEST(OrderFormatTest, LineEnds) {
    EXPECT_EQ(linesOf(u"a\r\n\r\nb\nc\rd"), (std::vector<TextView>{u"a", u"", u"b", u"c", u"d"}));
    EXPECT_EQ(linesOf(u"a\r\n").size(), 1U);
    EXPECT_EQ(linesOf(u"").size(), 0U);
}

} // namespace etiquetas::test
