#include "base/Numbers.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace etiquetas::test {

TEST(NumbersTest, WhatIsANumberAndItsValue) {
    const std::map<float, std::vector<TextView>> texts_of{
        {12.0F, {u"12", u" 12 ", u"+12", u"00012", u"\u00A0\t12\r\n\v\f"}},
        {-5.0F, {u"- 5", u"5 -", u"(5)", u" ( 5 ) ", u"-R$ 5", u"R$ - 5"}},
        {5.0F, {u"R$ 5", u"R$5,00", u"5 R$", u"5+"}},
        {0.5F, {u",5", u"0,5"}},
        {1.5F, {u"1,5", u"15E-1", u"0,0015d+3"}},
        {15.0F, {u"1.5", u"1..5."}},
        {1234.56F, {u"1.234,56"}},
        {13999.0F, {u"139.99"}},
        {3.0F, {u"3,"}},
        {-12.0F, {u"12-"}},
        {1000.0F, {u"1E3"}},
        {360.0F, {u"36e1"}},
        {16.0F, {u"&H10", u"&h10"}},
        {8.0F, {u"&O10"}},
        {0.0F, {u"0", u"0E9999999999", u"1E-60"}},
        {16777216.0F, {u"16777217"}},
        {16777218.0F, {u"16777217,0000001"}},
        {std::numeric_limits<float>::max(), {u"3,4028235E38"}}};
    for (const auto& row : texts_of) {
        for (const TextView text : row.second) {
            SCOPED_TRACE(utf8(text));
            EXPECT_TRUE(isNumeric(text));
            EXPECT_EQ(failureOf([&] { EXPECT_EQ(toSingle(text), row.first); }), 0);
        }
    }
    EXPECT_EQ(failureOf([] { (void)toSingle(u"-3,5E38"); }), failure_number::overflow);
}

TEST(NumbersTest, WhatIsNoNumber) {
    for (const TextView text :
         {u"",      u" ",    u"-",   u",",   u".",    u"1,2,3",  u".5",    u"1 2",
          u"12abc", u"abc",  u"--5", u"-5-", u"$5",   u"r$5",    u"R$",    u"1E",
          u"E3",    u"1 E3", u"(5",  u"5)",  u"(-5)", u"33/34",  u"38º",   u"5%",
          u"0x10",  u"&HG",  u"&O8", u"&H",  u"½",    u"\u0663", u"R$5R$", u"1E3,5"}) {
        SCOPED_TRACE(utf8(text));
        EXPECT_FALSE(isNumeric(text));
        EXPECT_EQ(failureOf([&] { (void)toInteger16(text); }), failure_number::type_mismatch);
        EXPECT_EQ(failureOf([&] { (void)toSingle(text); }), failure_number::type_mismatch);
    }
    EXPECT_TRUE(isNumeric(u'9'));
    EXPECT_FALSE(isNumeric(u'-'));
}

TEST(NumbersTest, SixteenBitsRoundHalfToEven) {
    const std::map<int, std::vector<TextView>> texts_of{
        {0, {u"0,5", u"-0,5", u"0,05", u"0E9999999999", u"1E-9999999999"}},
        {1, {u"0,51"}},
        {2, {u"1,5", u"2,5"}},
        {3, {u"2,50001"}},
        {-2, {u"-1,5", u"-2,5"}},
        {38, {u"37,5", u"38,5"}},
        {1000, {u"0,0000001E10"}},
        {32767, {u"32767,49", u"&H7FFF"}},
        {-32768, {u"-32768,5", u"&H8000"}},
        {-1, {u"&HFFFF"}}};
    for (const auto& row : texts_of) {
        for (const TextView text : row.second) {
            SCOPED_TRACE(utf8(text));
            EXPECT_EQ(failureOf([&] { EXPECT_EQ(toInteger16(text), row.first); }), 0);
        }
    }
    for (const TextView text : {u"32767,5", u"-32769", u"-32768,51", u"99999", u"1E9999999999",
                                u"&H10000", u"&HFFFFFFFFFFFFFFFFF"}) {
        SCOPED_TRACE(utf8(text));
        EXPECT_EQ(failureOf([&] { (void)toInteger16(text); }), failure_number::overflow);
    }
    EXPECT_EQ(toInteger16(std::int32_t{-32768}), -32768);
    EXPECT_EQ(failureOf([] { (void)toInteger16(std::int32_t{32768}); }), failure_number::overflow);
}

TEST(NumbersTest, Formats) {
    EXPECT_EQ(formatted(7, u"#000"), u"007");
    EXPECT_EQ(formatted(12345, u"#000"), u"12345");
    EXPECT_EQ(formatted(-1, u"#00"), u"-01");
    EXPECT_EQ(formatted(0, u"#0"), u"0");
    EXPECT_EQ(signedNumberText(5), u" 5");
    EXPECT_EQ(signedNumberText(-5), u"-5");
}

} // namespace etiquetas::test
