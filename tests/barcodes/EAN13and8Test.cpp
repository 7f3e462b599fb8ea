#include "barcodes/EAN13and8.h"

#include "barcodes/Code39.h"
#include "barcodes/SymbolPicture.h"

#include <gtest/gtest.h>

#include <functional>

namespace etiquetas::test {

class Ean13Test : public testing::Test {
  protected:
    void draw(TextView digits, std::int16_t scale, bool with_digits) {
        DesenhaEan13(picture, scale, digits, with_digits);
        symbols.tell("digits", utf8(digits));
        addRows(symbols, picture.Picture());
    }

    Journal symbols;
    FakeFiles letters{symbols};
    PictureBox picture{letters};
};

TEST_F(Ean13Test, DrawsSymbolsOfTwelveDigitsInTensOfPixels) {
    for (const TextView digits :
         {u"001165412508", u"159128084568", u"274317831894", u"330524393287", u"415502478677",
          u"584103367986", u"606925341311", u"780407389040", u"814280507933", u"937539997216"}) {
        draw(digits, 1, false);
    }
    draw(u"204455667788", 2, false);
    EXPECT_EQ(symbols.log, Log()) << "letters";
    draw(u"204455667788", 2, true);
    EXPECT_EQ(symbols.log, (Log{"letters 044556", "letters 677888"}));
    EXPECT_TRUE(matchesGolden(symbols.transcript, "ean13_symbols"));
}

// The picture keeps the symbol that it drew last.
TEST_F(Ean13Test, DrawsAsInANewPictureWhateverWasDrawnBefore) {
    constexpr TextView digits = u"204455667788";
    using Draw = std::function<void(PictureBox&)>;
    const Draw small = [&](PictureBox& box) { DesenhaEan13(box, 1, digits, false); };
    const Draw large = [&](PictureBox& box) { DesenhaEan13(box, 2, digits, false); };
    const Draw with_digits = [&](PictureBox& box) { DesenhaEan13(box, 1, digits, true); };
    const Draw other = [&](PictureBox& box) { DesenhaEan13(box, 1, u"001165412508", false); };
    const Draw code39 = [&](PictureBox& box) {
        Text text(digits);
        DesenhaCode39(box, 1, text, false, false);
    };
    for (const Draw& draw_next :
         {small, small, large, small, with_digits, small, code39, small, other, small}) {
        PictureBox fresh{letters};
        draw_next(fresh);
        draw_next(picture);
        EXPECT_EQ(picture.Picture()->width, fresh.Picture()->width);
        EXPECT_EQ(picture.Picture()->pixels, fresh.Picture()->pixels);
        EXPECT_EQ(picture.Image()->pixels, fresh.Image()->pixels);
    }
}

TEST_F(Ean13Test, BarsAreAtMostAsHighAsSixteenBitsHold) {
    const auto failure_at = [this](std::int16_t scale) {
        return failureOf([&] { DesenhaEan13(picture, scale, u"204455667788", false); });
    };
    EXPECT_EQ(failure_at(3276), 0);
    EXPECT_EQ(failure_at(3277), failure_number::overflow);
}

TEST_F(Ean13Test, RefusesWhatIsNotTwelveDigitsAndLeavesAnEmptyPicture) {
    struct Refused {
        TextView text;
        std::string failure;
    };
    const std::string wrong_length = "80040201 EAN-13: Should be 12 Digit Numbers";
    const std::string no_digit = "80040201 EAN-13: An Invalid Character Found in Bar Text";
    for (const Refused& refused :
         {Refused{u"20445566778", wrong_length}, Refused{u"2044556677888", wrong_length},
          Refused{u"2044A5667788", no_digit}, Refused{u"20445566778 ", no_digit}}) {
        draw(u"204455667788", 1, false);
        EXPECT_EQ(failureTextOf([&] { DesenhaEan13(picture, 1, refused.text, false); }),
                  refused.failure);
        EXPECT_EQ(picture.Picture(), nullptr);
        symbols.forget();
        addRows(symbols, picture.Image());
        EXPECT_EQ(symbols.transcript, Log{"156 rows |" + std::string(377, ' ') + "|"});
    }
}

} // namespace etiquetas::test
