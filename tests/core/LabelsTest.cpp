#include "barcodes/EAN13and8.h"
#include "labels/Cabecalho.h"
#include "labels/Oculta.h"
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

class OcultaTest : public testing::Test, protected Workbench {
  protected:
    OcultaTest() {
        form.Margem_oculta1 = 3;
        form.Margem_oculta11 = 45;
        form.Margem_oculta2 = 3;
        machine.printers.ScaleMode(ScaleMode::millimetres);
    }

    Log drawn(std::int16_t quantity, TextView size = u"34", TextView flag = u"L",
              TextView description = u"TENIS CASUAL") {
        machine.log.clear();
        Imprime_Oculta_40_20_2(form, flag, description, u"527", u"3104527001", u"2044556677888",
                               size, quantity, u" AZUL ");
        return machine.drawn();
    }
};

TEST_F(OcultaTest, LayoutInBothColumns) {
    EXPECT_EQ(drawn(2),
              listOf("C20+ 33.3 2 527; pixels; mm; stamp 141 27 14.6 13 35 8; ~6 23.6 10.5 "
                     "3104527001; ~6 19.5 16.8 204455; ~6 30.7 16.8 6677888; C26+ 6.3 10 34; "
                     "~6 5.8 3.2 TENIS CASUAL; ~6 5.8 5.4 AZUL; "
                     "C20+ 78 2 527; pixels; mm; stamp 141 27 59.3 13 35 8; ~6 68.3 10.5 "
                     "3104527001; ~6 64.2 16.8 204455; ~6 75.4 16.8 6677888; C26+ 51 10 34; "
                     "~6 50.5 3.2 TENIS CASUAL; ~6 50.5 5.4 AZUL; page"));
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(machine.logged({"measure"})[0], "measure Franklin Gothic Medium 7");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
}

TEST_F(OcultaTest, SizeByItsLengthAndTheFlagWithoutOne) {
    using Case = std::tuple<TextView, TextView, std::size_t, std::string>;
    const std::string description = "~6 5.8 3.2 TENIS CASUAL";
    for (const auto& [size, flag, count, behind_codes] :
         {Case{u"8", u"L", 10, "C20+ 9.3 11.5 8"}, Case{u"G ", u"B", 10, "C26+ 6.3 10 G "},
          Case{u"100", u"B", 10, "C20+ 5.5 10.8 100"}, Case{u"36/7", u"B", 9, description},
          Case{u" ", u"L", 9, description}, Case{u"", u"L", 9, description}, Case{u"", u"B", 7, ""},
          Case{u"  ", u"B", 7, ""}}) {
        form.coluna_etiqueta = 1;
        const Log lines = drawn(1, size, flag);
        EXPECT_EQ(lines.size(), count);
        EXPECT_EQ(lines.size() > 7 ? lines[7] : "", behind_codes);
    }
}

TEST_F(OcultaTest, DescriptionBreaks) {
    // One millimetre a character, so that the 24th is the first beyond the limit; "|" is the break.
    for (const TextView marked :
         {u"ABCDEFGHIJKLMNOPQRSTUV", u"ABCDEFGHIJKLMNOPQRSTUVW", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
          u"ABCDEFGHIJKLMNOPQRSTUVW |YZ", u"ABC EFGHIJKLMNOPQRSTUVW-|YZ",
          u"ABC/EFGHIJKLMNOPQRSTUVWX/|Z", u"ABC.EFGHIJKLMNOPQRSTUVW.|X-",
          u"ABCDEFGHIJKLMNOPQRSTUV-XYZ", u"ABCDEFGHIJKLMNOPQRSTUVWXY.",
          u"ABCDEFGHIJKLMNOPQRSTUVW|7-Z", u"ABCDEFGHIJKLMNOPQRSTUV |8X",
          u"ABCDEFGHIJKLMNOPQRSTUV78Y|9-Z"}) {
        form.coluna_etiqueta = 1;
        const auto parts = split(marked, u'|');
        Log lines{"~6 5.8 3.2 " + utf8(trimmed(parts[0]))};
        if (parts.size() > 1) {
            lines.push_back("~6 5.8 5.4 " + utf8(parts[1]));
        }
        lines.push_back((parts.size() > 1 ? "~6 5.8 7.7 " : "~6 5.8 5.4 ") + std::string("AZUL"));
        const Log all = drawn(1, u"", u"L", replaceAll(marked, u"|", u""));
        EXPECT_EQ(Log(all.begin() + 7, all.end()), lines);
    }
    machine.printers.ScaleMode(ScaleMode::pixels); // as a refused barcode leaves the surface
    form.coluna_etiqueta = 1;
    const Log all = drawn(1, u"", u"L", u"7 AB");
    EXPECT_EQ(Log(all.end() - 2, all.end()), listOf("~6 5.8 5.4 7 AB; ~6 5.8 7.7 AZUL"));
}

TEST_F(OcultaTest, HeaderStripOfEachType) {
    form.Mx4045_1 = 2;
    form.Mx4045_2 = 60;
    form.txtarquivo.text = u"77";
    for (const TextView type : {u"oculta", u"fc", u"OUTRA"}) {
        Imprime_CabecAlho(form, type);
    }
    machine.log.erase(machine.log.begin()); // the unit
    EXPECT_EQ(machine.drawn(), listOf("~10+ 6 6 Pedido: 77; ~10+ 51 6 Pedido: 77; page; ~12+ 5 6 "
                                      "Pedido: ; ~12+ 8 6 77; ~12+ 63 6 Pedido: ; ~12+ 66 6 77; "
                                      "page"));
}

} // namespace etiquetas::test
