#include "margins/Margens.h"

#include "orders/GradeCorrugado.h"
#include "support/FakePlatform.h"
#include "workbench/Dialogos.h"
#include "workbench/Impressao.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using Margins = std::array<float, 3>;

// A box item whose first size with a quantity and a barcode is 36, and a carton item.
class MargensTest : public testing::Test, protected LoadedWorkbench {
  protected:
    MargensTest() {
        machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
            fileOf({u"LUMIRA", lineOf({.barcode = u" "}), lineOf({.size = u"35"}),
                    lineOf({.size = u"36"}), lineOf({.size = u"37"})});
        form.cmbtipo.choose(3);
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
        carrega_pedido(form);
        form.txtnumero[1].text = u" ";
        form.LogoBrisakoOk = form.LogoLumiraOk = true;
        form.List1.entries.emplace_back(u";;527;b;c;d;e;f;g;h;i;a;2/9");
        form.cmb_referencia1.text = u"e | d | c";
        carrega_corrugado(form);
        form.txtean = {.text = u"never"}; // a test prints the pre-pack code all the same
    }

    // The three margins as one text, "|" between them.
    static Text shown(const MargensDialog& d) {
        return d.txtmargem1.text + u"|" + d.txtmargem2.text + u"|" + d.txtmargemsuperior.text;
    }
    static void type(MargensDialog& d, TextView margins) {
        const auto typed = split(margins, u'|');
        d.txtmargem1.text = typed[0];
        d.txtmargem2.text = typed[1];
        d.txtmargemsuperior.text = typed[2];
    }
    // The steps of a test print, with the place of the item code on each label; all that is printed
    // goes to `texts`.
    std::string tested(MargensDialog& dialog, TextView margins) {
        type(dialog, margins);
        form.coluna_etiqueta = 2;
        machine.log.clear();
        cmd_teste_click(form, dialog);
        std::string steps = texts = "";
        for (const std::string& line : machine.logged(
                 {"message", "printer", "paper", "width", "height", "print", "page", "end"})) {
            const std::size_t place = line.find(" at "), text = line.find(" mm ");
            const bool printed = text != std::string::npos;
            texts += printed ? line.substr(text + 4) + "|" : "";
            if (!printed || line.ends_with(" 527")) {
                steps += (printed ? line.substr(place + 1, text - place) : line) + "; ";
            }
        }
        return steps;
    }
    std::string& ini() { return machine.files.bytes[u"/programa/Varesko.ini"]; }

    std::string texts;
    MargensDialog& oculta = form.FrmMargensOcultaZPL2;
    MargensDialog& caixa = form.FrmMargensCxZPL45;
    MargensDialog& pack = form.FrmMargensPackZPL;
};

TEST_F(MargensTest, DialogOfTheKindLoadsAndStores) {
    using Case = std::tuple<TextView, MargensDialog&, Text, Text, std::string>;
    for (const auto& [kind, dialog, defaults, typed, stored] :
         {Case{tipo::oculta, oculta, u"3|45|3", u"1,2,3|-4,5|6",
               "Margem_oculta1=1,2,3\r\nMargem_oculta11=-4,5\r\nMargem_oculta2=6\r\n"},
          Case{tipo::frente_de_caixa, caixa, u"0|40|3", u"1,2,3|-4,5|6",
               "Mx4045_1=1,2,3\r\nMx4045_2=-4,5\r\nMx4045=6\r\n"},
          Case{tipo::corrugado, pack, u"3||3", u"1,2,3||6", "PackX=1,2,3\r\nPackY=6\r\n"}}) {
        machine.files.bytes.erase(u"/programa/Varesko.ini");
        form.cmbtipo.type(Text(kind));
        cmd_calibra_click(form);
        EXPECT_EQ(shown(dialog), defaults);
        type(dialog, typed);
        cmd_calibra_click(form); // to the front, and not loaded again
        EXPECT_TRUE(dialog.to_front && oculta.open + caixa.open + pack.open == 1);
        cmd_gravar_click(form, dialog);
        EXPECT_EQ(ini(), "[MargemOcultaZebra]\r\n" + stored);
        EXPECT_FALSE(dialog.open);
        cmd_calibra_click(form);
        EXPECT_EQ(shown(dialog), typed);
        type(dialog, defaults);
        cmd_gravar_click(form, dialog);
        const std::string stored_defaults = ini();
        type(dialog, u" || ");
        cmd_gravar_click(form, dialog);
        EXPECT_EQ(ini(), stored_defaults);
        EXPECT_EQ(shown(dialog), u" ||3"); // a blank top margin is filled in
    }
    EXPECT_EQ((Margins{form.PackX, form.Mx4045, form.Margem_oculta2}), Margins());
    form.cmb_referencia.text = form.cmb_referencia1.text = u" ";
    machine.log.clear();
    cmd_calibra_click(form);
    EXPECT_EQ(machine.log,
              Log{"message none ok [] Selecione um Pedido para realizar a Calibragem..."});
    form.cmb_referencia.text = u"P";
    form.cmbtipo.type(Text(tipo::acessorio));
    cmd_calibra_click(form);
    EXPECT_TRUE(oculta.open && !oculta.to_front && !caixa.open && !pack.open);
    EXPECT_EQ(oculta.txtcodigo->text, u"3104527");
    form.txtcodigo.text = u" ";
    margens_load(form, oculta);
    EXPECT_EQ(oculta.txtcodigo->text, u"50100779");
    oculta.open = caixa.open = pack.open = true;
    FrmPadrao_unload(form);
    EXPECT_FALSE(oculta.open || caixa.open || pack.open);
}

