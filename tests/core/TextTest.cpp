#include "base/Text.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(TextTest, PiecesOfATextCountedFromOne) {
    EXPECT_EQ(trimmed(u"  a b  "), u"a b");
    EXPECT_EQ(trimmed(u"\t\u00A0 "), u"\t\u00A0");
    EXPECT_TRUE(isBlank(u"  "));
    EXPECT_FALSE(isBlank(u" \t"));
    EXPECT_EQ(left(u"abc", 9), u"abc");
    EXPECT_EQ(right(u"abcd", 3), u"bcd");
    EXPECT_EQ(right(u"ab", 3), u"ab");
    EXPECT_EQ(mid(u"abcdef", 2, 3), u"bcd");
    EXPECT_EQ(mid(u"abc", 4, 1), u"");
    EXPECT_EQ(split(u";a;;b;", u';'), (std::vector<TextView>{u"", u"a", u"", u"b", u""}));
    EXPECT_EQ(split(u"", u';').size(), 1U);
}

TEST(TextTest, CaseCoversAccentedLettersAndSortingIsTotal) {
    EXPECT_EQ(upperCase(u"azáàâãäçéêíñóôõúüþÿœšž÷ß1"), u"AZÁÀÂÃÄÇÉÊÍÑÓÔÕÚÜÞŸŒŠŽ÷ß1");
    EXPECT_TRUE(equalIgnoringCase(u"Ação", u"AÇÃO"));
    EXPECT_FALSE(equalIgnoringCase(u"acao", u"acao "));
    EXPECT_TRUE(sortsBefore(u"a", u"B") && sortsBefore(u"PED", u"ped"));
    EXPECT_FALSE(sortsBefore(u"B", u"a") || sortsBefore(u"ped", u"PED"));
}

TEST(TextTest, Patterns) {
    const auto fits = [](TextView name) { return matchesPattern(name, u"*14*.txt"); };
    EXPECT_TRUE(fits(u"PEDIDO 14.TXT") && fits(u"14.txt") && fits(u"1141.txt.txt"));
    EXPECT_FALSE(fits(u"14.txt.bak") || fits(u"1.4.txt") || fits(u"14txt"));
    EXPECT_TRUE(matchesPattern(u"a14b15.txt", u"*1?b*5.txt"));
    EXPECT_TRUE(matchesPattern(u"", u"*") && !matchesPattern(u"", u"?"));
}

} // namespace etiquetas::test
