#include "support/Golden.h"
#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// An item of two sizes with a pair each.
class ImpressaoOcultaTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoOcultaTest() { loadOrder(u"204455667788"); }

    void loadOrder(const Text& first_barcode) {
        takeOrder(u"FRENTE", {u"LUMIRA", lineOf({.quantity = u"1", .barcode = first_barcode}),
                              lineOf({.quantity = u"1", .size = u"35"})});
        load(tipo::oculta);
    }

    // The item code stands once on each label, before its bars.
    [[nodiscard]] std::size_t labels() const { return machine.told("\"527\"").size(); }
};

TEST_F(ImpressaoOcultaTest, Job) {
    form.coluna_etiqueta = 2; // set to 1 for the job
    form.marca_logo.clear();
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
    loadOrder(u"20445566778");
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-oculta-recusada"));
}

struct HiddenCheck {
    std::string name;
    TextView colour, hidden_labels;
    Answer answer;
    Log messages;
};

class ImpressaoOcultaCheckTest : public ImpressaoOcultaTest,
                                 public testing::WithParamInterface<HiddenCheck> {};

TEST_P(ImpressaoOcultaCheckTest, ComesBeforeAnyDrawing) {
    form.txtcor.text = GetParam().colour;
    form.TXTOCULTAS.text = GetParam().hidden_labels;
    print(GetParam().answer);
    EXPECT_EQ(machine.transcript, GetParam().messages);
}

const std::string no_colour =
    R"(message question yes/no "O Item está sem COR!, Imprimir mesmo assim")";
const std::string no_hidden_labels =
    R"(message exclamation ok "Quantidade de Etiquetas Ocultas - Inválida")";

INSTANTIATE_TEST_SUITE_P(
    , ImpressaoOcultaCheckTest,
    testing::Values(HiddenCheck{"NoHiddenLabels", u"AZUL", u" ", Answer::yes, {no_hidden_labels}},
                    HiddenCheck{"NoColour", u" ", u"4", Answer::no, {no_colour}},
                    HiddenCheck{
                        "ColourFirst", u"", u" ", Answer::yes, {no_colour, no_hidden_labels}}),
    [](const auto& row) { return row.param.name; });

TEST_F(ImpressaoOcultaTest, MarginsAreReadForTheJob) {
    storeMargins("Margem_oculta1=2,5\r\nMargem_oculta11=50\r\nMargem_oculta2=-1");
    print();
    EXPECT_EQ(form.Margem_oculta1, 2.5F);
    EXPECT_EQ(form.Margem_oculta11, 50);
    EXPECT_EQ(form.Margem_oculta2, -1);
}

TEST_F(ImpressaoOcultaTest, MarginsThatAreNoNumbersStayAsTheyWere) {
    form.Margem_oculta1 = 2.5F;
    form.Margem_oculta11 = 50;
    form.Margem_oculta2 = -1;
    storeMargins("Margem_oculta1=x\r\nMargem_oculta11=  \r\nMx4045=9");
    print();
    EXPECT_EQ(form.Margem_oculta1, 2.5F);
    EXPECT_EQ(form.Margem_oculta11, 50);
    EXPECT_EQ(form.Margem_oculta2, -1);
}

TEST_F(ImpressaoOcultaTest, SizeWithoutCodesLeavesTheJobOpen) {
    form.List1.entries.push_back(lineOf({.size = u"36", .barcode = u" "}));
    for (const TextView size : {u"36", u"G"}) {
        form.Label7[1].caption = size;
        print(Answer::yes);
        EXPECT_EQ(labels(), 2U);
        EXPECT_EQ(machine.told("printer "), Log{"printer Etiquetas"});
        EXPECT_EQ(machine.transcript.back(),
                  R"(message none ok "Erro - 1012 - Código Master - Contate Suporte ")");
        EXPECT_EQ(left(), (OrderLeft{.items = 1, .lines = 3}));
    }
}

TEST_F(ImpressaoOcultaTest, StepsThatFailArePassedOver) {
    machine.failing = {"paper", "width", "height", "end"};
    print();
    EXPECT_EQ(labels(), 4U);
    EXPECT_EQ(machine.transcript.back(), closing_question);
}

TEST_F(ImpressaoOcultaTest, UnknownPrinterLeavesTheCurrentOne) {
    form.CMBPRINTER.type(u"etiquetas");
    print();
    EXPECT_EQ(labels(), 4U);
    EXPECT_EQ(machine.told("printer "), Log{"printer Papel"});
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
