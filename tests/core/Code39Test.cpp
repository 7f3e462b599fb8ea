#include "barcodes/Code39.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// ISO/IEC 16388: ten characters each share four spaces, and their five bars tell them apart; the
// last four have narrow bars. 1 is a wide element, of two pixels; the fifth space is the gap behind
// a character.
static Rows symbolOf(const std::string& text, std::size_t width, std::size_t height = 10) {
    const std::string characters = "1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ-. *$/+%";
    const std::string bars = "10001 01001 11000 00101 10100 01100 00011 10010 01010 00110 00000";
    const std::string spaces = "01000 00100 00010 10000 11100 11010 10110 01110";
    std::string row(12, ' ');
    for (const char character : "*" + text + "*") {
        const std::size_t at = characters.find(character);
        for (std::size_t i = 0; i < 5; ++i) {
            row.append(bars[6 * (at < 40 ? at % 10 : 10) + i] == '1' ? 2 : 1, '#');
            row.append(spaces[6 * (at < 40 ? at / 10 : at - 36) + i] == '1' ? 2 : 1, ' ');
        }
    }
    row.resize(width, ' ');
    Rows rows(height + 20, std::string(width, ' '));
    std::fill_n(rows.begin() + 10, height, row);
    return rows;
}

class Code39Test : public testing::Test, protected FakePlatform {
  protected:
    PictureBox box{pictures};
};

TEST_F(Code39Test, Symbols) {
    const Text all = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
    using Case = std::tuple<Text, bool, TextView, std::string, std::size_t>;
    for (auto [text, check, cleaned, drawn, width] :
         {Case{all, false, all, utf8(all), 597}, Case{u"abc*1", false, u"ABC1", "ABC1", 98},
          Case{u"12", true, u"12", "123", 85}, Case{u"*z/%*", true, u"Z/%", "Z/%V", 98},
          Case{u"", false, u"", "", 47}}) {
        DesenhaCode39(box, 1, text, check, false);
        EXPECT_EQ(text, cleaned);
        EXPECT_EQ(rowsOf(box.Picture()), symbolOf(drawn, width)) << drawn;
    }
    EXPECT_EQ(log, Log()); // no text under the bars
}

TEST_F(Code39Test, TextUnderTheBarsAndRefusals) {
    Text text = u"abc*1";
    DesenhaCode39(box, 2, text, true, true);
    Rows expected = symbolOf("ABC1Y", 111, 20);
    expected.resize(55, std::string(111, ' '));
    std::fill_n(expected.begin() + 35, 10,
                std::string(44, ' ') + std::string(24, '#') + std::string(43, ' '));
    EXPECT_EQ(rowsOf(box.Picture()), expected);
    EXPECT_EQ(log.back(), "letters ABC1");
    for (Text refused : {u"ABC_1", u"é"}) {
        EXPECT_EQ(failureTextOf([&] { DesenhaCode39(box, 1, refused, false, false); }),
                  "80040201 Bar 39: An Invalid Character Found in Bar Text");
        EXPECT_EQ(box.Picture(), nullptr);
    }
}

} // namespace etiquetas::test
