#include "barcodes/Code39.h"

#include "barcodes/SymbolPicture.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class Code39Test : public testing::Test {
  protected:
    /// Draws a text without its letters, and tells its symbol and how it comes back.
    void draw(Text text, bool with_check_character) {
        DesenhaCode39(picture, 1, text, with_check_character, false);
        EXPECT_EQ(symbols.log, Log()) << "letters";
        tellSymbol(text, with_check_character);
    }

    void tellSymbol(TextView text, bool with_check_character) {
        symbols.tell("text",
                     inQuotes(text) + (with_check_character ? " with check character" : ""));
        addRows(symbols, picture.Picture());
    }

    Journal symbols;
    FakeFiles letters{symbols};
    PictureBox picture{letters};
};

TEST_F(Code39Test, DrawsTheSymbolOfATextBetweenStartAndStop) {
    draw(u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", false);
    draw(u"abc*1", false); // loses what only starts and stops, and its lower case
    draw(u"12", true);
    draw(u"*z/%*", true); // whose check character is beyond the modulus
    draw(u"", false);
    draw(Text(52, u'A'), false); // the longest that stands whole
    Text text = u"abc*1";
    DesenhaCode39(picture, 2, text, true, true);
    tellSymbol(text, true);
    EXPECT_EQ(symbols.log.back(), "letters ABC1");
    EXPECT_TRUE(matchesGolden(symbols.transcript, "code39_symbols"));
}

TEST_F(Code39Test, RefusesCharactersThatTheSymbologyLacks) {
    for (Text refused : {u"ABC_1", u"é"}) {
        draw(u"ABC", false);
        EXPECT_EQ(failureTextOf([&] { DesenhaCode39(picture, 1, refused, false, false); }),
                  "80040201 Bar 39: An Invalid Character Found in Bar Text");
        EXPECT_EQ(picture.Picture(), nullptr);
    }
}

} // namespace etiquetas::test
