#include "labels/Oculta.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

struct HiddenLabel {
    TextView size = u"34", flag = u"L", description = u"TENIS CASUAL";
    std::int16_t quantity = 1;
};

class OcultaTest : public testing::Test, protected Workbench {
  protected:
    OcultaTest() {
        form.Margem_oculta1 = 3;
        form.Margem_oculta11 = 45;
        form.Margem_oculta2 = 3;
        knowEanBars(u"204455667788");
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.forget();
    }

    void draw(const HiddenLabel& label) {
        Imprime_Oculta_40_20_2(form, label.flag, label.description, u"527", u"3104527001",
                               u"2044556677888", label.size, label.quantity, u" AZUL ");
    }
};

TEST_F(OcultaTest, BothColumnsOfAStrip) {
    draw({.quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "oculta"));
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Medium 7");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(OcultaTest, OddLabelLeavesItsPageOpen) {
    draw({.description = u"TENIS CASUAL DE COURO LISO-CADARCO", .quantity = 3});
    EXPECT_TRUE(matchesGolden(machine.transcript, "oculta-descricao-longa"));
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

TEST_F(OcultaTest, SizesOfEachLengthForEitherBanner) {
    form.coluna_etiqueta = 2;
    draw({.size = u"8", .flag = u"L"});
    draw({.size = u"G ", .flag = u"B"});
    draw({.size = u"100", .flag = u"B"});
    draw({.size = u"36/7", .flag = u"B"});
    draw({.size = u" ", .flag = u"L"});
    draw({.size = u"", .flag = u"L"});
    draw({.size = u"", .flag = u"B"});
    draw({.size = u"  ", .flag = u"B"});
    EXPECT_TRUE(matchesGolden(machine.transcript, "oculta-tamanhos"));
}

TEST_F(OcultaTest, NoLabelForNoQuantity) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log());
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

struct HiddenBreak {
    std::string name;
    TextView description, line_1, line_2;
};

class OcultaBreakTest : public OcultaTest, public testing::WithParamInterface<HiddenBreak> {};

// A millimetre a character, so that the 24th is the first beyond the limit. The colour follows the
// description.
TEST_P(OcultaBreakTest, LinesOfTheDescription) {
    const auto line = [](const std::string& place, TextView text) {
        return Log{"text 5,8 " + place + " Franklin Gothic Medium 6 plain " + inQuotes(text)};
    };
    draw({.description = GetParam().description});
    EXPECT_EQ(machine.told("text 5,8 3,2 "), line("3,2", GetParam().line_1));
    if (GetParam().line_2.empty()) {
        EXPECT_EQ(machine.told("text 5,8 5,4 "), line("5,4", u"AZUL"));
        EXPECT_EQ(machine.told("text 5,8 7,7 "), Log());
    } else {
        EXPECT_EQ(machine.told("text 5,8 5,4 "), line("5,4", GetParam().line_2));
        EXPECT_EQ(machine.told("text 5,8 7,7 "), line("7,7", u"AZUL"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    , OcultaBreakTest,
    testing::Values(
        HiddenBreak{"Narrower", u"ABCDEFGHIJKLMNOPQRSTUV", u"ABCDEFGHIJKLMNOPQRSTUV", u""},
        HiddenBreak{"AsWideAsTheLimit", u"ABCDEFGHIJKLMNOPQRSTUVW", u"ABCDEFGHIJKLMNOPQRSTUVW",
                    u""},
        HiddenBreak{"OneWord", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", u""},
        HiddenBreak{"Blank", u"ABCDEFGHIJKLMNOPQRSTUVW YZ", u"ABCDEFGHIJKLMNOPQRSTUVW", u"YZ"},
        HiddenBreak{"NotAtAnEarlierBlank", u"ABC EFGHIJKLMNOPQRSTUVW-YZ",
                    u"ABC EFGHIJKLMNOPQRSTUVW-", u"YZ"},
        HiddenBreak{"Slash", u"ABC/EFGHIJKLMNOPQRSTUVWX/Z", u"ABC/EFGHIJKLMNOPQRSTUVWX/", u"Z"},
        HiddenBreak{"Stop", u"ABC.EFGHIJKLMNOPQRSTUVW.X-", u"ABC.EFGHIJKLMNOPQRSTUVW.", u"X-"},
        HiddenBreak{"SeparatorWithinTheLimit", u"ABCDEFGHIJKLMNOPQRSTUV-XYZ",
                    u"ABCDEFGHIJKLMNOPQRSTUV-XYZ", u""},
        HiddenBreak{"SeparatorAtTheEnd", u"ABCDEFGHIJKLMNOPQRSTUVWXY.",
                    u"ABCDEFGHIJKLMNOPQRSTUVWXY.", u""},
        HiddenBreak{"BeforeADigit", u"ABCDEFGHIJKLMNOPQRSTUVW7-Z", u"ABCDEFGHIJKLMNOPQRSTUVW",
                    u"7-Z"},
        HiddenBreak{"BeforeADigitAfterABlank", u"ABCDEFGHIJKLMNOPQRSTUV 8X",
                    u"ABCDEFGHIJKLMNOPQRSTUV", u"8X"},
        HiddenBreak{"NotBetweenDigits", u"ABCDEFGHIJKLMNOPQRSTUV78Y9-Z",
                    u"ABCDEFGHIJKLMNOPQRSTUV78Y", u"9-Z"}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace etiquetas::test
