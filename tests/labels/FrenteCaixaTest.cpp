#include "labels/FrenteCaixa.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct FrontLabel {
    Text description = u"TENIS\r\nCASUAL";
    TextView flag = u"L", size = u"34", price = u"129,90", promotion = u"P1";
    TextView barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class FrenteCaixaTest : public testing::Test, protected Workbench {
  protected:
    FrenteCaixaTest() {
        takeLogos();
        knowEanBars(u"204455667788");
        form.Mx4045_1 = 2;
        form.Mx4045_2 = 50;
        form.Mx4045 = 2;
    }

    void draw(FrontLabel label) {
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.forget();
        Imprime_40_45_2(form, label.flag, label.description, u" AZUL ", u"527", u"M001",
                        label.barcode, label.size, label.price, label.quantity, label.promotion,
                        u" S/X ", u" FAIXA");
        description = label.description;
    }

    Text description; // as the label leaves it
};

TEST_F(FrenteCaixaTest, WithAPrice) {
    draw({.quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-com-preco"));
    EXPECT_EQ(description, u"TENISCASUAL");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Semilight");
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Semilight 7");
}

TEST_F(FrenteCaixaTest, WithoutAPriceFromColumnTwoOn) {
    form.coluna_etiqueta = 2;
    draw({.description = u"TENIS CASUAL DE COURO COM CADARCO 67",
          .flag = u"B",
          .size = u"",
          .price = u" 0,00 ",
          .promotion = u"P12",
          .quantity = 3});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-sem-preco"));
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(FrenteCaixaTest, NoLabelForNoQuantity) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log{"unit millimetres"});
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(FrenteCaixaTest, RefusedBarcodeEndsTheDrawingBeforeItsBars) {
    EXPECT_EQ(failureTextOf([&] { draw({.barcode = u"20445566778", .quantity = 2}); }),
              "80040201 EAN-13: Should be 12 Digit Numbers");
    EXPECT_EQ(machine.transcript.back(), R"(text 32,0 29,0 Calibri 16 bold "P1")");
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

struct FrontText {
    std::string name;
    FrontLabel label;
    std::string looked_for; // a piece of the lines that are expected, and of no other
    Log lines;
};

class FrenteCaixaTextTest : public FrenteCaixaTest,
                            public testing::WithParamInterface<FrontText> {};

TEST_P(FrenteCaixaTextTest, StandsByItsLength) {
    draw(GetParam().label);
    EXPECT_EQ(machine.told(GetParam().looked_for), GetParam().lines);
}

// Widths for the price, right-aligned at 41,3 or 40,5: the cents have 2,16, "R$" 2,1, "1," 7,2.
INSTANTIATE_TEST_SUITE_P(
    , FrenteCaixaTextTest,
    testing::Values(
        FrontText{"SizeOfOne", {.size = u"8"}, "\"8\"", {R"(text 6,1 33,0 Calibri 32 bold "8")"}},
        FrontText{
            "SizeOfTwo", {.size = u"G "}, "\"G \"", {R"(text 3,6 33,0 Calibri 32 bold "G ")"}},
        FrontText{
            "SizeOfThree", {.size = u"100"}, "\"100\"", {R"(text 3,2 36,0 Calibri 22 bold "100")"}},
        FrontText{"SizeOfFour", {.size = u"36/7"}, "36/7", {}},
        FrontText{"DigitsUnderASizeOfFour",
                  {.size = u"36/7"},
                  "6677888",
                  {R"(text 29,2 41,5 Calibri 7 plain "6677888")"}},
        FrontText{"DigitsUnderABlankSize",
                  {.size = u"  "},
                  "6677888",
                  {R"(text 29,2 41,5 Franklin Gothic Medium 7 plain "6677888")"}},
        FrontText{"PromotionOfTwo",
                  {.promotion = u"P "},
                  "\"P\"",
                  {R"(text 32,0 29,0 Calibri 16 bold "P")"}},
        FrontText{"PromotionOfThree",
                  {.promotion = u" P "},
                  "\"P\"",
                  {R"(text 32,0 29,0 Calibri 14 bold "P")"}},
        FrontText{"CentsOfAPriceWithoutAComma",
                  {.price = u"1990"},
                  "\"90\"",
                  {R"(text 39,04 11,0 Calibri 9 bold "90")"}},
        FrontText{"NoWholePartWithoutAComma", {.price = u"1990"}, "Calibri 30", {}},
        FrontText{"CurrencyOfAPriceWithoutAComma",
                  {.price = u"1990"},
                  "R$",
                  {R"(text 35,89 15,4 Malgun Gothic Semilight 7 bold "R$")"}},
        FrontText{"WholePartUpToTheFirstComma",
                  {.price = u"1,2,34"},
                  "Calibri 30",
                  {R"(text 32,04 8,7 Calibri 30 bold "1,")"}}),
    [](const auto& row) { return row.param.name; });

struct FrontCut {
    std::string name;
    Text description;
    TextView line_1, line_2;
};

class FrenteCaixaCutTest : public FrenteCaixaTest, public testing::WithParamInterface<FrontCut> {};

// A millimetre a character, so that the 32nd reaches the limit. The colour follows at once.
TEST_P(FrenteCaixaCutTest, LinesOfTheDescription) {
    const auto line = [](const std::string& place, TextView text) {
        return Log{"text 4,3 " + place + " Franklin Gothic Medium 7 plain " + inQuotes(text)};
    };
    draw({.description = GetParam().description});
    EXPECT_EQ(machine.told("text 4,3 23,0 "), line("23,0", GetParam().line_1));
    EXPECT_EQ(machine.told("text 4,3 26,0 "), line("26,0", GetParam().line_2));
}

const Text a32(32, u'A');

INSTANTIATE_TEST_SUITE_P(, FrenteCaixaCutTest,
                         testing::Values(FrontCut{"AsWideAsTheLimit", a32, a32, u"AZUL"},
                                         FrontCut{"BlankBeyondTheLimit", a32 + u" ", a32, u"AZUL"},
                                         FrontCut{"WordBeyondTheLimit", a32 + u" 7", a32, u" 7"},
                                         FrontCut{"WithinAWord", a32 + a32, a32, a32}),
                         [](const auto& row) { return row.param.name; });

} // namespace etiquetas::test
