#include "support/Golden.h"
#include "support/PrintWorkbench.h"

namespace etiquetas::test {

// An item of three sizes, of which the second has no barcode, and a second item.
class ImpressaoFrenteTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoFrenteTest() {
        const Text described = u" TENIS CASUAL ";
        takeOrder(u"FRENTE", {u"LUMIRA", lineOf({.quantity = u"1", .description = described}),
                              lineOf({.size = u"35", .barcode = u" ", .description = described}),
                              lineOf({.quantity = u"1", .size = u"36", .description = described}),
                              lineOf({.colour = u"RUBRO"})});
        load(tipo::frente_de_caixa);
    }
};

TEST_F(ImpressaoFrenteTest, JobWithAHeaderStrip) {
    form.coluna_etiqueta = 2; // set to 1 for the job
    form.Frame2.visible = true;
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-frente"));
    EXPECT_EQ(form.txtpreco.text, u"0,00");
    EXPECT_EQ(form.marca_logo, u"L");
}

TEST_F(ImpressaoFrenteTest, JobOf100x40) {
    load(tipo::frente_de_caixa_100x40);
    form.PackLinhaX = form.PackLinhaY = 9; // set to 0 for the job
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-frente-100x40"));
    EXPECT_EQ(form.txtpreco.text, u"0,00");
    EXPECT_EQ(form.marca_logo, u"L");
}

TEST_F(ImpressaoFrenteTest, NextItemOnYes) {
    print(Answer::yes);
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    EXPECT_EQ(form.txtpreco.text, u"");
}

TEST_F(ImpressaoFrenteTest, NothingToPrint) {
    storeMargins("Mx4045_1=7\r\nMx4045_2=8\r\nMx4045=9");
    form.txtnumero = {};
    form.txtpreco.text = u" ";
    form.txtbarra.text = u"old";
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-frente-vazia"));
    EXPECT_EQ(machine.printers.face, "Estrangelo Edessa");
    EXPECT_EQ(form.Mx4045_1, 7);
    EXPECT_EQ(form.Mx4045_2, 8);
    EXPECT_EQ(form.Mx4045, 9);
    EXPECT_EQ(form.txtpreco.text, u" ");
    EXPECT_EQ(form.txtbarra.text, u"");
}

TEST_F(ImpressaoFrenteTest, NothingToPrintOn100x40) {
    load(tipo::frente_de_caixa_100x40);
    form.txtnumero = {};
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-frente-100x40-vazia"));
    EXPECT_EQ(machine.printers.face, "Estrangelo Edessa");
    EXPECT_EQ(form.Margem_oculta1, 3);
    EXPECT_EQ(form.Margem_oculta11, 45);
    EXPECT_EQ(form.Margem_oculta2, 3);
    EXPECT_EQ(form.txtpreco.text, u"");
}

} // namespace etiquetas::test
