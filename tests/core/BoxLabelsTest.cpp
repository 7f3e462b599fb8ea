#include "labels/Acessorio.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

enum class Kind : std::uint8_t { front, accessory, wide };

struct BoxLabel {
    Text description = u"TENIS\r\nCASUAL";
    TextView flag = u"L", size = u"34", price = u"129,90", promotion = u"P1";
    TextView code = u"2044556677888";
    std::int16_t column = 1, quantity = 1;
};

class BoxLabelsTest : public testing::Test, protected Workbench {
  protected:
    Log drawn(Kind kind, BoxLabel label) {
        takeLogos();
        form.NomeFonte = u"Corpo";
        form.Mx4045_1 = form.Mx4045 = form.Margem_oculta2 = form.PackLinhaY = 2;
        form.Mx4045_2 = 50;
        form.Margem_oculta1 = 6.8F;
        form.Margem_oculta11 = 46.5F;
        form.PackLinhaX = 1;
        form.coluna_etiqueta = label.column;
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.log.clear();
        failure = failureTextOf([&] {
            if (kind == Kind::front) {
                Imprime_40_45_2(form, label.flag, label.description, u" AZUL ", u"527", u"M001",
                                label.code, label.size, label.price, label.quantity,
                                label.promotion, u" S/X ", u" FAIXA");
            } else if (kind == Kind::accessory) {
                Imprime_Acessorio_40_20_2(form, label.flag, label.description, u"XYZ", u" 3104527",
                                          label.code, u"9", label.price, label.quantity, u" FAIXA ",
                                          u" S/X ", label.promotion);
            } else {
                Eti100_40_1(form, label.flag, label.description, u"527", u"3104527", label.code,
                            label.size, label.price, label.quantity);
            }
        });
        description = label.description;
        return machine.drawn();
    }

    // The lines that hold a piece.
    static Log with(const std::string& piece, Log lines) {
        std::erase_if(lines, [&](const auto& line) { return line.find(piece) == line.npos; });
        return lines;
    }

    std::string failure;
    Text description;
    const Text a20 = Text(20, u'A'), a32 = Text(32, u'A');
};

TEST_F(BoxLabelsTest, FrontLayoutInBothColumns) {
    EXPECT_EQ(drawn(Kind::front, {}),
              listOf("mm; pixels; mm; C8 19 31.4 S/X; C16+ 32 29 P1; stamp 141 27 12.6 35 35 14; "
                     "stamp 3 4 4.5 2 38 10 crop 300; ~12+ 32 1.7 527; C30+ 21.686 8.7 129,; C9+ "
                     "38.629 11 90; M7+ 18.436 15.4 R$; ~6 11.786 16.4 À VISTA; ~7 37 20.7  FAIXA; "
                     "~7+ 4.3 21 M001; ~7 4.3 23 TENISCASUAL; ~7 4.3 26 AZUL; C32+ 3.6 33 34; C7 "
                     "17.8 41.5 204455; C7 29.2 41.5 6677888"));
    EXPECT_EQ(description + form.txtbarra.text, u"TENISCASUAL2044556677888");
    EXPECT_EQ(machine.logged({"measure"})[0], "measure Franklin Gothic Semilight 7");
    EXPECT_EQ(
        drawn(Kind::front, {a32 + u"67", u"B", u"", u" 0,00 ", u"P12", u"2044556677888", 3}),
        listOf(
            "mm; pixels; mm; C8 67 31.4 S/X; C14+ 80 29 P12; stamp 141 27 60.6 35 35 14; stamp 1 2 "
            "52.5 3.5 38 6 crop 355; ~30+ 70 -0.5 527; ~7 85 20.7  FAIXA; ~7+ 52.3 20 M001; ~7 "
            "52.3 23 " +
            utf8(a32) +
            "; ~7 52.3 26 67; ~7 52.3 29 AZUL; ~7 65.8 41.5 204455; ~7 77.2 41.5 6677888; page"));
}

