#include "config/Profile.h"

#include "support/Cases.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// What the key "k" of the section "A" has in a file; nothing where it is missing.
struct ProfileReading {
    std::string name, file;
    std::optional<std::string> value;
};

class ProfileReadingTest : public testing::TestWithParam<ProfileReading> {};

TEST_P(ProfileReadingTest, GivesTheValue) {
    EXPECT_EQ(profileValue(GetParam().file, "A", "k"), GetParam().value);
}

using Reading = ProfileReading;

INSTANTIATE_TEST_SUITE_P(
    Names, ProfileReadingTest,
    testing::Values(
        Reading{.name = "AnyCase", .file = "[b]\r\nk=2\r\n[a]\r\nK=1\r\n", .value = "1"},
        Reading{.name = "Blanks", .file = "[ A ]\r\n  k  =  x y  \r\n", .value = "x y"},
        Reading{.name = "Tabs", .file = "\t[\tA\t]\r\n\tk\t=\tx\ty\t\r\n", .value = "x\ty"},
        Reading{.name = "BracketMissing", .file = "[A\r\nk=1\r\n", .value = "1"},
        Reading{.name = "TextAfterBracket", .file = "[A] trailing]\r\nk=1", .value = "1"},
        Reading{.name = "FirstOfEqualSections", .file = "[A]\r\n[A]\r\nk=1\r\n", .value = {}},
        Reading{.name = "FirstOfEqualKeys", .file = "[A]\r\nk\r\nk=2\r\nK=3\r\n", .value = "2"},
        Reading{.name = "SectionMissing", .file = "k=1\r\n[B]\r\nk=2\r\n", .value = {}},
        Reading{.name = "KeyMissing", .file = "[A]\r\nj=1\r\n[B]\r\nk=2\r\n", .value = {}},
        Reading{.name = "AllLineEnds", .file = "[A]\nj=1\rk=2\n\r\ri=3", .value = "2"},
        Reading{.name = "ByteOrderMark", .file = "\xEF\xBB\xBF[A]\r\nk=1\r\n", .value = "1"}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    Values, ProfileReadingTest,
    testing::Values(
        Reading{.name = "SecondEqualsSign", .file = "[A]\r\n;k=1\r\nk=a=b\r\n", .value = "a=b"},
        Reading{.name = "Empty", .file = "[A]\r\nk=   \r\n", .value = ""},
        Reading{.name = "DoubleQuotes", .file = "[A]\r\nk=\"  a \"\r\n", .value = "  a "},
        Reading{.name = "SingleQuotes", .file = "[A]\r\nk=' a '\r\n", .value = " a "},
        Reading{.name = "OnePairOfQuotes", .file = "[A]\r\nk=\"\"a\"\"\r\n", .value = "\"a\""},
        Reading{.name = "UnlikeQuotes", .file = "[A]\r\nk=\"5'\r\n", .value = "\"5'"},
        Reading{.name = "OneQuote", .file = "[A]\r\nk=\"\r\n", .value = "\""},
        Reading{.name = "NoBreakSpaceAndSemicolon",
                .file = "[A]\r\nk=\xA0x ; c\r\n",
                .value = "\xA0x ; c"}),
    CaseName());

TEST(ProfileTest, CaseOfAccentedLettersCounts) {
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xC7", "\xE3"), "1");
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xE7", "\xE3"), std::nullopt);
}

/// What becomes of a file when the key "k" of the section "A" takes a value.
struct ProfileWriting {
    std::string name, before, value, after;
};

class ProfileWritingTest : public testing::TestWithParam<ProfileWriting> {};

TEST_P(ProfileWritingTest, KeepsAllElse) {
    EXPECT_EQ(withProfileValue(GetParam().before, "A", "k", GetParam().value), GetParam().after);
}

using Writing = ProfileWriting;

// clang-format off
INSTANTIATE_TEST_SUITE_P(NewKey, ProfileWritingTest, testing::Values(
    Writing{.name = "AfterTheLastKey", .before = "[A]\r\nj=1\r\n\r\n; end\r\n[B]\r\nz=9\r\n",
            .value = "2", .after = "[A]\r\nj=1\r\nk=2\r\n\r\n; end\r\n[B]\r\nz=9\r\n"},
    Writing{.name = "BeforeCommentsWithoutKeys", .before = "[A]\r\n; c\r\n\r\n[B]\r\n",
            .value = "1", .after = "[A]\r\nk=1\r\n; c\r\n\r\n[B]\r\n"},
    Writing{.name = "LinesThatAreNoKeys", .before = "[A]\r\nno key\r\nj=1\r\n;k=0\r\n",
            .value = "2", .after = "[A]\r\nno key\r\nj=1\r\nk=2\r\n;k=0\r\n"},
    Writing{.name = "FirstOfEqualSections", .before = "[A]\r\n[A]\r\nk=1\r\n",
            .value = "2", .after = "[A]\r\nk=2\r\n[A]\r\nk=1\r\n"},
    Writing{.name = "SectionMissing", .before = "[B]\r\nj=1",
            .value = "2", .after = "[B]\r\nj=1\r\n[A]\r\nk=2\r\n"},
    Writing{.name = "SectionWithoutLineEnd", .before = "[a]",
            .value = "1", .after = "[a]\r\nk=1\r\n"},
    Writing{.name = "EmptyFile", .before = "", .value = "v", .after = "[A]\r\nk=v\r\n"},
    Writing{.name = "ByteOrderMarkAlone", .before = "\xEF\xBB\xBF",
            .value = "1", .after = "\xEF\xBB\xBF[A]\r\nk=1\r\n"},
    Writing{.name = "UndefinedBytes", .before = "\xEF\xBB\xBF[A]\r\nj=\x81\x9D\r\n",
            .value = "1", .after = "\xEF\xBB\xBF[A]\r\nj=\x81\x9D\r\nk=1\r\n"}), CaseName());

INSTANTIATE_TEST_SUITE_P(Value, ProfileWritingTest, testing::Values(
    Writing{.name = "ReplacedInPlace", .before = "[a]\r\nK = old\r\n",
            .value = " new", .after = "[a]\r\nK= new\r\n"},
    Writing{.name = "OtherLineEndsStay", .before = "[A]\nk=1\nj = 2\n",
            .value = "3", .after = "[A]\nk=3\r\nj = 2\n"},
    Writing{.name = "Empty", .before = "[A]\r\nk=1", .value = "", .after = "[A]\r\nk=\r\n"},
    Writing{.name = "QuotesAndBlanksAsTheyStand", .before = "[A]\r\n",
            .value = "\"a\" ", .after = "[A]\r\nk=\"a\" \r\n"},
    Writing{.name = "LineEndsAreLeftOut", .before = "[A]\r\n",
            .value = "a\r\nb\nc", .after = "[A]\r\nk=abc\r\n"}), CaseName());
// clang-format on

} // namespace etiquetas::test
