#include "support/FakePlatform.h"
#include "workbench/Impressao.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

constexpr TextView front = tipo::frente_de_caixa, wide = tipo::frente_de_caixa_100x40;
constexpr TextView loose = tipo::acessorio, pack = tipo::corrugado;
const std::string asked = "message question yes/no [] A Impressão está OK";

// An order of each family, of two items each; one size of the box has no barcode.
class RamosTest : public testing::Test, protected LoadedWorkbench {
  protected:
    RamosTest() {
        takeLogos();
        auto& files = machine.files.bytes;
        files[u"/programa/77 FRENTE.TXT"] =
            fileOf({u"LUMIRA", lineOf({.quantity = u"1", .description = u" TENIS CASUAL "}),
                    lineOf({.size = u"35", .barcode = u" ", .description = u" TENIS CASUAL "}),
                    lineOf({.quantity = u"1", .size = u"36", .description = u" TENIS CASUAL "}),
                    lineOf({.colour = u"RUBRO"})});
        files[u"/programa/77 ACESSORIO.TXT"] =
            fileOf({u"BRISA KO", u"2; AZUL ;; BOLSA ;S;B;204455667788;3104527001;9,90;;P;",
                    u"1;RUBRO;;BOLSA;S;B;204455667788;3104527001"});
        files[u"/programa/77 CORRUGADO.TXT"] =
            fileOf({u"LUMIRA", u"1;;M1;F;AZUL;TENIS;20;G1;G2;T;S;D;5/7;;;",
                    u"1;;M2;F;AZUL;BOTA;20;G1;G2;T;S;D;8/9;;;"});
    }

    void load(TextView kind) {
        form.cmbtipo.type(Text(kind));
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
        carrega_pedido(form);
    }

    Log printed(const std::set<std::string>& words, Answer answer = Answer::no) {
        machine.answer = answer;
        machine.log.clear();
        cmd_printacessorio_click(form);
        return machine.logged(words);
    }

    // The texts of what was printed, in order.
    [[nodiscard]] std::string texts() const {
        std::string texts;
        for (const std::string& line : machine.logged({"print"})) {
            texts += line.substr(line.find(" mm ") + 4) + "|";
        }
        return texts;
    }
};

TEST_F(RamosTest, JobOfEachKindWithNothingToPrint) {
    form.PackX = 9;
    using Case = std::tuple<TextView, std::string, TextView>;
    for (const auto& [kind, set_up, price] :
         {Case{front, "unit mm; width 9000; height 2660; paper 256; width 9000", u" "},
          Case{pack, "unit mm; paper 256; width 9000; height 9000", u" "},
          Case{loose, "unit mm; paper 256; width 9000; height 1200", u"0,00"},
          Case{wide, "unit mm", u" "}}) {
        load(kind);
        machine.files.bytes[u"/programa/Varesko.ini"] =
            "[MargemOcultaZebra]\r\nPackY=5\r\nMx4045_1=7\r\nMx4045_2=8\r\nMx4045=9";
        form.txtnumero = {};
        form.TXTPARES.text = u"0";
        form.cmb_vol1.clear();
        form.cmb_vol2.clear();
        form.txtpreco.text = u" ";
        form.PackLinhaX = form.PackLinhaY = 9;
        form.txtbarra.text = u"old";
        form.marca_logo.clear();
        machine.printers.face.clear();
        EXPECT_EQ(
            printed({"printer", "unit", "paper", "width", "height", "page", "end", "message"}),
            listOf("printer Etiquetas; " + set_up + "; end; printer Papel; " + asked));
        EXPECT_EQ(machine.printers.face, utf8(form.NomeFonte));
        EXPECT_EQ(form.txtpreco.text, price);
        EXPECT_EQ(form.marca_logo, form.LBLBRISAKO.caption.substr(0, 1));
        EXPECT_NE(form.txtbarra.text, u"old");
    }
    EXPECT_EQ((std::array{form.PackX, form.PackY, form.Mx4045_1, form.Mx4045_2, form.Mx4045}),
              (std::array{3.0F, 5.0F, 7.0F, 8.0F, 9.0F}));
    EXPECT_EQ((std::array{form.Margem_oculta1, form.Margem_oculta11, form.Margem_oculta2,
                          form.PackLinhaX, form.PackLinhaY}),
              (std::array{3.0F, 45.0F, 3.0F, 0.0F, 0.0F}));
    for (const TextView kind : {front, pack}) {
        load(kind);
        machine.files.bytes.erase(u"/programa/Varesko.ini");
        printed({});
    }
    EXPECT_EQ((std::array{form.PackX, form.PackY, form.Mx4045_1, form.Mx4045_2, form.Mx4045}),
              (std::array{3.0F, 3.0F, 0.0F, 40.0F, 3.0F}));
}