TEST_F(BoxLabelsTest, FrontTextsByTheirLengths) {
    using Case = std::tuple<BoxLabel, std::string, Log>;
    for (const auto& [label, piece, lines] :
         {Case{{.size = u"8"}, "C32", {"C32+ 6.1 33 8"}},
          Case{{.size = u"G "}, "C32", {"C32+ 3.6 33 G "}},
          Case{{.size = u"100"}, "C22", {"C22+ 3.2 36 100"}}, Case{{.size = u"36/7"}, "6/7", {}},
          Case{{.size = u"36/7"}, "6677", {"C7 29.2 41.5 6677888"}},
          Case{{.size = u"  "}, "6677", {"~7 29.2 41.5 6677888"}},
          Case{{.promotion = u"P "}, " P", {"C16+ 32 29 P"}},
          Case{{.promotion = u" P "}, " P", {"C14+ 32 29 P"}},
          Case{{.price = u"1990"}, " 90", {"C9+ 38.629 11 90"}},
          Case{{.price = u"1,2,34"}, "C30", {"C30+ 30.257 8.7 1,"}},
          Case{{.price = u"1990"}, "R$", {"M7+ 35.579 15.4 R$"}}}) {
        EXPECT_EQ(with(piece, drawn(Kind::front, label)), lines) << piece;
    }
}

TEST_F(BoxLabelsTest, AccessoryLayoutInBothColumns) {
    EXPECT_EQ(
        drawn(Kind::accessory, {.description = a32 + a20 + u" ", .promotion = u" P1"}),
        listOf("stamp 3 4 11 2.5 28 6 crop 300; C24+ 30.957 0.9 129,; C12+ 43.571 2.3 90; M7+ "
               "28.907 5.9 R$; ~6 22.257 6.55 À VISTA; ~5+ 9 9.2 " +
               utf8(a32 + a20) +
               "; pixels; mm; stamp 141 "
               "27 6.6 14 35 8; ~5+ 9 11.3  3104527; ~5+ 20.7 11.4 FAIXA; ~5+ 25.2 11.3 S/X; ~5+ "
               "11.5 17.6 204455; ~5+ 23.2 17.8 6677888; ~14+ 39.5 11.1  P1; ~8+ 37.4 16.5 527"));
    EXPECT_EQ(machine.logged({"measure"})[0], "measure Franklin Gothic Medium 7");
    EXPECT_FLOAT_EQ(form.Margem_oculta1, 2); // stays moved
    EXPECT_FLOAT_EQ(form.Margem_oculta11, 45);
    EXPECT_EQ(
        drawn(Kind::accessory, {a32 + u" " + a32, u"B", u"", u"0,00 ", u"P1", u"2044556677888", 3}),
        listOf("stamp 1 2 52.7 1.6 22 5 crop 300; ~5+ 52 9.2 " + utf8(a32) + "; ~5+ 52 11 " +
               utf8(a32) +
               "; pixels; mm; stamp 141 27 49.6 14.9 35 8; ~5+ 52 12.8  3104527; ~5+ 63.7 12.8 "
               "FAIXA; ~5+ 68.2 12.8 S/X; ~5+ 54.5 18.1 204455; ~5+ 66.2 18.1 6677888; ~14+ 82.5 "
               "10.1 P1; ~12+ 79 15 527; page"));
}

TEST_F(BoxLabelsTest, WideLayout) {
    form.pctimage.picture = std::make_shared<const Raster>(Raster{5, 6, {}});
    form.tem_imagem = true;
    EXPECT_EQ(
        drawn(Kind::wide, {.description = u"TENIS CASUAL DE COURO COM CADARCO", .size = u"34 "}),
        listOf("mm; stamp 3 4 59 5.2 20 10; stamp 5 6 7 20 20 20; Corpo 11+ 6 7 TENIS CASUAL DE "
               "COURO COM; Corpo 11+ 6 12 CADARCO; Corpo 26 84 5.5 527; Corpo 26+ 35 30 34 ; rule "
               "33 27 46 27.5; rule 33 38 46 38.5; rule 33 27 33.5 38.5; rule 46 27 46.5 38.5; "
               "pixels; mm; stamp 141 27 48 19 60 20; Corpo 14+ 71 18.5 129,90; Corpo 10 64 24.2 "
               "COD: 3104527; Corpo 9.5 52 37 2; Corpo 9.5 61 37 044556; Corpo 9.5 81 37 677888; "
               "rule 82 4.7 82.5 14; rule 82 14 99 14.5; page"));
    EXPECT_EQ(machine.printers.weight + machine.logged({"measure"})[0], "plainmeasure Corpo 11");
    form.tem_imagem = false;
    Log lines =
        drawn(Kind::wide, {.description = u"BOTA", .flag = u"B", .size = u" ", .price = u" 0,00"});
    lines.resize(8);
    EXPECT_EQ(lines, listOf("mm; stamp 1 2 56 5.2 24 10; Corpo 11+ 6 7 BOTA; Corpo 26 84 5.5 527; "
                            "pixels; mm; stamp 141 27 48 19 60 20; Corpo 10 64 24.2 COD: 3104527"));
}

