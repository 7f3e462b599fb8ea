#include "workbench/Impressao.h"

#include "support/FakePlatform.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

#include <functional>

namespace etiquetas::test {

const std::string closing = "question, yes no, : A Impressão está OK";
const std::string ref3 = "print Calibri 20 bold ";

// An item of two sizes with a pair each, and a second item.
class ImpressaoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    ImpressaoTest() { loadOrder(u"204455667788"); }

    void loadOrder(TextView barcode) {
        machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
            orderFile(u"LUMIRA", {lineOf({.quantity = u"1", .barcode = Text(barcode)}),
                                  lineOf({.quantity = u"1", .size = u"35"}),
                                  lineOf({.quantity = u"1", .colour = u"RUBRO"})});
        form.cmbtipo.choose(3);
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
        carrega_pedido(form);
        machine.log.clear();
    }

    void setMargins(std::string_view lines) {
        machine.files.bytes[u"/programa/Varesko.ini"] =
            "[MargemOcultaZebra]\r\n" + std::string(lines);
    }

    // Where the item code was printed: once a label, before its bars.
    Log labels() const {
        Log lines;
        for (const std::string& line : machine.log) {
            if (line.starts_with(ref3) && line.ends_with(": 527")) {
                lines.push_back(line.substr(ref3.size(), line.size() - ref3.size() - 5));
            }
        }
        return lines;
    }
};

TEST_F(ImpressaoTest, OneJobAndTheNextItem) {
    setMargins("Margem_oculta1=3\r\nMargem_oculta11=45,0\r\nMargem_oculta2=3,00\r\n");
    form.FrmMargensOcultaZPL2.open = form.FrmMargensPackZPL.open = true;
    form.coluna_etiqueta = 2;
    cmd_printacessorio_click(form);
    EXPECT_EQ(Log(machine.log.begin(), machine.log.begin() + 6),
              (Log{"printer Etiquetas", "unit 6", "paper 256", "width 9000", "height 1200",
                   "face Estrangelo Edessa"}));
    EXPECT_EQ(machine.logged({"printer", "page", "end", "message"}),
              (Log{"printer Etiquetas", "page", "page", "end", "printer Papel",
                   "message A Impressão está OK"}));
    EXPECT_EQ(labels(), (Log{"33.3 2 in 6", "78 2 in 6", "33.3 2 in 6", "78 2 in 6"}));
    EXPECT_EQ(machine.surface.jobs, std::vector<int>{2});
    EXPECT_EQ(machine.messages.shown, Log{closing});
    EXPECT_EQ(form.marca_logo, u"L");
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open || form.FrmMargensPackZPL.open);
    EXPECT_EQ(form.CMBPRINTER.text, u"Etiquetas");

    EXPECT_EQ(form.cmb_referencia.entries, std::vector<Text>{u"3104527 | TENIS CASUAL | RUBRO"});
    EXPECT_EQ(form.List1.entries.size(), 2U); // the line at the item's position has gone
    EXPECT_EQ(form.List1.text, lineOf({.quantity = u"1", .size = u"35"}));
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    EXPECT_EQ(form.txtnumero[1].text, u"");

    form.LBLBRISAKO.caption = u"BRISA KO";
    cmd_printacessorio_click(form);
    EXPECT_EQ(form.marca_logo, u"B");
    EXPECT_EQ(machine.surface.jobs, (std::vector<int>{2, 1}));
    EXPECT_TRUE(form.cmb_referencia.entries.empty());
    EXPECT_EQ(form.txtcodigo.text + form.txtcor.text + form.txtsemana.text + form.txtbandeira.text +
                  form.txtpreco.text + form.txtdescricao.text,
              u"");
    EXPECT_EQ(form.txtnumero[0].text + form.txtpromocao.text, u"1OFERTA"); // these stay
    EXPECT_TRUE(form.cmd_printacessorio.visible);
}

