#include "barcodes/EAN13and8.h"

#include "barcodes/SymbolPicture.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// A symbol by the widths of its bars and spaces: four to each digit, six digits to a half.
struct Ean13Symbol {
    TextView digits;
    std::string left_half;
    std::string right_half;

    std::string modules() const {
        return barsAndSpaces("111" + left_half + "11111" + right_half + "111");
    }
};

constexpr std::size_t picture_width = 141;

static std::string row(const std::string& modules) {
    std::string pixels = std::string(11, ' ') + modules;
    pixels.resize(picture_width, ' ');
    return pixels;
}

// The rows of the bars, five in which the guards alone run on, and blank ones to the picture's end.
static std::vector<std::string> rowsOf(const Ean13Symbol& symbol, std::size_t bar_rows,
                                       std::size_t all_rows) {
    const std::string half(42, ' ');
    std::vector<std::string> rows(bar_rows, row(symbol.modules()));
    rows.insert(rows.end(), 5, row("# #" + half + " # # " + half + "# #"));
    rows.resize(all_rows, row(""));
    return rows;
}

class Ean13Test : public testing::TestWithParam<Ean13Symbol> {
  protected:
    BoxLetters letters;
    PictureBox picture{letters};
};

// Each digit once in each place, the check digit's among them.
TEST_P(Ean13Test, DrawsTheSymbolOfTwelveDigits) {
    DesenhaEan13(picture, 1, GetParam().digits, false);
    EXPECT_EQ(pixelRows(picture.Picture()), rowsOf(GetParam(), 10, 27));
    EXPECT_TRUE(letters.texts.empty());
}

INSTANTIATE_TEST_SUITE_P(
    FirstDigit, Ean13Test,
    testing::Values(
        Ean13Symbol{u"001165412508", "321122212221111412311132", "222121221231321112131312"},
        Ean13Symbol{u"159128084568", "123131121222212231211123", "121311321231111412131411"},
        Ean13Symbol{u"274317831894", "131211321141122213123121", "141122211213311211323112"},
        Ean13Symbol{u"330524393287", "141132111321221223111411", "311214112122121313122221"},
        Ean13Symbol{u"415502478677", "222113211231321122122311", "131212131114131213121213"},
        Ean13Symbol{u"584103367986", "121323111222321114111141", "111413123112121311141132"},
        Ean13Symbol{u"606925341311", "321141112113221212311411", "113222211411222122211231"},
        Ean13Symbol{u"780407389040", "121311231132112313121141", "121331123211113232111114"},
        Ean13Symbol{u"814280507933", "222123112122312111231231", "321113123112141114113211"},
        Ean13Symbol{u"937539997216", "141121311321141121133112", "311213122122222111142122"}),
    [](const auto& test) { return std::string(1, static_cast<char>(test.param.digits.front())); });

TEST_F(Ean13Test, ScaleIsTheBarHeightInTensOfPixels) {
    const Ean13Symbol symbol{u"204455667788", "321111322311132112314111",
                             "111413121312121312131213"};
    DesenhaEan13(picture, 2, symbol.digits, false);
    EXPECT_EQ(pixelRows(picture.Picture()), rowsOf(symbol, 20, 36));
    EXPECT_FALSE(failureIn([&] { DesenhaEan13(picture, 3276, symbol.digits, false); }));
    const auto failure = failureIn([&] { DesenhaEan13(picture, 3277, symbol.digits, false); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), failure_number::overflow);
}

TEST_F(Ean13Test, DigitsStandUnderTheBarsWithTheCheckDigit) {
    DesenhaEan13(picture, 2, u"204455667788", true);
    EXPECT_EQ(letters.texts, (std::vector<Text>{u"044556", u"677888"}));
    const auto rows = pixelRows(picture.Picture());
    std::string digits = row("");
    digits.replace(23, 36, 36, '#').replace(68, 36, 36, '#');
    EXPECT_EQ(rows.at(29), row(""));
    EXPECT_EQ(rows.at(30), digits);
    EXPECT_EQ(rows.back(), digits);
}

struct RefusedText {
    std::string name;
    TextView text;
    TextView description;
};

class RefusedEan13Test : public testing::TestWithParam<RefusedText> {};

TEST_P(RefusedEan13Test, FailsAndLeavesAnEmptyPicture) {
    BoxLetters letters;
    PictureBox picture{letters};
    DesenhaEan13(picture, 1, u"204455667788", false);
    const auto failure = failureIn([&] { DesenhaEan13(picture, 1, GetParam().text, false); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(static_cast<std::uint32_t>(failure->number()), 0x80040201);
    EXPECT_EQ(failure->source(), u"EAN-13");
    EXPECT_EQ(failure->description(), GetParam().description);
    EXPECT_EQ(picture.Picture(), nullptr);
    EXPECT_EQ(pixelRows(picture.Image()), std::vector(156, std::string(377, ' ')));
}

INSTANTIATE_TEST_SUITE_P(
    Ean13, RefusedEan13Test,
    testing::Values(
        RefusedText{"ElevenDigits", u"20445566778", u"Should be 12 Digit Numbers"},
        RefusedText{"ThirteenDigits", u"2044556677888", u"Should be 12 Digit Numbers"},
        RefusedText{"LetterAmongThem", u"2044A5667788", u"An Invalid Character Found in Bar Text"},
        RefusedText{"BlankAtTheEnd", u"20445566778 ", u"An Invalid Character Found in Bar Text"}),
    [](const auto& test) { return test.param.name; });

} // namespace etiquetas::test
