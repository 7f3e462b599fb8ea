#include "labels/Cabecalho.h"
#include "labels/Oculta.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

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
