#include "barcodes/EAN13and8.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// The symbol from the widths of its bars and spaces; the guards run 5 rows on.
static Rows symbolOf(const std::string& widths, std::size_t bar_rows, std::size_t all_rows) {
    std::string bars(11, ' ');
    for (const char width : "111" + widths + "111") {
        bars.append(static_cast<std::size_t>(width - '0'), bars.back() == '#' ? ' ' : '#');
    }
    const std::string quiet(11, ' '), half(42, ' '), rest(35, ' ');
    Rows rows(bar_rows, bars + rest);
    rows.insert(rows.end(), 5, quiet + "# #" + half + " # # " + half + "# #" + rest);
    rows.resize(all_rows, std::string(141, ' '));
    return rows;
}

class Ean13Test : public testing::Test, protected FakePlatform {
  protected:
    PictureBox box{pictures};
    const Text code = u"204455667788";
};

TEST_F(Ean13Test, EachDigitInEachPlaceOfTheSymbol) {
    using Case = std::tuple<TextView, std::string, std::string>;
    for (const auto& [digits, left, right] :
         {Case{u"001165412508", "321122212221111412311132", "222121221231321112131312"},
          Case{u"159128084568", "123131121222212231211123", "121311321231111412131411"},
          Case{u"274317831894", "131211321141122213123121", "141122211213311211323112"},
          Case{u"330524393287", "141132111321221223111411", "311214112122121313122221"},
          Case{u"415502478677", "222113211231321122122311", "131212131114131213121213"},
          Case{u"584103367986", "121323111222321114111141", "111413123112121311141132"},
          Case{u"606925341311", "321141112113221212311411", "113222211411222122211231"},
          Case{u"780407389040", "121311231132112313121141", "121331123211113232111114"},
          Case{u"814280507933", "222123112122312111231231", "321113123112141114113211"},
          Case{u"937539997216", "141121311321141121133112", "311213122122222111142122"}}) {
        DesenhaEan13(box, 1, digits, false);
        EXPECT_EQ(rowsOf(box.Picture()), symbolOf(left + "11111" + right, 10, 27)) << utf8(digits);
    }
    EXPECT_EQ(log, Log()); // no digits under the bars
}

TEST_F(Ean13Test, ScaleIsTheHeightAndDigitsStandUnderTheBars) {
    DesenhaEan13(box, 2, code, true);
    EXPECT_EQ(log, (Log{"letters 044556", "letters 677888"}));
    Rows expected = symbolOf("32111132231113211231411111111111413121312121312131213", 20, 36);
    for (std::size_t y = 30; y < 36; ++y) {
        expected[y].replace(23, 36, 36, '#').replace(68, 36, 36, '#');
    }
    EXPECT_EQ(rowsOf(box.Picture()), expected);
    EXPECT_EQ(failureOf([&] { DesenhaEan13(box, 3276, code, false); }), 0);
    EXPECT_EQ(failureOf([&] { DesenhaEan13(box, 3277, code, false); }), failure_number::overflow);
}

TEST_F(Ean13Test, Refusals) {
    const std::string not_twelve = "Should be 12 Digit Numbers";
    using Case = std::pair<TextView, std::string>;
    for (const auto& [text, description] :
         {Case{u"20445566778", not_twelve}, Case{u"2044556677888", not_twelve},
          Case{u"20445566778 ", "An Invalid Character Found in Bar Text"}}) {
        DesenhaEan13(box, 1, code, false);
        EXPECT_EQ(failureTextOf([&, refused = text] { DesenhaEan13(box, 1, refused, false); }),
                  "80040201 EAN-13: " + description);
        EXPECT_EQ(box.Picture(), nullptr);
        EXPECT_EQ(rowsOf(box.Image()), Rows(156, std::string(377, ' ')));
    }
}

} // namespace etiquetas::test