TEST_F(MargensTest, TestPrintsTheItemWithTheMarginsOfTheFields) {
    ini() = "[MargemOcultaZebra]\r\nMargem_oculta1=7\r\n";
    using Case = std::tuple<MargensDialog&, TextView, std::string, std::string>;
    for (const auto& [dialog, kind, steps, text] :
         {Case{oculta, tipo::oculta, "1200; at 33.8 4 ; at 79 4 ; ",
               "527|3104527001|204455|6677888|36|TENIS CASUAL|AZUL||"},
          Case{caixa, tipo::frente_de_caixa, "2660; at 23.5 2.5 ; at 66 2.5 ; ",
               "202611/OFERTA|OFERTA|527|FAIXA A|3104527001|TENIS CASUAL|AZUL|36|204455|6677888|"},
          // Any other kind. Each column has moved to the left; the price is the "0,00" of the label
          // before.
          Case{oculta, tipo::corrugado, "1200; at 32.7 18 ; at 78.5 18 ; ",
               "TENIS CASUAL AZUL|3104527|FAIXA A|202611/OFERTA|204455|6677888|OFERTA|527|"},
          Case{pack, tipo::oculta, "9000; at 58.5 31.7 ; ",
               "CD - DESTINO|a|PEDIDO|Cód. Master|77|527|FORNECEDOR|b|NOTA FISCAL:|Descrição|d|COR|"
               "c|CÓDIGO|e|TOTAL|h|f|g|Volume:|2/9|Semana:|i|"}}) {
        form.cmbtipo.type(Text(kind));
        form.marca_logo.clear();
        EXPECT_EQ(tested(dialog, u"3,5|46|5"), "printer Etiquetas; paper 256; width 9000; height " +
                                                   steps + "page; end; printer Papel; ");
        EXPECT_EQ(texts, &dialog == &pack ? text : text + text);
        EXPECT_TRUE(machine.log[2] == "unit mm" && form.marca_logo == u"L");
    }
    EXPECT_EQ((Margins{form.PackX, form.Mx4045, form.Margem_oculta2}), (Margins{3.5F, 5, 5}));
    EXPECT_EQ(ini(), "[MargemOcultaZebra]\r\nMargem_oculta1=7\r\n");
    form.cmbtipo.choose(0);
    form.txtpromocao.text = u" A "; // its blanks go before its length is looked at
    tested(caixa, u"3,5|46|5");
    EXPECT_EQ(machine.logged({"print"}).at(1), "print Calibri 16 bold at 33.5 32 mm A");
    form.cmbtipo.choose(3);
    cmd_printacessorio_click(form);
    EXPECT_EQ(form.Margem_oculta1, 7);
}

TEST_F(MargensTest, WhatFailsIsPassedOver) {
    form.Margem_oculta1 = form.Margem_oculta2 = form.PackX = 3;
    machine.failing = {"printers", "paper", "width", "height", "end"};
    EXPECT_EQ(tested(oculta, u"1,2,3|46|-,-"), "at 33.3 2 ; at 79 2 ; page; ");
    form.cmb_vol1.text = u"x";
    EXPECT_EQ(tested(pack, u"x||5"), "");
    EXPECT_EQ((Margins{form.PackX, form.PackLinhaX, form.PackLinhaY}), (Margins{3, 0, 5}));
}

TEST_F(MargensTest, ChecksBeforeATest) {
    const std::string blank = "message none ok [] Informe a Margem...; ";
    EXPECT_EQ(tested(oculta, u" || "), blank);
    EXPECT_EQ(machine.focused, &oculta.txtmargem1);
    EXPECT_EQ(tested(caixa, u"1|| "), blank);
    EXPECT_EQ(machine.focused, &caixa.txtmargem2);
    EXPECT_EQ(tested(pack, u"1|| "), blank);
    EXPECT_EQ(machine.focused, &pack.txtmargemsuperior);
    EXPECT_EQ(tested(caixa, u"1|1|1"), ""); // another kind
    EXPECT_EQ(form.coluna_etiqueta, 1);
    form.cmbtipo.choose(0);
    form.txtdescricao.text = u" "; // told only; no size has it
    EXPECT_EQ(tested(caixa, u"1|1|1"),
              "message none ok [] Selecione o Item que deseja Imprimir; printer Etiquetas; paper "
              "256; width 9000; height 2660; end; printer Papel; ");
    EXPECT_EQ(form.txtpreco.text, u"");
    form.LogoLumiraOk = false;
    EXPECT_EQ(tested(caixa, u"1|1|1"),
              "message none ok [] O Arquivo do Logotipo não foi localizado; ");
    margem_enter(caixa.txtmargem1);
    EXPECT_EQ(caixa.txtmargem1.selection, (Selection{0, 1}));
    EXPECT_TRUE(margem_key(u'.') == u',' && margem_key(u'x') == 0);
}

} // namespace etiquetas::test
