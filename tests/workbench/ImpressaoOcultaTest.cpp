#include "support/Golden.h"
#include "support/PrintWorkbench.h"

namespace etiquetas::test {

// An item of two sizes with a pair each.
class ImpressaoOcultaTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoOcultaTest() { load(tipo::oculta); }

    // The item code stands once on each label, before its bars.
    [[nodiscard]] std::size_t labels() const { return machine.told("\"527\"").size(); }
};

TEST_F(ImpressaoOcultaTest, Job) {
    form.coluna_etiqueta = 2; // set to 1 for the job
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-oculta"));
    EXPECT_EQ(form.marca_logo, u"L");
}

TEST_F(ImpressaoOcultaTest, JobWithAHeaderStripAndTheLastSlot) {
    form.LBLBRISAKO.caption = u"BRISA KO";
    form.Frame2.visible = true;
    form.Margem_oculta11 = 0; // read before the header strip
    form.Label7[13].caption = u"34";
    form.txtnumero[13].text = u"1";
    form.txtnumero[0].text = form.txtnumero[1].text = u" ";
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-oculta-cabecalho"));
    EXPECT_EQ(form.marca_logo, u"B");
}

// The pixels and the raised column stay until they are set again.
TEST_F(ImpressaoOcultaTest, RefusedBarcodeEndsItsSizeOnly) {
    form.List1.entries[0] = lineOf({.quantity = u"1", .barcode = u"20445566778"});
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-oculta-recusada"));
}

TEST_F(ImpressaoOcultaTest, BlankCountOfLabelsEndsTheCommandAfterTheColour) {
    form.txtcor.text = u"";
    form.TXTOCULTAS.text = u" ";
    print(Answer::yes);
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-oculta-sem-quantidade"));
}

TEST_F(ImpressaoOcultaTest, MarginsThatAreNoNumbersStayAsTheyWere) {
    for (const char* margins : {"Margem_oculta1=2,5\r\nMargem_oculta11=50\r\nMargem_oculta2=-1",
                                "Margem_oculta1=x\r\nMargem_oculta11=  \r\nMx4045=9"}) {
        storeMargins(margins);
        print();
        EXPECT_EQ(form.Margem_oculta1, 2.5F);
        EXPECT_EQ(form.Margem_oculta11, 50);
        EXPECT_EQ(form.Margem_oculta2, -1);
    }
}

TEST_F(ImpressaoOcultaTest, SizeWithoutCodesLeavesTheJobOpen) {
    form.List1.entries.push_back(lineOf({.size = u"36", .barcode = u" "}));
    for (const TextView size : {u"36", u"G"}) {
        form.Label7[1].caption = size;
        print(Answer::yes);
        EXPECT_EQ(labels(), 2U);
        EXPECT_EQ(machine.told("printer ", "message ", "end of job"),
                  (Log{"printer Etiquetas",
                       R"(message none ok "Erro - 1012 - Código Master - Contate Suporte ")"}));
        expectLeft(2, 4);
    }
}

TEST_F(ImpressaoOcultaTest, StepsThatFailArePassedOver) {
    machine.failing = {"paper", "width", "height", "end"};
    form.CMBPRINTER.type(u"etiquetas"); // unknown in this case: the current printer stays
    print();
    EXPECT_EQ(labels(), 4U);
    EXPECT_EQ(machine.told("printer ", "message "), (Log{"printer Papel", closing_question}));
}

TEST_F(ImpressaoOcultaTest, QuantityThatCannotBePrintedEndsItsSizeOnly) {
    for (const TextView quantity : {u"16384", u"x", u"-1", u"0"}) {
        form.txtnumero[0].text = quantity;
        print();
        EXPECT_EQ(labels(), 2U) << utf8(quantity);
        EXPECT_EQ(machine.transcript.back(), closing_question) << utf8(quantity);
    }
}

} // namespace etiquetas::test
