#include "labels/Frente100x40.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

struct WideLabel {
    Text description = u"TENIS CASUAL DE COURO COM CADARCO";
    TextView flag = u"L", size = u"34 ", price = u"129,90", barcode = u"2044556677888";
    std::int16_t quantity = 1;
};

class Frente100x40Test : public LabelTest {
  protected:
    Frente100x40Test() {
        takePhotograph();
        form.NomeFonte = u"Corpo";
        form.PackLinhaX = 1;
        form.PackLinhaY = 2;
    }

    void draw(const WideLabel& label) {
        Eti100_40_1(form, label.flag, label.description, u"527", u"3104527", label.barcode,
                    label.size, label.price, label.quantity);
    }
};

TEST_F(Frente100x40Test, WithAllThatItCanHave) {
    draw({.quantity = 2});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-100x40-completa"));
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Corpo 11");
    EXPECT_EQ(machine.printers.weight, "plain");
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(Frente100x40Test, WithoutPhotographSizeAndPrice) {
    form.tem_imagem = false;
    draw({.description = u"BOTA", .flag = u"B", .size = u" ", .price = u" 0,00"});
    EXPECT_TRUE(matchesGolden(machine.transcript, "frente-100x40-simples"));
}

TEST_F(Frente100x40Test, NoQuantityOrARefusedBarcode) {
    draw({.quantity = 0});
    EXPECT_EQ(machine.transcript, Log{"unit millimetres"});
    EXPECT_THROW(draw({.barcode = refused_barcode, .quantity = 2}), Failure);
    EXPECT_EQ(machine.transcript.back(), "unit pixels");
}

// At 11 points 31 characters are 48,7 mm wide, and 32 are 50,3.
TEST_F(Frente100x40Test, DescriptionIsBrokenAtTheLastBlank) {
    const Text a29(29, u'A'), a31(31, u'A'), a32(32, u'A');
    for (const Text& description : {u"A " + a29, a32, a32 + u" 7", u"A " + a29 + u" 7",
                                    u"A B " + a31 + u" C", u"A-B/" + a31}) {
        draw({.description = description});
    }
    EXPECT_TRUE(matchesGolden(machine.told("text 6,0 "), "frente-100x40-quebras"));
}

} // namespace etiquetas::test
