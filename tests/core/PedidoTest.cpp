#include "workbench/Pedido.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class PedidoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    std::string& file(TextView name) { return machine.files.bytes[u"/programa/" + Text(name)]; }

    void load(TextView kind, TextView number) {
        form.cmbtipo.type(Text(kind));
        form.txtarquivo.text = number;
        carrega_pedido(form);
    }

    void loadHidden(const std::vector<Text>& lines) {
        file(u"77 Frente.txt") = fileOf(lines);
        load(tipo::oculta, u"77");
    }
};

TEST_F(PedidoTest, WhatCanNotBeLoadedIsTold) {
    file(u"77 corrugado.txt") = fileOf({u"", lineOf({})});
    for (const TextView number : {u"78 ", u"77"}) {
        load(tipo::oculta, number);
        EXPECT_FALSE(form.cmd_printacessorio.visible);
    }
    EXPECT_EQ(machine.log,
              (Log{"message none ok [] O Pedido 78 , não foi localizado em /programa",
                   "message none ok [] O arquivo não foi localizado... "})); // no key is written
    form.List1.entries = {u"old"};
    loadHidden({});
    EXPECT_TRUE(form.cmd_printacessorio.visible && !form.LBLBRISAKO.visible);
    EXPECT_EQ(machine.log.back(), "message exclamation ok [ATENÇÃO!!!] O arquivo está em branco!");
    machine.files.on_write = [&] { machine.files.bytes.erase(u"/programa/77 Frente.txt"); };
    loadHidden({});
    EXPECT_EQ(machine.log.back(), "message exclamation ok [ATENÇÃO!!!] O arquivo não existe!");
    EXPECT_EQ(form.List1.entries, std::vector<Text>{u"old"});
}

TEST_F(PedidoTest, FamilyOfEachKind) {
    file(u"77 FRENTE.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;box567890;c7;c8"});
    file(u"77 CORRUGADO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;pack567890;c7;c8"});
    file(u"77 ACESSORIO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;c6;loose67890;c8"});
    using Case = std::tuple<TextView, TextView, TextView, TextView>;
    for (const auto& [kind, family, key, caption] :
         {Case{u"Acessório", u"C", u"loose67 | c3 | c1", u"Acessório"},
          Case{u"Corrugado", u"B", u"pack567890 | c5 | c4", u"Acessório"},
          Case{u"Oculta", u"A", u"box5678 | c4 | c1", u"Caixa / Oculta"},
          Case{u"Frente de Caixa", u"A", u"box5678 | c4 | c1", u"Caixa / Oculta"},
          Case{u"Outro", u"A", u"box5678 | c4 | c1", u"Caixa / Oculta"}}) {
        form.txtgrade1.locked = form.txtgrade2.locked = form.txttotgrade.locked = false;
        load(kind, u"77");
        const bool corrugated = family == u"B";
        const ListField& items = corrugated ? form.cmb_referencia1 : form.cmb_referencia;
        EXPECT_EQ(items.entries, std::vector<Text>{Text(key)});
        EXPECT_EQ(form.TipoArquivo + form.Frame1.caption, Text(family).append(caption));
        EXPECT_TRUE(form.Frame3.visible == corrugated && form.Frame1.visible == !corrugated);
        EXPECT_TRUE(form.txtgrade1.locked && form.txtgrade2.locked && form.txttotgrade.locked);
        EXPECT_EQ(form.cmd_printacessorio.visible, kind != u"Outro");
    }
}

TEST_F(PedidoTest, WhichFileIsLoaded) {
    for (const TextView name : {u"B 1400050831 FRENTE.TXT", u"a 1400050831 frente.txt",
                                u"C 1400 Frente.txt", u"A 1400 FRENTE.bak", u"0 1500.txt"}) {
        file(name) = fileOf({u"", lineOf({.description = Text(name)})});
    }
    machine.files.bytes[u"/pedidos/77 FRENTE.txt"] = fileOf({u"", lineOf({})});
    using Case = std::tuple<TextView, TextView, TextView>;
    const TextView first = u"a 1400050831 frente.txt";
    for (const auto& [folder, number, description] :
         {Case{u"/pedidos", u"77", u"TENIS CASUAL"}, Case{u"/gone", u"1400050831", first},
          Case{u"/programa", u" 1400 ", first}, Case{u"  ", u"", first},
          Case{u"/programa", u"b 14", u"B 1400050831 FRENTE.TXT"},
          Case{u"/programa", u"c*00 f ", u"C 1400 Frente.txt"}}) {
        form.lblpath.caption = folder;
        load(tipo::frente_de_caixa, number);
        EXPECT_EQ(form.txtdescricao.text, description);
        EXPECT_EQ(form.lblpath.caption, number == u"77" ? u"/pedidos" : u"/programa");
        EXPECT_EQ(form.filelist.entries.size() > 3, number.empty()) << utf8(number);
    }
    EXPECT_TRUE(file(u"Varesko.ini").ends_with("[Config]\r\narquivo=c*00 f \r\n"));
}

TEST_F(PedidoTest, BannerOfTheHeaderAndOrdersWithoutItems) {
    form.txtdescricao.text = u"kept";
    using Case = std::pair<std::vector<Text>, TextView>;
    for (const auto& [lines, banner] :
         {Case{{u"PEDIDO BRISA KO"}, u"BRISA KO"},
          Case{{u"x brisako;", Text(9, u'\0'), Text(9999, u';')}, u"BRISA KO"},
          Case{{u"Brisa Ko", u"", u" "}, u"BRISA KO"}, Case{{u"BRISA  KO"}, u"LUMIRA"},
          Case{{u""}, u"LUMIRA"}}) {
        loadHidden(lines);
        EXPECT_EQ(form.LBLBRISAKO.caption, banner);
        EXPECT_TRUE(form.LBLBRISAKO.visible && form.List1.entries.empty());
        EXPECT_EQ(form.txtdescricao.text, u"kept");
    }
}

TEST_F(PedidoTest, ItemLinesAndTheirKeys) {
    const Text blue = lineOf({.description = u"BOTA CANO", .rest = u"S;AÇÃO;"});
    const Text wide_blue = lineOf({.description = u"BOTA       CANO", .rest = u"S;AÇÃO;"});
    const Text red = lineOf({.colour = u"RUBRO"});
    loadHidden({u"12;not;an;item;line;is;header", u"QTDE;COR", wide_blue, u"   ", red,
                u"TOTAL 24;;;;;;;", blue});
    EXPECT_EQ(form.cmb_referencia.entries, (std::vector<Text>{u"3104527 | BOTA CANO | AZUL",
                                                              u"3104527 | TENIS CASUAL | RUBRO"}));
    EXPECT_EQ(form.List1.entries, (std::vector<Text>{blue, red, blue}));
    EXPECT_EQ(form.txtbandeira.text + form.TXTPARES.text, u"AÇÃO24");
}

TEST_F(PedidoTest, ShortLinesAreToldOnce) {
    std::vector<Text> lines(12, u"12;short;line");
    lines[1] = lineOf({});
    loadHidden(lines);
    lines.emplace_back(u"1");
    loadHidden(lines);
    const std::string told =
        "message exclamation ok [] Há linhas incompletas no arquivo 77 Frente.txt, que não foram "
        "carregadas. Linhas: 3, 4, 5, 6, 7, 8, 9, 10, 11, 12";
    EXPECT_EQ(machine.logged({"message"}), (Log{told, told + "..."}));
    EXPECT_EQ(form.List1.entries.size(), 1U);
}

} // namespace etiquetas::test
