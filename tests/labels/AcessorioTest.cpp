#include "labels/Acessorio.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

struct AccessoryLabel {
    Text description = u"BOLSA TIRACOLO AZUL";
    TextView flag = u"L", price = u"129,90", promotion = u"P1", barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class AcessorioTest : public LabelTest {
  protected:
    void draw(const AccessoryLabel& label) {
        Imprime_Acessorio_40_20_2(form, label.flag, label.description, u"XYZ", u" 3104527",
                                  label.barcode, u"9", label.price, label.quantity, u" FAIXA ",
                                  u" S/X ", label.promotion);
    }

    void setMargins() {
        form.Margem_oculta1 = 6.8F;
        form.Margem_oculta11 = 46.5F;
        form.Margem_oculta2 = 2;
    }
};

TEST_F(AcessorioTest, WithAPrice) {
    setMargins();
    draw({.promotion = u" P1", .quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "acessorio-com-preco"));
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Medium 7");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
}

TEST_F(AcessorioTest, WithoutAPriceFromColumnTwoOn) {
    setMargins();
    form.coluna_etiqueta = 2;
    const Text description = u"BOLSA TIRACOLO DE COURO COM FECHO E ALCA REMOVIVEL AZUL MARINHO";
    draw({.description = description, .flag = u"B", .price = u"0,00 ", .quantity = 3});
    EXPECT_TRUE(matchesGolden(machine.transcript, "acessorio-sem-preco"));
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(AcessorioTest, ColumnsStayMovedEvenWithoutALabel) {
    setMargins();
    draw({.quantity = 0});
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log());
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_FLOAT_EQ(form.Margem_oculta1, -2.8F);
    EXPECT_FLOAT_EQ(form.Margem_oculta11, 43.5F);
}

TEST_F(AcessorioTest, RefusedBarcodeEndsTheDrawingBeforeItsBars) {
    EXPECT_THROW(draw({.barcode = refused_barcode, .quantity = 2}), Failure);
    EXPECT_EQ(machine.transcript.back(), "unit pixels");
    EXPECT_EQ(form.coluna_etiqueta, 2);
}

// A millimetre a character, so that the 53rd is the first beyond the limit.
TEST_F(AcessorioTest, DescriptionIsBrokenAtTheLastSeparator) {
    const Text a51(51, u'A');
    for (const Text& description : {a51, a51 + u"A", a51 + u"A ", a51 + u"AA-B", a51 + u"A-B",
                                    u"X.Y/" + a51, u"X- B" + a51, u" AB." + a51}) {
        setMargins();
        form.coluna_etiqueta = 1;
        draw({.description = description});
    }
    EXPECT_TRUE(matchesGolden(machine.told("text 9,0 "), "acessorio-quebras"));
}

} // namespace etiquetas::test