TEST_F(ImpressaoTest, NoKeepsEverything) {
    machine.messages.answers = {Answer::no};
    cmd_printacessorio_click(form);
    EXPECT_EQ(form.List1.entries.size(), 3U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
    EXPECT_EQ(form.txtcodigo.text, u"3104527");
    form.cmb_referencia.type(u"3104527 | TENIS CASUAL | AZUL");
    cmd_printacessorio_click(form); // Yes, but no entry is chosen
    EXPECT_EQ(form.List1.entries.size(), 3U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
    EXPECT_EQ(form.txtcodigo.text, u"");
}

TEST_F(ImpressaoTest, ChecksComeInOrderAndDrawNothing) {
    const std::string code = "none, ok, : Código Inválido";
    const std::string colour = "question, yes no, : O Item está sem COR!, Imprimir mesmo assim";
    const std::string hidden = "exclamation, ok, : Quantidade de Etiquetas Ocultas - Inválida";
    using Case = std::tuple<std::function<void()>, Answer, Log>;
    for (const auto& [spoil, answer, messages] :
         {Case{[&] { form.TXTOCULTAS.text = u" "; }, Answer::ok, {hidden}},
          {[&] { form.txtcor.text = u" "; }, Answer::no, {colour}},
          {[] {}, Answer::yes, {colour, hidden}},
          {[&] { form.cmbtipo.type(u"Outro"); }, Answer::no, {closing}},
          {[&] { form.txtcodigo.text = u" "; }, Answer::ok, {code}}}) {
        spoil();
        machine.messages.answers = {answer};
        machine.messages.shown.clear();
        machine.log.clear();
        cmd_printacessorio_click(form);
        EXPECT_EQ(machine.messages.shown, messages);
        EXPECT_EQ(machine.log.size(), messages.size()); // nothing but messages
        EXPECT_EQ(form.txtbarra.text, u"");
    }
}

TEST_F(ImpressaoTest, KindsThatCanNotBePrintedKeepTheirItem) {
    for (const bool panel_shows : {true, false}) {
        form.cmbtipo.choose(panel_shows ? 0 : 3);
        form.Frame1.visible = panel_shows;
        cmd_printacessorio_click(form);
        EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
    }
    EXPECT_EQ(machine.log.size(), 2U);
    EXPECT_EQ(machine.messages.shown.size(), 2U);
}

TEST_F(ImpressaoTest, HeaderStripComesFirst) {
    form.Frame2.visible = true;
    cmd_printacessorio_click(form);
    const Log drawings = machine.logged({"print", "page"});
    EXPECT_EQ(drawings[1], "print Franklin Gothic Medium 10 bold 6 6 in 6: Pedido: 77");
    EXPECT_EQ(drawings[2], "page");
    EXPECT_EQ(machine.surface.jobs, std::vector<int>{3});
}

TEST_F(ImpressaoTest, MarginsOfTheJob) {
    using Case = std::tuple<std::string_view, std::array<float, 3>>;
    machine.messages.answers.assign(4, Answer::no);
    for (const auto& [lines, margins] :
         {Case{"Margem_oculta1=\r\nMx4045=9", {0, 0, 0}},
          {"Margem_oculta1=2,5\r\nMargem_oculta11=50\r\nMargem_oculta2=-1", {2.5F, 50, -1}},
          {"Margem_oculta1=x\r\nMargem_oculta11=  \r\nMargem_oculta2=4", {2.5F, 50, 4}}}) {
        setMargins(lines);
        cmd_printacessorio_click(form);
        EXPECT_EQ((std::array{form.Margem_oculta1, form.Margem_oculta11, form.Margem_oculta2}),
                  margins);
    }
    machine.files.bytes.erase(u"/programa/Varesko.ini");
    cmd_printacessorio_click(form);
    EXPECT_EQ((std::array{form.Margem_oculta1, form.Margem_oculta11, form.Margem_oculta2}),
              (std::array{3.0F, 45.0F, 3.0F}));
    EXPECT_EQ(form.Mx4045, 0.0F);
}

TEST_F(ImpressaoTest, SizeWithoutCodesLeavesTheJobOpen) {
    form.Label7[1].caption = u"36";
    cmd_printacessorio_click(form);
    EXPECT_EQ(machine.messages.shown,
              Log{"none, ok, : Erro - 1012 - Código Master - Contate Suporte "});
    EXPECT_EQ(machine.logged({"end", "printer"}), Log{"printer Etiquetas"});
    EXPECT_EQ(machine.surface.pages, 1);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
    form.Label7[1].caption = u"G"; // no number, the same message
    cmd_printacessorio_click(form);
    EXPECT_EQ(machine.messages.shown.size(), 2U);
}

TEST_F(ImpressaoTest, RefusedBarcodeEndsItsSizeOnly) {
    loadOrder(u"20445566778");
    setMargins("Margem_oculta1=3\r\nMargem_oculta11=45\r\nMargem_oculta2=3\r\n");
    machine.messages.answers = {Answer::no};
    cmd_printacessorio_click(form);
    // What it leaves behind, pixels and a raised column, stays until it is set again.
    EXPECT_EQ(labels(), (Log{"33.3 2 in 6", "78 2 in 3", "33.3 2 in 6"}));
    EXPECT_EQ(form.coluna_etiqueta, 2);
    EXPECT_EQ(machine.messages.shown, Log{closing});
    EXPECT_EQ(machine.surface.jobs, std::vector<int>{2});
}

TEST_F(ImpressaoTest, QuantitiesThatDoNotFitSkipTheirSize) {
    for (const TextView quantity : {u"16384", u"x", u"-1", u"0"}) {
        machine.log.clear();
        machine.messages.answers = {Answer::no};
        form.txtnumero[0].text = quantity;
        cmd_printacessorio_click(form);
        EXPECT_EQ(labels().size(), 2U) << utf8(quantity); // those of the other size
    }
}

TEST_F(ImpressaoTest, FailingStepsArePassedOver) {
    machine.messages.answers.assign(3, Answer::no);
    for (const std::string word : {"paper", "end", "width"}) {
        machine.log.clear();
        machine.surface.failing = word;
        cmd_printacessorio_click(form);
        EXPECT_EQ(labels().size(), 4U);
        EXPECT_EQ(machine.logged({"printer", "message"}),
                  (Log{"printer Etiquetas", "printer Papel", "message A Impressão está OK"}));
    }
    form.CMBPRINTER.type(u"etiquetas"); // no such printer: the current one stays
    machine.log.clear();
    cmd_printacessorio_click(form);
    EXPECT_EQ(machine.logged({"printer"}), Log{"printer Papel"});
}

} // namespace etiquetas::test
