#include "labels/Corrugado.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class CorrugadoTest : public testing::Test, protected Workbench {
  protected:
    Log drawn(TextView code, TextView flag = u"B", const Text& description = u"TENIS CASUAL",
              std::int16_t first = 1, std::int16_t last = 1) {
        form.PackX = 4.7F;
        form.PackY = 10;
        machine.log.clear();
        failure = failureTextOf([&] {
            EtiPack(form, flag, u"CD 12", u"77", u"31045", u"VARESKO", description, u"AZUL", code,
                    u"no", u"no", u"24", first, last, u"S/X");
        });
        return machine.drawn();
    }

    std::string failure;
};

TEST_F(CorrugadoTest, Layout) {
    takeLogos();
    form.lblmax.caption = u"3";
    form.txtgrade1.text = u"34 35 36";
    form.txtgrade2.text = u"2 4 2";
    EXPECT_EQ(
        drawn(u"2044556677", u"L"),
        listOf(
            "mm; stamp 3 4 5 13.5 70 17 crop 300; rule 4 12 101 12.4; rule 4 30 101 30.4; rule "
            "37.6 12 37.9 30.4; ~14 38.7 15 CD - DESTINO; ~18+ 38.7 21.7 CD 12; ~16 18.7 31 "
            "PEDIDO; ~16 59.7 31 Cód. Master; ~20+ 9.2 36.7 77; ~20+ 59.7 36.7 31045; rule 4 44 "
            "101 44.3; rule 55 30 55.3 44; ~16 30.7 44.4 FORNECEDOR; ~20+ 19.7 49.7 VARESKO; rule "
            "4 56.7 101 57; mm; stamp 175 30 20.7 84 60 40; ~16 6.7 60 NOTA FISCAL:; rule 4 71 101 "
            "71.3; ~14 40.7 72.5 Descrição; ~14+ 6.2 78.4 TENIS CASUAL; rule 4 84 101 84.3; ~14 "
            "6.7 84.5 COR; ~16+ 6.7 89.7 AZUL; ~14 69.2 84.5 CÓDIGO; ~14+ 69.2 91 2044556677; rule "
            "4 117.5 101 117.8; ~16+ 81.7 120 TOTAL; ~25+ 90.557 127 24; ~24+ 25.986 118 34 35 36; "
            "~24+ 31.129 127 2 4 2; rule 4 126.5 76 126.8; rule 76 117.5 76.3 136.8; rule 4 136.5 "
            "101 136.8; rule 53 136.5 53.3 147.3; ~18 6.7 140 Volume:; ~16+ 34.7 140 1/3; ~18 54.7 "
            "140 Semana:; ~18+ 79.7 140 S/X; rule 4 96 101 96.3; rule 66 84 66.3 96.3; rule 4 12 "
            "4.2 147; rule 101 12 101.2 147; rule 4 147 101.2 147.3; page"));
    EXPECT_EQ(form.NomeFonte + form.txtbarra.text, u"Franklin Gothic Medium2044556677");
    EXPECT_EQ(drawn(u"1")[1], "stamp 1 2 5 13.5 70 17 crop 300");
}

TEST_F(CorrugadoTest, BarsHoldTwelveCharactersWhileTheEanIsHidden) {
    // Without a logo, and without a size run.
    using Case = std::tuple<TextView, bool, std::string>;
    for (const auto& [code, ean_visible, bars] :
         {Case{u"20445566778", false, "188"}, Case{u"204455667788_", false, "201"},
          Case{u"2044556677888", true, "213"}}) {
        form.txtean.visible = ean_visible;
        const Log lines = drawn(code);
        EXPECT_EQ(lines.at(16), "stamp " + bars + " 30 20.7 84 60 40");
        EXPECT_EQ(lines.at(25), "~11+ 69.2 91 " + utf8(code));
    }
    EXPECT_EQ(drawn(u"20_").back() + failure,
              "rule 4 56.7 101 5780040201 Bar 39: An Invalid Character Found in Bar Text");
}

TEST_F(CorrugadoTest, WideTextsShrinkInStepsFromWhatTheSurfaceHolds) {
    // 48 characters are 91.9 mm at 13.4 points, 18 are 59.4 at 23.1. Where the surface holds
    // quarters, 48 are 90.9 at 13.25; 20 are 60 at 21, where the own count is at 20.4.
    using Case = std::tuple<float, std::size_t, std::size_t, Log>;
    for (const auto& [step, length, sizes, starts] :
         {Case{0, 46, 17, {"~14+ 6.2 78.4 ", "~24+ 10.557 118 ", "~24+ 5.4143 127 "}},
          Case{0, 48, 18, {"~13.4+ 6.2 78.4 ", "~23.1+ 10 118 ", "~23.1+ 6.7 127 "}},
          Case{0.25F, 48, 20, {"~13.25+ 6.2 78.4 ", "~20.5+ 10.414 118 ", "~20.5+ 10.414 127 "}}}) {
        machine.printers.size_step = step;
        form.txtgrade1.text = Text(sizes, u'6');
        form.txtgrade2.text = Text(20, u'4');
        const Log lines = drawn(u"1", u"L", Text(length, u'A'));
        EXPECT_EQ((Log{lines.at(20), lines.at(29), lines.at(30)}),
                  (Log{starts[0] + std::string(length, 'A'), starts[1] + std::string(sizes, '6'),
                       starts[2] + std::string(20, '4')}));
    }
    // At a quarter of a point there is no smaller size.
    EXPECT_TRUE(drawn(u"1", u"L", Text(9999, u'A')).at(20).starts_with("~0.25+ 6.2 78.4 AA"));
}

TEST_F(CorrugadoTest, VolumeNumbers) {
    const std::string wide = "~16+ 34.7 140 ", narrow = "~12+ 29.9 141.7 ";
    using Case = std::tuple<TextView, std::int16_t, std::int16_t, std::string>;
    for (const auto& [all, first, last, volume] :
         {Case{u"3", 2, 3, wide + "3/3"}, Case{u"12", 7, 7, wide + "07/12"},
          Case{u"120", 7, 7, narrow + "007/120"}, Case{u"1234", 7, 7, narrow + "007/1234"},
          Case{u"9", 1000, 1000, narrow + "1000/9"}, Case{u"", 6, 7, wide + "7/7"},
          Case{u"12345", 5, 7, wide + "7/7"}}) {
        form.lblmax.caption = all;
        const Log lines = drawn(u"1", u"L", u"TENIS", first, last);
        EXPECT_EQ(lines.at(lines.size() - 9), volume);
        EXPECT_EQ(lines.back(), "page");
        EXPECT_EQ(std::ssize(machine.logged({"page"})), last - first + 1);
    }
    EXPECT_EQ(drawn(u"1", u"L", u"TENIS", 3, 2), Log{"mm"});
}

} // namespace etiquetas::test