TEST_F(BoxLabelsTest, DescriptionBreaks) {
    // A millimetre a character; at 11 points 31 of them are 48.7 mm and 32 are 50.3.
    const Text a31(31, u'A'), a51(51, u'A');
    using Case = std::tuple<Kind, Text, Text, Text>;
    for (const auto& [kind, text, line1, line2] :
         {Case{Kind::front, a32, a32, u"AZUL"}, Case{Kind::front, a32 + u" ", a32, u"AZUL"},
          Case{Kind::front, a32 + u" 7", a32, u" 7"}, Case{Kind::front, a32 + a32, a32, a32},
          Case{Kind::accessory, a51, a51, u""},
          Case{Kind::accessory, a51 + u"A", a51 + u"A", u""}, // just as wide as the limit
          Case{Kind::accessory, a51 + u"AA-B", u"", u""},
          Case{Kind::accessory, a51 + u"A-B", a51 + u"A-", u"B"},
          Case{Kind::accessory, u"X.Y/" + a51, u"X.Y/", a51},
          Case{Kind::accessory, u"X- B" + a51, u"X-", u"B" + a51},
          Case{Kind::accessory, u" AB." + a51, u"AB.", u"." + a51},
          Case{Kind::wide, u"A " + a31.substr(2), u"A " + a31.substr(2), u""},
          Case{Kind::wide, a32, a32, u""}, Case{Kind::wide, a32 + u" 7", a32, u"7"},
          Case{Kind::wide, u"A " + a31.substr(2) + u" 7", u"A " + a31.substr(2), u"7"},
          Case{Kind::wide, u"A B " + a31 + u" C", u"A B", a31 + u" C"},
          Case{Kind::wide, u"A-B/" + a31, u"A-B/" + a31.substr(3), u"AAA"}}) {
        const bool front = kind == Kind::front, wide = kind == Kind::wide;
        const std::string place1 = front ? "~7 4.3 23 " : wide ? "Corpo 11+ 6 7 " : "~5+ 9 9.2 ";
        const std::string place2 = front ? "~7 4.3 26 " : wide ? "Corpo 11+ 6 12 " : "~5+ 9 11 ";
        const Log lines = drawn(kind, {.description = text});
        EXPECT_EQ(with(place1, lines), line1.empty() ? Log{} : Log{place1 + utf8(line1)})
            << utf8(text);
        EXPECT_EQ(with(place2, lines), line2.empty() ? Log{} : Log{place2 + utf8(line2)})
            << utf8(text);
    }
}

TEST_F(BoxLabelsTest, QuantitiesAndRefusedBarcodes) {
    using Case = std::tuple<Kind, Log, std::size_t, std::string, std::string, int>;
    for (const auto& [kind, none, pages, last, unit, column] :
         {Case{Kind::front, {"mm"}, 1, "C16+ 32 29 P1", "mm", 2},
          Case{Kind::accessory, {}, 1, "pixels", "pixels", 2},
          Case{Kind::wide, {"mm"}, 3, "pixels", "pixels", 1}}) {
        EXPECT_EQ(drawn(kind, {.quantity = 0}), none);
        EXPECT_EQ(form.coluna_etiqueta, 1);
        EXPECT_EQ(with("page", drawn(kind, {.quantity = 3})), Log(pages, "page"));
        EXPECT_EQ(form.coluna_etiqueta, column);
        EXPECT_EQ(drawn(kind, {.code = u"20445566778", .quantity = 2}).back(), last);
        EXPECT_EQ(machine.printers.unit + failure,
                  unit + "80040201 EAN-13: Should be 12 Digit Numbers");
        EXPECT_EQ(form.coluna_etiqueta, column);
    }
}

} // namespace etiquetas::test