TEST_F(RamosTest, ChecksOfEachKindInTheirOrder) {
    const std::string colour =
        "message question yes/no [] O Item está sem COR!, Imprimir mesmo assim";
    const std::string logo = "message stop ok [] O Arquivo do Logotipo não foi localizado";
    const std::string item = "message none ok [] Selecione o Item que deseja Imprimir";
    const std::string code = "message none ok [] Código Inválido";
    // What is missing: Colour, Logo, Item or Master code.
    using Case = std::tuple<TextView, std::string, Answer, Log>;
    for (const auto& [kind, missing, answer, messages] :
         {Case{front, "CL", Answer::no, {colour}}, Case{front, "CLI", Answer::yes, {colour, logo}},
          Case{front, "I", Answer::no, {item, asked}}, Case{wide, "CI", Answer::no, {colour}},
          Case{wide, "LI", Answer::no, {item}}, Case{wide, "L", Answer::no, {logo}},
          Case{loose, "LI", Answer::no, {logo}}, Case{loose, "CI", Answer::no, {item, asked}},
          Case{loose, "M", Answer::no, {code}}, Case{pack, "CI", Answer::no, {colour}},
          Case{pack, "CIM", Answer::yes, {colour, item}}, Case{pack, "M", Answer::no, {code}},
          Case{pack, "L", Answer::no, {asked}}}) {
        load(kind);
        const auto misses = [&all = missing](char what) {
            return all.find(what) != std::string::npos;
        };
        (kind == pack ? form.txtcor1 : form.txtcor).text = misses('C') ? u" " : u"AZUL";
        (kind == pack ? form.txtdescricao1 : form.txtdescricao).text = misses('I') ? u" " : u"BOTA";
        (kind == pack ? form.txtcodigo1 : form.txtcodigo).text = misses('M') ? u" " : u"3104527";
        form.LogoBrisakoOk = !misses('L');
        EXPECT_EQ(printed({"message"}, answer), messages) << utf8(kind) << missing;
    }
}

TEST_F(RamosTest, LabelsAndTheNextItem) {
    const std::string box = "202611/OFERTA|OFERTA|527|FAIXA A|3104527001| TENIS CASUAL |AZUL|";
    const std::string codes = "|204455|6677888|", end = "|COD: 3104527|2|044556|677888|";
    load(front);
    form.coluna_etiqueta = 2;
    form.Frame2.visible = true;
    EXPECT_EQ(printed({"page"}, Answer::yes), (Log{"page", "page"}));
    EXPECT_EQ(texts(), "Pedido: |77|Pedido: |77|" + box + "34" + codes + box + "36" + codes);
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_EQ(form.txtpreco.text + form.txtcor.text, u"RUBRO"); // of the next item
    form.Frame2.visible = false;
    load(wide);
    EXPECT_EQ(printed({"page"}), (Log{"page", "page"}));
    EXPECT_EQ(texts(), "TENIS CASUAL AZUL||527|34" + end + "TENIS CASUAL AZUL||527|36" + end);
    EXPECT_EQ(form.txtpreco.text, u"0,00");
    load(loose);
    form.coluna_etiqueta = 2;
    EXPECT_EQ(printed({"page", "message"}, Answer::yes), (Log{"page", asked}));
    EXPECT_EQ(form.coluna_etiqueta, 1);
    const std::string bag = "9,|90|R$|À VISTA|BOLSA AZUL|3104527|B|S|204455|667788|P|527|";
    EXPECT_EQ(texts(), bag + bag);
    // The next one has no barcode but its colour, so that its label ends there without a word.
    EXPECT_EQ(form.txtcor.text + form.txtpreco.text + form.lblbarra.caption, u"RUBRORUBRO");
    EXPECT_EQ(printed({"message"}), Log{asked});
    EXPECT_EQ(texts() + machine.printers.unit, "BOLSA RUBRO|pixels");
}

