#include "base/Text.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(TextTest, UpperCaseCoversTheLettersOfTheCodePage) {
    EXPECT_EQ(upperCase(u"azáàâãäçéêíñóôõúüþÿœšž÷ß1"), u"AZÁÀÂÃÄÇÉÊÍÑÓÔÕÚÜÞŸŒŠŽ÷ß1");
}

TEST(TextTest, ComparisonIgnoresCaseAndNothingElse) {
    EXPECT_TRUE(equalIgnoringCase(u"Ação", u"AÇÃO"));
    EXPECT_FALSE(equalIgnoringCase(u"acao", u"acao "));
}

TEST(TextTest, SortingIgnoresCaseBeforeItLooksAtIt) {
    EXPECT_TRUE(sortsBefore(u"a", u"B"));
    EXPECT_FALSE(sortsBefore(u"B", u"a"));
    EXPECT_TRUE(sortsBefore(u"PED", u"ped"));
    EXPECT_FALSE(sortsBefore(u"ped", u"PED"));
}

TEST(TextTest, PatternStandsForAnyRunAndAnyCharacter) {
    const TextView pattern = u"*1?4*.txt";
    for (const TextView name : {u"PEDIDO 1-4.TXT", u"114.txt", u"11411-4.txt.txt"}) {
        EXPECT_TRUE(matchesPattern(name, pattern)) << utf8(name);
    }
    for (const TextView name : {u"114.txt.bak", u"14.txt", u"114txt"}) {
        EXPECT_FALSE(matchesPattern(name, pattern)) << utf8(name);
    }
}

} // namespace etiquetas::test
