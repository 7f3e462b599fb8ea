#include "support/Golden.h"
#include "support/PrintWorkbench.h"

namespace etiquetas::test {

// Two items, of which the second has neither price nor barcode: its line is too short.
class ImpressaoAcessorioTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoAcessorioTest() {
        takeOrder(u"ACESSORIO",
                  {u"BRISA KO", accessoryLineOf({.colour = u" AZUL ", .description = u" BOLSA "}),
                   u"1;RUBRO;;BOLSA;S;B;204455667788;3104527001"});
        load(tipo::acessorio);
    }
};

TEST_F(ImpressaoAcessorioTest, Job) {
    form.coluna_etiqueta = 2; // set to 1 for the job
    form.marca_logo.clear();
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-acessorio"));
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_EQ(form.marca_logo, u"B");
}

// Of a line of 8 fields the colour is the barcode, which is refused without a word.
TEST_F(ImpressaoAcessorioTest, LabelOfTheNextItemEndsAtItsBarcode) {
    print(Answer::yes);
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    EXPECT_EQ(form.txtpreco.text, u"");
    EXPECT_EQ(form.lblbarra.caption, u"RUBRO");
    print();
    EXPECT_EQ(form.txtpreco.text, u"0,00");
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-acessorio-recusada"));
}

} // namespace etiquetas::test
