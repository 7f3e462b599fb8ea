#include "support/Golden.h"
#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(machine.transcript,
              (Log{"printer Etiquetas", "unit millimetres", "page width 9000 twips",
                   "page height 2660 twips", "paper 256", "page width 9000 twips", "end of job",
                   "printer Papel", closing_question}));
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
    EXPECT_EQ(machine.transcript, (Log{"printer Etiquetas", "unit millimetres", "end of job",
                                       "printer Papel", closing_question}));
    EXPECT_EQ(machine.printers.face, "Estrangelo Edessa");
    EXPECT_EQ(form.Margem_oculta1, 3);
    EXPECT_EQ(form.Margem_oculta11, 45);
    EXPECT_EQ(form.Margem_oculta2, 3);
    EXPECT_EQ(form.txtpreco.text, u"");
}

struct FrontCheck {
    std::string name;
    TextView kind, colour, description;
    bool has_logos;
    Answer answer;
    Log messages;
};

class ImpressaoFrenteCheckTest : public ImpressaoFrenteTest,
                                 public testing::WithParamInterface<FrontCheck> {};

TEST_P(ImpressaoFrenteCheckTest, ComesInItsOrder) {
    load(GetParam().kind);
    form.txtcor.text = GetParam().colour;
    form.txtdescricao.text = GetParam().description;
    form.LogoBrisakoOk = GetParam().has_logos;
    print(GetParam().answer);
    EXPECT_EQ(machine.told("message "), GetParam().messages);
}

const std::string no_colour =
    R"(message question yes/no "O Item está sem COR!, Imprimir mesmo assim")";
const std::string no_logo = R"(message stop ok "O Arquivo do Logotipo não foi localizado")";
const std::string no_item = R"(message none ok "Selecione o Item que deseja Imprimir")";

constexpr TextView front = tipo::frente_de_caixa, wide = tipo::frente_de_caixa_100x40;

INSTANTIATE_TEST_SUITE_P(
    , ImpressaoFrenteCheckTest,
    testing::Values(
        FrontCheck{"ColourRefused", front, u" ", u"BOTA", false, Answer::no, {no_colour}},
        FrontCheck{"ColourThenLogo", front, u" ", u" ", false, Answer::yes, {no_colour, no_logo}},
        FrontCheck{
            "NoItemGoesOn", front, u"AZUL", u" ", true, Answer::no, {no_item, closing_question}},
        FrontCheck{"WideColourRefused", wide, u" ", u" ", true, Answer::no, {no_colour}},
        FrontCheck{"WideItemBeforeLogo", wide, u"AZUL", u" ", false, Answer::no, {no_item}},
        FrontCheck{"WideLogo", wide, u"AZUL", u"BOTA", false, Answer::no, {no_logo}}),
    [](const auto& row) { return row.param.name; });

} // namespace etiquetas::test
