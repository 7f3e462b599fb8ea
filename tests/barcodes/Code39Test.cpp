#include "barcodes/Code39.h"

#include "barcodes/SymbolPicture.h"

#include <gtest/gtest.h>

#include <array>

namespace etiquetas::test {

// The symbology's own structure (ISO/IEC 16388): ten characters each share four spaces, and their
// five bars tell them apart; the last four have narrow bars and spaces of their own. Widths in
// pixels; after the fifth bar comes the gap between characters.
static std::string modulesOf(char character) {
    const std::string characters = "1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ-. *$/+%";
    const std::array<std::string, 10> bars{"21112", "12112", "22111", "11212", "21211",
                                           "12211", "11122", "21121", "12121", "11221"};
    const std::array<std::string, 8> spaces{"1211", "1121", "1112", "2111",
                                            "2221", "2212", "2122", "1222"};
    const std::size_t at = characters.find(character);
    const std::string& own_bars = at < 40 ? bars.at(at % 10) : "11111";
    const std::string& own_spaces = at < 40 ? spaces.at(at / 10) : spaces.at(at - 36);
    std::string widths;
    for (std::size_t i = 0; i < 4; ++i) {
        widths += {own_bars[i], own_spaces[i]};
    }
    return barsAndSpaces(widths + own_bars[4] + "1");
}

static std::string row(const std::string& characters, std::size_t width) {
    std::string pixels(12, ' ');
    for (const char character : characters) {
        pixels += modulesOf(character);
    }
    pixels.resize(width, ' ');
    return pixels;
}

// Bars between ten blank rows above and ten or more below.
static std::vector<std::string> rowsOf(const std::string& bars, std::size_t bar_rows,
                                       std::size_t all_rows) {
    std::vector<std::string> rows(all_rows, std::string(bars.size(), ' '));
    std::fill_n(rows.begin() + 10, bar_rows, bars);
    return rows;
}

struct Code39Symbol {
    std::string name;
    Text text;
    bool with_check_character;
    Text cleaned_text;
    std::string characters; // as they are drawn
    std::size_t width;
};

class Code39Test : public testing::TestWithParam<Code39Symbol> {
  protected:
    BoxLetters letters;
    PictureBox picture{letters};
};

TEST_P(Code39Test, DrawsTheSymbolOfATextBetweenStartAndStop) {
    const Code39Symbol& symbol = GetParam();
    Text text = symbol.text;
    DesenhaCode39(picture, 1, text, symbol.with_check_character, false);
    EXPECT_EQ(text, symbol.cleaned_text);
    EXPECT_EQ(pixelRows(picture.Picture()), rowsOf(row(symbol.characters, symbol.width), 10, 30));
    EXPECT_TRUE(letters.texts.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Code39, Code39Test,
    testing::Values(
        Code39Symbol{"AllCharacters", u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", false,
                     u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%",
                     "*0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*", 597},
        Code39Symbol{"LosesAsterisksAndLowerCase", u"abc*1", false, u"ABC1", "*ABC1*", 98},
        Code39Symbol{"CheckDigit", u"12", true, u"12", "*123*", 85},
        Code39Symbol{"CheckLetterBeyondTheModulus", u"*z/%*", true, u"Z/%", "*Z/%V*", 98},
        Code39Symbol{"Empty", u"", false, u"", "**", 47},
        Code39Symbol{"LongestThatStandsWhole", Text(52, u'A'), false, Text(52, u'A'),
                     "*" + std::string(52, 'A') + "*", 713}),
    [](const auto& test) { return test.param.name; });

TEST_F(Code39Test, TextStandsUnderTheBarsWithoutTheCheckCharacter) {
    Text text = u"abc*1";
    DesenhaCode39(picture, 2, text, true, true);
    auto expected = rowsOf(row("*ABC1Y*", 111), 20, 55);
    std::fill_n(expected.begin() + 35, 10,
                std::string(44, ' ') + std::string(24, '#') + std::string(43, ' '));
    EXPECT_EQ(pixelRows(picture.Picture()), expected);
    EXPECT_EQ(letters.texts.back(), u"ABC1");
}

TEST_F(Code39Test, RefusesCharactersThatTheSymbologyLacks) {
    for (Text refused : {u"ABC_1", u"é"}) {
        Text drawn = u"ABC";
        DesenhaCode39(picture, 1, drawn, false, false);
        const auto failure = failureIn([&] { DesenhaCode39(picture, 1, refused, false, false); });
        ASSERT_TRUE(failure);
        EXPECT_EQ(static_cast<std::uint32_t>(failure->number()), 0x80040201);
        EXPECT_EQ(failure->source(), u"Bar 39");
        EXPECT_EQ(failure->description(), u"An Invalid Character Found in Bar Text");
        EXPECT_EQ(picture.Picture(), nullptr);
    }
}

} // namespace etiquetas::test
