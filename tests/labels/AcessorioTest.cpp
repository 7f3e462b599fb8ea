#include "labels/Acessorio.h"

#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

struct AccessoryLabel {
    Text description = u"BOLSA TIRACOLO AZUL";
    TextView flag = u"L", price = u"129,90", promotion = u"P1", barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class AcessorioTest : public testing::Test, protected Workbench {
  protected:
    AcessorioTest() {
        takeLogos();
        knowEanBars(u"204455667788");
        form.Margem_oculta1 = 6.8F;
        form.Margem_oculta11 = 46.5F;
        form.Margem_oculta2 = 2;
        machine.printers.ScaleMode(ScaleMode::millimetres);
        machine.forget();
    }

    void draw(const AccessoryLabel& label) {
        Imprime_Acessorio_40_20_2(form, label.flag, label.description, u"XYZ", u" 3104527",
                                  label.barcode, u"9", label.price, label.quantity, u" FAIXA ",
                                  u" S/X ", label.promotion);
    }
};

TEST_F(AcessorioTest, WithAPrice) {
    draw({.promotion = u" P1", .quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "acessorio-com-preco"));
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Medium 7");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
}

TEST_F(AcessorioTest, WithoutAPriceFromColumnTwoOn) {
    form.coluna_etiqueta = 2;
    draw({.description = u"BOLSA TIRACOLO DE COURO COM FECHO E ALCA REMOVIVEL AZUL MARINHO",
          .flag = u"B",
          .price = u"0,00 ",
          .quantity = 3});
    EXPECT_TRUE(matchesGolden(machine.transcript, "acessorio-sem-preco"));
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(AcessorioTest, ColumnsStayMoved) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log());
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_FLOAT_EQ(form.Margem_oculta1, 2);
    EXPECT_FLOAT_EQ(form.Margem_oculta11, 45);
    draw({});
    EXPECT_FLOAT_EQ(form.Margem_oculta1, -2.8F);
    EXPECT_FLOAT_EQ(form.Margem_oculta11, 43.5F);
}

TEST_F(AcessorioTest, RefusedBarcodeEndsTheDrawingBeforeItsBars) {
    EXPECT_EQ(failureTextOf([&] { draw({.barcode = u"20445566778", .quantity = 2}); }),
              "80040201 EAN-13: Should be 12 Digit Numbers");
    EXPECT_EQ(machine.transcript.back(), "unit pixels");
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

struct AccessoryBreak {
    std::string name;
    Text description, line_1, line_2;
};

class AcessorioBreakTest : public AcessorioTest,
                           public testing::WithParamInterface<AccessoryBreak> {};

// A millimetre a character, so that the 53rd is the first beyond the limit. The item code stands
// higher under one line.
TEST_P(AcessorioBreakTest, LinesOfTheDescription) {
    const auto line = [](const std::string& place, TextView text) {
        const std::string all = "text 9,0 " + place + " Franklin Gothic Medium 5 bold ";
        return text.empty() ? Log{} : Log{all + inQuotes(text)};
    };
    draw({.description = GetParam().description});
    EXPECT_EQ(machine.told("text 9,0 9,2 "), line("9,2", GetParam().line_1));
    EXPECT_EQ(machine.told("text 9,0 11,0 "), line("11,0", GetParam().line_2));
    const std::string place = GetParam().line_2.empty() ? "11,3" : "12,8";
    EXPECT_EQ(machine.told("\" 3104527\""), line(place, u" 3104527"));
}

const Text a51(51, u'A');

INSTANTIATE_TEST_SUITE_P(
    , AcessorioBreakTest,
    testing::Values(AccessoryBreak{"Narrower", a51, a51, u""},
                    AccessoryBreak{"AsWideAsTheLimit", a51 + u"A", a51 + u"A", u""},
                    AccessoryBreak{"BlankAtTheEnd", a51 + u"A ", a51 + u"A", u""},
                    AccessoryBreak{"NoSeparatorUpToTheOverflow", a51 + u"AA-B", u"", u""},
                    AccessoryBreak{"HyphenStays", a51 + u"A-B", a51 + u"A-", u"B"},
                    AccessoryBreak{"LastSeparator", u"X.Y/" + a51, u"X.Y/", a51},
                    AccessoryBreak{"BlankIsDropped", u"X- B" + a51, u"X-", u"B" + a51},
                    AccessoryBreak{"BlankInFrontMovesTheCut", u" AB." + a51, u"AB.", u"." + a51}),
    [](const auto& row) { return row.param.name; });

} // namespace

} // namespace etiquetas::test
