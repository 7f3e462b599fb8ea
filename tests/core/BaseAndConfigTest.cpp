#include "base/CodePage.h"
#include "base/Numbers.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace etiquetas::test {

TEST(TextTest, CaseSortingAndPatterns) {
    EXPECT_EQ(upperCase(u"azáàâãäçéêíñóôõúüþÿœšž÷ß1"), u"AZÁÀÂÃÄÇÉÊÍÑÓÔÕÚÜÞŸŒŠŽ÷ß1");
    EXPECT_TRUE(equalIgnoringCase(u"Ação", u"AÇÃO") && !equalIgnoringCase(u"acao", u"acao "));
    EXPECT_TRUE(sortsBefore(u"a", u"B") && sortsBefore(u"PED", u"ped"));
    EXPECT_FALSE(sortsBefore(u"B", u"a") || sortsBefore(u"ped", u"PED"));
    const auto fits = [](TextView name) { return matchesPattern(name, u"*1?4*.txt"); };
    EXPECT_TRUE(fits(u"PEDIDO 1-4.TXT") && fits(u"114.txt") && fits(u"11411-4.txt.txt"));
    EXPECT_FALSE(fits(u"114.txt.bak") || fits(u"14.txt") || fits(u"114txt"));
}

TEST(CodePageTest, BytesAndTheirCharacters) {
    using Case = std::pair<std::string_view, TextView>;
    for (const auto& [bytes, text] :
         {Case{"aA\xE7\xE3o \xC9\xBA \xD7\xFF", u"aAção Éº ×ÿ"},
          Case{"\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E", u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ"},
          Case{"\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F", u"‘’“”•–—˜™š›œžŸ"},
          Case{"\x81\x8D\x8F\x90\x9D\xA0", u"\x81\x8D\x8F\x90\x9D\xA0"}}) {
        EXPECT_EQ(fromCodePage1252(bytes), text);
        EXPECT_EQ(toCodePage1252(text), bytes);
    }
    EXPECT_EQ(toCodePage1252(u"Ω\u0080漢Ā"), "????");
}

TEST(NumbersTest, WhatIsANumberAndItsValue) {
    const std::map<float, std::vector<TextView>> texts_of{
        {12.0F,
         {u"12", u" 12 ", u"+12", u"12+", u"12,", u"1.2", u"1..2.", u"R$ 12", u"R$12,00", u"12 R$",
          u"\u00A0\t00012\r\n\v\f", u"1,2E1", u"0,0012d+4", u"&HC", u"&h0c", u"&O14"}},
        {-12.0F, {u"12-", u"- 12", u"12 -", u"(12)", u" ( 12 ) ", u"-R$ 12", u"R$ - 12"}},
        {0.5F, {u",5", u"0,5", u"5E-1"}},
        {0.0F, {u"0", u"0E9999999999", u"1E-60"}},
        {1234.56F, {u"1.234,56"}},
        {16777216.0F, {u"16777217"}},
        {16777218.0F, {u"16777217,0000001"}},
        {std::numeric_limits<float>::max(), {u"3,4028235E38"}}};
    for (const auto& [value, texts] : texts_of) {
        for (const TextView text : texts) {
            ASSERT_TRUE(isNumeric(text)) << utf8(text);
            EXPECT_EQ(toSingle(text), value) << utf8(text);
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
        EXPECT_FALSE(isNumeric(text)) << utf8(text);
    }
    EXPECT_EQ(failureOf([] { (void)toInteger16(u"x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([] { (void)toSingle(u"x"); }), failure_number::type_mismatch);
}

TEST(NumbersTest, SixteenBitsRoundHalfToEven) {
    using Case = std::pair<TextView, int>;
    for (const auto& [text, value] :
         {Case{u"0,5", 0}, Case{u"-0,5", 0}, Case{u"0,05", 0}, Case{u"0E9999999999", 0},
          Case{u"1E-9999999999", 0}, Case{u"0,51", 1}, Case{u"1,5", 2}, Case{u"2,5", 2},
          Case{u"0,00000002E8", 2}, Case{u"2,50001", 3}, Case{u"-1,5", -2}, Case{u"-2,5", -2},
          Case{u"32767,49", 32767}, Case{u"&H7FFF", 32767}, Case{u"-32768,5", -32768},
          Case{u"&H8000", -32768}, Case{u"&HFFFF", -1}}) {
        EXPECT_EQ(toInteger16(text), value) << utf8(text);
    }
    for (const TextView text : {u"32767,5", u"-32769", u"-32768,51", u"99999", u"1E9999999999",
                                u"&H10000", u"&HFFFFFFFFFFFFFFFFF"}) {
        EXPECT_EQ(failureOf([&] { (void)toInteger16(text); }), failure_number::overflow)
            << utf8(text);
    }
}

TEST(NumbersTest, Formats) {
    EXPECT_EQ(formatted(7, u"#000") + formatted(-1, u"#00") + formatted(0, u"#0"), u"007-010");
}

// "|" stands for CR LF, so that a file fits a line.
static std::string unfolded(TextView text) {
    return toCodePage1252(replaceAll(text, u"|", u"\r\n"));
}

TEST(ProfileTest, ReadingAKey) {
    using Case = std::pair<Text, std::string>;
    for (const auto& [file, value] :
         {Case{u"[b]|k=2|[a]|K=1|", "1"}, Case{u"[A]|[A]|k=1|", "-"},
          Case{u"[ A ]|  k  =  x y  |", "x y"}, Case{u"\t[\tA\t]|\tk\t=\tx\ty\t|", "x\ty"},
          Case{u"[A|k=1|", "1"}, Case{u"[A] trailing]|k=1", "1"}, Case{u"[A]|;k=1|k=a=b|", "a=b"},
          Case{u"k=1|[B]|k=2|", "-"}, Case{u"[A]|j=1|[B]|k=2|", "-"}, Case{u"[A]|k=   |", ""},
          Case{u"[A]|k=\"  a \"|", "  a "}, Case{u"[A]|k=' a '|", " a "},
          Case{u"[A]|k=\"\"a\"\"|", "\"a\""}, Case{u"[A]|k=\"5'|", "\"5'"},
          Case{u"[A]|k=\"|", "\""}, Case{u"[A]|k|k=2|K=3|", "2"},
          Case{u"[A]|k=\u00A0x ; c|", "\xA0x ; c"}, Case{u"[A]\nj=1\rk=2\n\r\ri=3", "2"},
          Case{u"ï»¿[A]|k=1|", "1"}}) {
        EXPECT_EQ(profileValue(unfolded(file), "A", "k").value_or("-"), value) << utf8(file);
    }
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xC7", "\xE3"), "1");
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xE7", "\xE3"), std::nullopt);
}

TEST(ProfileTest, WritingAKey) {
    using Case = std::tuple<Text, Text, Text>;
    for (const auto& [before, value, after] :
         {Case{u"[A]|j=1||; end|[B]|z=9|", u"2", u"[A]|j=1|k=2||; end|[B]|z=9|"},
          Case{u"[B]|j=1", u"2", u"[B]|j=1|[A]|k=2|"},
          Case{u"[a]|K = old|", u" new", u"[a]|K= new|"}, Case{u"", u"v", u"[A]|k=v|"},
          Case{u"[a]", u"1", u"[a]|k=1|"}, Case{u"[A]|; c||[B]|", u"1", u"[A]|k=1|; c||[B]|"},
          Case{u"[A]|no key|j=1|;k=0|", u"2", u"[A]|no key|j=1|k=2|;k=0|"},
          Case{u"[A]|[A]|k=1|", u"2", u"[A]|k=2|[A]|k=1|"},
          Case{u"[A]\nk=1\nj = 2\n", u"3", u"[A]\nk=3|j = 2\n"}, Case{u"[A]|k=1", u"", u"[A]|k=|"},
          Case{u"[A]|", u"\"a\" ", u"[A]|k=\"a\" |"}, Case{u"[A]|", u"a|b\nc", u"[A]|k=abc|"},
          Case{u"ï»¿", u"1", u"ï»¿[A]|k=1|"},
          Case{u"ï»¿[A]|j=\x81\x9D|", u"1", u"ï»¿[A]|j=\x81\x9D|k=1|"}}) {
        EXPECT_EQ(withProfileValue(unfolded(before), "A", "k", unfolded(value)), unfolded(after));
    }
}

class SettingsTest : public testing::Test, protected FakePlatform {};

TEST_F(SettingsTest, FileIsFoundInAnyCaseAndValuesGoThroughTheCodePageWhole) {
    EXPECT_EQ(settingsPath(files), u"/programa/Varesko.ini");
    EXPECT_EQ(joined(files, u"/", u"a"), u"/a");
    files.bytes[u"/programa/VARESKO.INI"] = "[config]\r\nLOTE=5\r\n";
    const Text ini = settingsPath(files);
    GravaIni(files, u"Config", u"Lote", Text(1000, u'á') + u"€Ω", ini);
    EXPECT_EQ(files.bytes[u"/programa/VARESKO.INI"],
              "[config]\r\nLOTE=" + std::string(1000, '\xE1') + "\x80?\r\n");
    EXPECT_EQ(LeIni(files, ini, u"Config", u"Lote", u""), Text(1000, u'á') + u"€?");
    EXPECT_EQ(LeIni(files, ini, u"Config", u"Porta", u"padrão"), u"padrão");
    failing = {"read"}; // what can't be read is not replaced
    GravaIni(files, u"Config", u"Lote", u"6", ini);
    EXPECT_EQ(log, Log{"write /programa/VARESKO.INI"});
    EXPECT_EQ(LeIni(files, u"/none.ini", u"Config", u"Lote", u"padrão"), u"padrão");
    files.bytes = {{u"/p/a.txt", ""}, {u"/p/A.TXT", ""}};
    EXPECT_EQ(findFile(files, u"/p", u"a.txt"), u"/p/a.txt"); // the exact name wins
}

} // namespace etiquetas::test
