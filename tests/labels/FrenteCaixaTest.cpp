#include "labels/FrenteCaixa.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

struct FrontLabel {
    Text description = u"TENIS\r\nCASUAL";
    TextView flag = u"L", size = u"34", price = u"129,90", promotion = u"P1";
    TextView barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class FrenteCaixaTest : public LabelTest {
  protected:
    FrenteCaixaTest() {
        form.Mx4045_1 = 2;
        form.Mx4045_2 = 50;
        form.Mx4045 = 2;
    }

    void draw(FrontLabel label) {
        Imprime_40_45_2(form, label.flag, label.description, u" AZUL ", u"527", u"M001",
                        label.barcode, label.size, label.price, label.quantity, label.promotion,
                        u" S/X ", u" FAIXA");
        description = label.description;
    }

    Text description; // as the label leaves it
};

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

TEST_F(FrenteCaixaTest, NoQuantityOrARefusedBarcode) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log{"unit millimetres"});
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_THROW(draw({.barcode = refused_barcode, .quantity = 2}), Failure);
    EXPECT_EQ(machine.transcript.back(), R"(text 32,0 29,0 Calibri 16 bold "P1")");
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

TEST_F(FrenteCaixaTest, WithAPriceAndTextsOfEachLength) {
    draw({.size = u"8", .promotion = u"P "});
    draw({.size = u"G ", .promotion = u" P "});
    draw({.size = u"100", .price = u"1990"});
    draw({.size = u"36/7", .price = u"1,2,34"});
    draw({.size = u"  "});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-textos"));
    EXPECT_EQ(description, u"TENISCASUAL");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Semilight");
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Semilight 7");
}

// A millimetre a character, so that the 32nd reaches the limit.
TEST_F(FrenteCaixaTest, DescriptionIsCutAtTheLimit) {
    const Text a32(32, u'A');
    for (const Text& whole : {a32, a32 + u" ", a32 + u" 7", a32 + a32}) {
        form.coluna_etiqueta = 1;
        draw({.description = whole});
    }
    EXPECT_TRUE(matchesGolden(machine.told("text 4,3 "), "frente-cortes"));
}

} // namespace etiquetas::test