TEST_F(RamosTest, PanelsAndTheirCaptionDecideBesideTheKind) {
    load(front);
    load(pack);
    form.cmbtipo.type(Text(tipo::oculta));
    EXPECT_EQ(printed({"page"}, Answer::yes), Log(3, "page"));
    EXPECT_EQ(form.cmb_referencia1.entries.size() + form.cmb_referencia.entries.size(), 2U + 1U);
    load(front);
    form.cmbtipo.type(Text(pack));
    EXPECT_EQ(printed({"message", "page"}, Answer::yes), Log{asked});
    EXPECT_EQ(form.cmb_referencia1.entries.size() + form.cmb_referencia.entries.size(), 1U + 2U);
    form.cmbtipo.type(Text(front));
    form.txtcodigo.text = u"3104527";
    form.Frame1.caption = pack;
    printed({}, Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text + form.txtcor.text, u"3104527 | TENIS CASUAL | RUBRO");
}

TEST_F(RamosTest, WhatFailsOnTheWayToTheNextItemIsPassedOver) {
    for (const TextView kind : {front, loose, pack}) {
        load(kind);
        ListField& items = kind == pack ? form.cmb_referencia1 : form.cmb_referencia;
        items.entries.resize(2);
        form.List1.clear();
        EXPECT_EQ(failureOf([&] { printed({}, Answer::yes); }), 0); // no line to take off
        load(kind);
        form.List1.entries[1] = u"";
        form.List1.entries.back() = kind == pack ? u";;M2;F;AZUL;BOTA;20;G1;G2;T;S;D;8/x;;;"
                                                 : u"40000;RUBRO;34;BOLSA;TENIS CASUAL;B;3104527;"
                                                   u"3104527;;;";
        items.entries.back() = kind == loose ? u"3104527|BOLSA|RUBRO" : items.entries.back();
        EXPECT_EQ(failureOf([&] { printed({}, Answer::yes); }), 0);
        EXPECT_EQ(form.txtcodigo1.text + form.txtcodigo.text, kind == pack ? u"M2" : u"3104527");
    }
}

TEST_F(RamosTest, VolumesOfACartonAndTheNextOne) {
    load(pack);
    form.txtprepack.text = u"30";
    form.cmb_vol1.type(u"6");
    EXPECT_EQ(printed({"page"}), (Log{"page", "page"}));
    form.cmb_vol2.type(u"3");
    form.txtean.visible = false;
    EXPECT_EQ(printed({"page"}, Answer::yes), Log{"page"});
    EXPECT_EQ(texts(),
              "CD - DESTINO|D|PEDIDO|Cód. Master|77|M1|FORNECEDOR|F|NOTA "
              "FISCAL:|Descrição|TENIS|COR|AZUL|CÓDIGO|30|TOTAL|T|G1|G2|Volume:|6/7|Semana:|S|");
    EXPECT_EQ(form.txtcodigo1.text + form.cmb_vol1.text + form.cmb_vol2.text, u"M289");
    form.txtprepack.text = u"30";
    printed({}, Answer::yes);
    EXPECT_NE(texts().find("CÓDIGO|20|"), std::string::npos);
    EXPECT_TRUE(form.cmb_referencia1.entries.empty() && form.List1.entries.empty());
}

} // namespace etiquetas::test
