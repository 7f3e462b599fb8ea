#include "base/Numbers.h"

#include "support/Cases.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace etiquetas::test {

struct NumberTexts {
    std::string name;
    float value;
    std::vector<TextView> texts;
};

class NumberTextsTest : public testing::TestWithParam<NumberTexts> {};

TEST_P(NumberTextsTest, AreNumericAndHaveTheValue) {
    for (const TextView text : GetParam().texts) {
        ASSERT_TRUE(isNumeric(text)) << utf8(text);
        EXPECT_EQ(toSingle(text), GetParam().value) << utf8(text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumberTextsTest,
    testing::Values(
        NumberTexts{.name = "Digits", .value = 12, .texts = {u"12", u"\u00A0\t00012\r\n\v\f"}},
        NumberTexts{.name = "Blanks", .value = 12, .texts = {u" 12 ", u" +12 "}},
        NumberTexts{.name = "PlusSign", .value = 12, .texts = {u"+12", u"12+"}},
        NumberTexts{.name = "PointsThatGroup", .value = 12, .texts = {u"1.2", u"1..2.", u"12,"}},
        NumberTexts{.name = "Reais", .value = 12, .texts = {u"R$ 12", u"R$12,00", u"12 R$"}},
        NumberTexts{.name = "Exponents", .value = 12, .texts = {u"1,2E1", u"0,0012d+4"}},
        NumberTexts{.name = "OtherBases", .value = 12, .texts = {u"&HC", u"&h0c", u"&O14"}},
        NumberTexts{.name = "MinusSign", .value = -12, .texts = {u"12-", u"- 12", u"12 -"}},
        NumberTexts{.name = "Parentheses", .value = -12, .texts = {u"(12)", u" ( 12 ) "}},
        NumberTexts{.name = "MinusReais", .value = -12, .texts = {u"-R$ 12", u"R$ - 12"}},
        NumberTexts{.name = "Half", .value = 0.5F, .texts = {u",5", u"0,5", u"5E-1"}},
        NumberTexts{.name = "Zero", .value = 0, .texts = {u"0", u"0E9999999999", u"1E-60"}},
        NumberTexts{.name = "PointsAndComma", .value = 1234.56F, .texts = {u"1.234,56"}},
        NumberTexts{.name = "TieToEven", .value = 16777216, .texts = {u"16777217"}},
        NumberTexts{.name = "BeyondTie", .value = 16777218, .texts = {u"16777217,0000001"}},
        NumberTexts{.name = "Largest",
                    .value = std::numeric_limits<float>::max(),
                    .texts = {u"3,4028235E38"}}),
    CaseName());

TEST(NumbersTest, OtherTextsAreNoNumbers) {
    for (const TextView text :
         {u"",      u" ",    u"-",   u",",   u".",    u"1,2,3",  u".5",    u"1 2",
          u"12abc", u"abc",  u"--5", u"-5-", u"$5",   u"r$5",    u"R$",    u"1E",
          u"E3",    u"1 E3", u"(5",  u"5)",  u"(-5)", u"33/34",  u"38º",   u"5%",
          u"0x10",  u"&HG",  u"&O8", u"&H",  u"½",    u"\u0663", u"R$5R$", u"1E3,5"}) {
        EXPECT_FALSE(isNumeric(text)) << utf8(text);
    }
}

TEST(NumbersTest, WhatDoesNotConvertFails) {
    EXPECT_EQ(failureOf([] { (void)toInteger16(u"x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([] { (void)toSingle(u"x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([] { (void)toSingle(u"-3,5E38"); }), failure_number::overflow);
    for (const TextView text : {u"32767,5", u"-32769", u"-32768,51", u"99999", u"1E9999999999",
                                u"&H10000", u"&HFFFFFFFFFFFFFFFFF"}) {
        EXPECT_EQ(failureOf([&] { (void)toInteger16(text); }), failure_number::overflow)
            << utf8(text);
    }
}

TEST(NumbersTest, SixteenBitsRoundHalfToEven) {
    struct Rounded {
        TextView text;
        int value;
    };
    for (const Rounded& number :
         {Rounded{.text = u"0,5", .value = 0}, Rounded{.text = u"-0,5", .value = 0},
          Rounded{.text = u"0,05", .value = 0}, Rounded{.text = u"0E9999999999", .value = 0},
          Rounded{.text = u"1E-9999999999", .value = 0}, Rounded{.text = u"0,51", .value = 1},
          Rounded{.text = u"1,5", .value = 2}, Rounded{.text = u"2,5", .value = 2},
          Rounded{.text = u"0,00000002E8", .value = 2}, Rounded{.text = u"2,50001", .value = 3},
          Rounded{.text = u"-1,5", .value = -2}, Rounded{.text = u"-2,5", .value = -2},
          Rounded{.text = u"32767,49", .value = 32767}, Rounded{.text = u"&H7FFF", .value = 32767},
          Rounded{.text = u"-32768,5", .value = -32768},
          Rounded{.text = u"&H8000", .value = -32768}, Rounded{.text = u"&HFFFF", .value = -1}}) {
        EXPECT_EQ(toInteger16(number.text), number.value) << utf8(number.text);
    }
}

TEST(NumbersTest, PatternsFillWithZeros) {
    EXPECT_EQ(formatted(7, u"#000"), u"007");
    EXPECT_EQ(formatted(-1, u"#00"), u"-01");
    EXPECT_EQ(formatted(0, u"#0"), u"0");
}

} // namespace etiquetas::test
