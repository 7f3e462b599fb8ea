#include "workbench/Impressao.h"

#include "support/FakePlatform.h"
#include "workbench/Campos.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

const std::string closing = "message question yes/no [] A Impressão está OK";
const std::string label_1 = "print Calibri 20 bold at 33.3 2 mm 527";
const std::string label_2 = "print Calibri 20 bold at 78 2 mm 527";

// An item of two sizes with a pair each, and a second item.
class ImpressaoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    using Counts = std::vector<std::size_t>;

    ImpressaoTest() { loadOrder(u"204455667788"); }

    void loadOrder(TextView barcode) {
        machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
            fileOf({u"LUMIRA", lineOf({.quantity = u"1", .barcode = Text(barcode)}),
                    lineOf({.quantity = u"1", .size = u"35"}),
                    lineOf({.quantity = u"1", .colour = u"RUBRO"})});
        form.cmbtipo.choose(3);
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
        carrega_pedido(form);
        machine.files.bytes.erase(u"/programa/Varesko.ini");
    }

    // Prints, and tells where the item code stands: once a label, before its bars.
    Log printed(Answer answer = Answer::no) {
        machine.answer = answer;
        machine.log.clear();
        cmd_printacessorio_click(form);
        Log labels = machine.logged({"print"});
        std::erase_if(labels, [](const std::string& line) { return !line.ends_with(" 527"); });
        return labels;
    }

    // How many items and lines of the order are left.
    Counts left() const { return {form.cmb_referencia.entries.size(), form.List1.entries.size()}; }
};

TEST_F(ImpressaoTest, OneJobAndTheNextItem) {
    form.FrmMargensOcultaZPL2.open = form.FrmMargensCxZPL45.open = form.FrmMargensPackZPL.open =
        true;
    form.coluna_etiqueta = 2;
    EXPECT_EQ(printed(Answer::yes), (Log{label_1, label_2, label_1, label_2}));
    EXPECT_EQ(machine.logged({"printer", "paper", "width", "height", "page", "end", "message"}),
              (Log{"printer Etiquetas", "paper 256", "width 9000", "height 1200", "page", "page",
                   "end", "printer Papel", closing}));
    EXPECT_EQ(form.marca_logo, u"L");
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open || form.FrmMargensCxZPL45.open ||
                 form.FrmMargensPackZPL.open);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | RUBRO");
    EXPECT_EQ(left(), (Counts{1, 2}));
    // Of the lines the one at the item's position has gone.
    EXPECT_EQ(form.List1.text, lineOf({.quantity = u"1", .size = u"35"}));
    EXPECT_EQ(form.txtcor.text + form.txtnumero[1].text, u"RUBRO");

    form.LBLBRISAKO.caption = u"BRISA KO";
    form.Frame2.visible = true;
    form.Margem_oculta11 = 0;        // read before the header strip
    form.Label7[13].caption = u"34"; // the last slot counts
    std::swap(form.txtnumero[0].text, form.txtnumero[13].text);
    EXPECT_EQ(printed(Answer::yes), (Log{label_1, label_2}));
    EXPECT_EQ(machine.logged({"print"})[1],
              "print Franklin Gothic Medium 10 bold at 51 6 mm Pedido: 77");
    EXPECT_EQ(machine.logged({"page", "end"}), (Log{"page", "page", "end"}));
    EXPECT_EQ(form.marca_logo, u"B");
    EXPECT_EQ(left(), (Counts{0, 1}));
    EXPECT_EQ(form.txtcodigo.text + form.txtcor.text + form.txtsemana.text + form.txtbandeira.text +
                  form.txtpreco.text + form.txtdescricao.text + u"|" + form.txtnumero[13].text +
                  form.txtpromocao.text,
              u"|1OFERTA"); // the last two stay
}

