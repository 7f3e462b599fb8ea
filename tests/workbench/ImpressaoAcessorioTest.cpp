#include "support/Golden.h"
#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(machine.told("text "),
              Log{R"(text 5,2 10,2 Franklin Gothic Medium 5 bold "BOLSA RUBRO")"});
    EXPECT_EQ(machine.told("message "), Log{closing_question});
    EXPECT_EQ(machine.printers.unit, "pixels");
}

TEST_F(ImpressaoAcessorioTest, NothingToPrint) {
    form.TXTPARES.text = u"0";
    form.txtpreco.text = u" ";
    form.NomeFonte = u"Corpo";
    print();
    EXPECT_EQ(machine.transcript,
              (Log{"printer Etiquetas", "unit millimetres", "paper 256", "page width 9000 twips",
                   "page height 1200 twips", "end of job", "printer Papel", closing_question}));
    EXPECT_EQ(form.txtpreco.text, u"0,00");
}

struct AccessoryCheck {
    std::string name;
    TextView code, colour, description;
    bool has_logos;
    Log messages;
};

class ImpressaoAcessorioCheckTest : public ImpressaoAcessorioTest,
                                    public testing::WithParamInterface<AccessoryCheck> {};

TEST_P(ImpressaoAcessorioCheckTest, ComesInItsOrder) {
    form.txtcodigo.text = GetParam().code;
    form.txtcor.text = GetParam().colour;
    form.txtdescricao.text = GetParam().description;
    form.LogoBrisakoOk = GetParam().has_logos;
    print();
    EXPECT_EQ(machine.told("message "), GetParam().messages);
}

const std::string no_code = R"(message none ok "Código Inválido")";
const std::string no_logo = R"(message stop ok "O Arquivo do Logotipo não foi localizado")";
const std::string no_item = R"(message none ok "Selecione o Item que deseja Imprimir")";

INSTANTIATE_TEST_SUITE_P(
    , ImpressaoAcessorioCheckTest,
    testing::Values(AccessoryCheck{"LogoFirst", u"3104527", u"AZUL", u" ", false, {no_logo}},
                    AccessoryCheck{"NoItemGoesOnAndNoColourIsNotAsked",
                                   u"3104527",
                                   u" ",
                                   u" ",
                                   true,
                                   {no_item, closing_question}},
                    AccessoryCheck{"NoCode", u" ", u"AZUL", u"BOLSA", true, {no_code}}),
    [](const auto& row) { return row.param.name; });

} // namespace etiquetas::test
