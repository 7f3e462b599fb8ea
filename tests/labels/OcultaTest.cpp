#include "labels/Oculta.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

struct HiddenLabel {
    TextView size = u"34", flag = u"L", description = u"TENIS CASUAL";
    std::int16_t quantity = 1;
};

class OcultaTest : public LabelTest {
  protected:
    OcultaTest() {
        form.Margem_oculta1 = 3;
        form.Margem_oculta11 = 45;
        form.Margem_oculta2 = 3;
    }

    void draw(const HiddenLabel& label) {
        Imprime_Oculta_40_20_2(form, label.flag, label.description, u"527", u"3104527001",
                               u"2044556677888", label.size, label.quantity, u" AZUL ");
    }
};

TEST_F(OcultaTest, OddLabelLeavesItsPageOpen) {
    draw({.quantity = 0}); // draws nothing
    draw({.description = u"TENIS CASUAL DE COURO LISO-CADARCO", .quantity = 3});
    EXPECT_TRUE(matchesGolden(machine.transcript, "oculta-descricao-longa"));
    EXPECT_EQ(form.coluna_etiqueta, 2);
    EXPECT_EQ(machine.logged({"measure"}).front(), "measure Franklin Gothic Medium 7");
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
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

// A millimetre a character, so that the 24th is the first beyond the limit.
TEST_F(OcultaTest, DescriptionIsBrokenBeyondTheLimit) {
    for (const TextView description :
         {u"ABCDEFGHIJKLMNOPQRSTUV", u"ABCDEFGHIJKLMNOPQRSTUVW", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ",
          u"ABCDEFGHIJKLMNOPQRSTUVW YZ", u"ABC EFGHIJKLMNOPQRSTUVW-YZ",
          u"ABC/EFGHIJKLMNOPQRSTUVWX/Z", u"ABC.EFGHIJKLMNOPQRSTUVW.X-",
          u"ABCDEFGHIJKLMNOPQRSTUV-XYZ", u"ABCDEFGHIJKLMNOPQRSTUVWXY.",
          u"ABCDEFGHIJKLMNOPQRSTUVW7-Z", u"ABCDEFGHIJKLMNOPQRSTUV 8X",
          u"ABCDEFGHIJKLMNOPQRSTUV78Y9-Z"}) {
        form.coluna_etiqueta = 1;
        draw({.description = description});
    }
    EXPECT_TRUE(matchesGolden(machine.told("text 5,8 "), "oculta-quebras"));
}

} // namespace etiquetas::test