TEST_F(ImpressaoTest, ItemStaysOnNoAndWhereNoneIsChosen) {
    printed(Answer::no);
    EXPECT_EQ(form.txtcodigo.text, u"3104527");
    form.cmb_referencia.type(u"3104527 | TENIS CASUAL | AZUL");
    printed(Answer::yes);
    EXPECT_EQ(form.txtcodigo.text, u"");
    EXPECT_EQ(left(), (Counts{2, 3}));
    form.cmb_referencia.choose(1);
    cmb_referencia_leave(form);
    printed(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | AZUL");
    EXPECT_EQ(form.List1.entries[1], lineOf({.quantity = u"1", .colour = u"RUBRO"}));
}

TEST_F(ImpressaoTest, ChecksComeInOrderAndDrawNothing) {
    const std::string no_colour =
        "message question yes/no [] O Item está sem COR!, Imprimir mesmo assim";
    const std::string no_hidden =
        "message exclamation ok [] Quantidade de Etiquetas Ocultas - Inválida";
    Text& kind = form.cmbtipo.text;
    using Case = std::tuple<Text&, TextView, Answer, Log>;
    for (const auto& [field, text, answer, messages] :
         {Case{form.TXTOCULTAS.text, u" ", Answer::yes, {no_hidden}},
          Case{form.txtcor.text, u" ", Answer::no, {no_colour}},
          Case{form.txtcor.text, u"", Answer::yes, {no_colour, no_hidden}},
          Case{kind, u"Outro", Answer::no, {closing}},
          Case{form.txtcodigo.text, u" ", Answer::yes, {"message none ok [] Código Inválido"}}}) {
        field = text;
        printed(answer);
        EXPECT_EQ(machine.log, messages);
    }
    EXPECT_EQ(left(), (Counts{2, 3}));
}

TEST_F(ImpressaoTest, MarginsOfTheJob) {
    using Case = std::pair<std::string, std::array<float, 3>>;
    for (const auto& [lines, margins] :
         {Case{"Margem_oculta1=2,5\r\nMargem_oculta11=50\r\nMargem_oculta2=-1", {2.5F, 50, -1}},
          Case{"Margem_oculta1=x\r\nMargem_oculta11=  \r\nMx4045=9", {2.5F, 50, -1}}}) {
        machine.files.bytes[u"/programa/Varesko.ini"] = "[MargemOcultaZebra]\r\n" + lines;
        printed();
        EXPECT_EQ((std::array{form.Margem_oculta1, form.Margem_oculta11, form.Margem_oculta2}),
                  margins);
    }
}

TEST_F(ImpressaoTest, SizeWithoutCodesLeavesTheJobOpen) {
    form.List1.entries.push_back(lineOf({.size = u"36", .barcode = u" "}));
    for (const TextView size : {u"36", u"G"}) {
        form.Label7[1].caption = size;
        EXPECT_EQ(printed(Answer::yes), (Log{label_1, label_2}));
        EXPECT_EQ(machine.logged({"message", "end", "printer"}),
                  (Log{"printer Etiquetas",
                       "message none ok [] Erro - 1012 - Código Master - Contate Suporte "}));
        EXPECT_EQ(left(), (Counts{2, 4}));
    }
}

TEST_F(ImpressaoTest, WhatFailsEndsItsStepOrItsSizeOnly) {
    machine.failing = {"paper", "width", "height", "end"};
    EXPECT_EQ(printed(), (Log{label_1, label_2, label_1, label_2}));
    form.CMBPRINTER.type(u"etiquetas"); // no such printer: the current one stays
    for (const TextView quantity : {u"16384", u"x", u"-1", u"0"}) {
        form.txtnumero[0].text = quantity;
        EXPECT_EQ(printed(), (Log{label_1, label_2})) << utf8(quantity);
    }
    EXPECT_EQ(machine.logged({"printer", "message"}), (Log{"printer Papel", closing}));
    loadOrder(u"20445566778");
    // The pixels and the raised column of a refused barcode stay until they are set again.
    EXPECT_EQ(printed(), (Log{label_1, "print Calibri 20 bold at 78 2 pixels 527", label_1}));
}

} // namespace etiquetas::test
