#include "workbench/Pedido.h"

#include "support/FakePlatform.h"
#include "workbench/Campos.h"

#include <gtest/gtest.h>

#include <chrono>

namespace etiquetas::test {

class PedidoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    PedidoTest() {
        machine.files.folders.emplace(u"/pedidos");
        form.lblpath.caption = u"/pedidos";
    }

    void put(TextView name, std::string bytes) {
        machine.files.bytes[u"/pedidos/" + Text(name)] = std::move(bytes);
    }

    // A box order whose one item tells by its description which file it stands in.
    void putNamed(TextView name) {
        put(name, orderFile(u"LUMIRA", {lineOf({.description = Text(name)})}));
    }

    void load(TextView kind, TextView number) {
        form.cmbtipo.type(Text(kind));
        form.txtarquivo.text = number;
        carrega_pedido(form);
    }
};

TEST_F(PedidoTest, WhatIsNotFoundHidesThePrintCommand) {
    putNamed(u"77 corrugado.txt");
    load(tipo::oculta, u"78 ");
    EXPECT_FALSE(form.cmd_printacessorio.visible);
    load(tipo::oculta, u"77");
    EXPECT_FALSE(form.cmd_printacessorio.visible);
    EXPECT_EQ(machine.messages.shown,
              (Log{"none, ok, : O Pedido 78 , não foi localizado em /pedidos",
                   "none, ok, : O arquivo não foi localizado... "}));
    EXPECT_EQ(machine.log.size(), 2U); // no key is written
    putNamed(u"77 frente.txt");
    load(tipo::oculta, u"77");
    EXPECT_TRUE(form.cmd_printacessorio.visible);
}

TEST_F(PedidoTest, EmptyAndVanishedFilesAreToldBehindThePanels) {
    form.List1.entries = {u"old"};
    put(u"77 FRENTE.TXT", "");
    load(tipo::oculta, u"77");
    EXPECT_FALSE(form.LBLBRISAKO.visible);
    machine.files.on_write = [&] { machine.files.bytes.erase(u"/pedidos/77 FRENTE.TXT"); };
    load(tipo::oculta, u"77");
    EXPECT_EQ(machine.messages.shown, (Log{"exclamation, ok, ATENÇÃO!!!: O arquivo está em branco!",
                                           "exclamation, ok, ATENÇÃO!!!: O arquivo não existe!"}));
    EXPECT_EQ(form.List1.entries, std::vector<Text>{u"old"});
    EXPECT_TRUE(form.cmd_printacessorio.visible);
}

TEST_F(PedidoTest, FamilyOfEachKind) {
    const Text line = u"12;c1;c2;c3;c4;c5;code567890;code789;c8";
    for (const TextView word : {u"FRENTE", u"CORRUGADO", u"ACESSORIO"}) {
        put(u"77 " + Text(word) + u".TXT", orderFile(u"", {line}));
    }
    using Case = std::tuple<TextView, TextView, TextView, bool, TextView>;
    for (const auto& [kind, family, key, corrugated, caption] :
         {Case{u"Acessório", u"C", u"code789 | c3 | c1", false, u"Acessório"},
          Case{u"Corrugado", u"B", u"code567890 | c5 | c4", true, u"Acessório"},
          Case{u"Oculta", u"A", u"code567 | c4 | c1", false, u"Caixa / Oculta"},
          Case{u"Frente de Caixa", u"A", u"code567 | c4 | c1", false, u"Caixa / Oculta"}}) {
        SCOPED_TRACE(utf8(kind));
        form.txtgrade1.locked = form.txtgrade2.locked = form.txttotgrade.locked = false;
        load(kind, u"77");
        EXPECT_EQ(form.TipoArquivo, family);
        const ListField& items = corrugated ? form.cmb_referencia1 : form.cmb_referencia;
        EXPECT_EQ(items.entries, std::vector<Text>{Text(key)});
        EXPECT_EQ(items.text, key);
        EXPECT_EQ(form.Frame3.visible, corrugated);
        EXPECT_EQ(form.Frame1.visible, !corrugated);
        EXPECT_EQ(form.Frame1.caption, caption);
        EXPECT_TRUE(form.txtgrade1.locked && form.txtgrade2.locked && form.txttotgrade.locked);
    }
    load(u"Outro", u"77");
    EXPECT_EQ(form.TipoArquivo, u"A");
    EXPECT_EQ(form.cmb_referencia.text, u"code567 | c4 | c1");
    EXPECT_FALSE(form.cmd_printacessorio.visible);
}

TEST_F(PedidoTest, WhichFileIsLoaded) {
    for (const TextView name : {u"B 1400050831 FRENTE.TXT", u"a 1400050831 frente.txt",
                                u"C 1400 Frente.txt", u"A 1400 FRENTE.bak", u"0 1500.txt"}) {
        putNamed(name);
    }
    using Case = std::tuple<TextView, TextView>;
    for (const auto& [number, file] : {Case{u"1400050831", u"a 1400050831 frente.txt"},
                                       {u" 1400 ", u"a 1400050831 frente.txt"},
                                       {u"1400 ", u"a 1400050831 frente.txt"},
                                       {u"", u"a 1400050831 frente.txt"},
                                       {u"b 14", u"B 1400050831 FRENTE.TXT"},
                                       {u"c*00 f", u"C 1400 Frente.txt"}}) {
        SCOPED_TRACE(utf8(number));
        load(tipo::oculta, number);
        EXPECT_EQ(form.txtdescricao.text, file);
        EXPECT_EQ(form.filelist.entries.size() > 3, number.empty());
    }
    EXPECT_EQ(machine.messages.shown, Log());
}

TEST_F(PedidoTest, MissingFolderFallsBackToTheProgramsAndTheNumberIsKept) {
    for (const TextView folder : {u"/gone", u"", u"  "}) {
        form.lblpath.caption = folder;
        machine.files.bytes[u"/programa/77 FRENTE.txt"] = orderFile(u"", {lineOf({})});
        load(tipo::frente_de_caixa, u"77");
        EXPECT_EQ(form.lblpath.caption, u"/programa");
        EXPECT_EQ(form.txtcodigo.text, u"3104527");
    }
    EXPECT_TRUE(
        machine.files.bytes[u"/programa/Varesko.ini"].ends_with("[Config]\r\narquivo=77\r\n"));
}

TEST_F(PedidoTest, BannerOfTheHeader) {
    using Case = std::tuple<TextView, TextView>;
    for (const auto& [header, banner] : {Case{u"PEDIDO BRISA KO", u"BRISA KO"},
                                         {u"x brisako;", u"BRISA KO"},
                                         {u"Brisa Ko", u"BRISA KO"},
                                         {u"BRISA  KO", u"LUMIRA"},
                                         {u"", u"LUMIRA"}}) {
        form.txtdescricao.text = u"kept";
        put(u"77 FRENTE.TXT", orderFile(header, {}));
        load(tipo::oculta, u"77");
        EXPECT_EQ(form.LBLBRISAKO.caption, banner) << utf8(header);
        EXPECT_TRUE(form.LBLBRISAKO.visible);
        EXPECT_EQ(form.txtdescricao.text, u"kept");
        EXPECT_TRUE(form.cmb_referencia.entries.empty());
    }
}

TEST_F(PedidoTest, ItemLinesAndTheirKeys) {
    const Text blue = lineOf({.description = u"BOTA       CANO", .rest = {u"S", u"AÇÃO", u""}});
    const Text red = lineOf({.colour = u"RUBRO"});
    put(u"77 FRENTE.TXT", orderFile(u"12;not;an;item;line;is;header",
                                    {u"QTDE;COR", blue, u"   ", red, u"TOTAL 24;;;;;;;", blue}));
    load(tipo::oculta, u"77");
    EXPECT_EQ(form.cmb_referencia.entries, (std::vector<Text>{u"3104527 | BOTA CANO | AZUL",
                                                              u"3104527 | TENIS CASUAL | RUBRO"}));
    EXPECT_EQ(form.cmb_referencia.position, 0);
    const Text reduced = lineOf({.description = u"BOTA CANO", .rest = {u"S", u"AÇÃO", u""}});
    EXPECT_EQ(form.List1.entries, (std::vector<Text>{reduced, red, reduced}));
    EXPECT_EQ(form.txtbandeira.text, u"AÇÃO");
    EXPECT_EQ(form.TXTPARES.text, u"24");
}

TEST_F(PedidoTest, ShortLinesAreToldOnce) {
    std::vector<Text> lines(10, u"12;short;line");
    lines.insert(lines.begin(), lineOf({}));
    const std::string told =
        "exclamation, ok, : Há linhas incompletas no arquivo 77 Frente.txt, que "
        "não foram carregadas. Linhas: 3, 4, 5, 6, 7, 8, 9, 10, 11, 12";
    put(u"77 Frente.txt", orderFile(u"", lines));
    load(tipo::oculta, u"77");
    lines.emplace_back(u"1");
    put(u"77 Frente.txt", orderFile(u"", lines));
    load(tipo::oculta, u"77");
    EXPECT_EQ(machine.messages.shown, (Log{told, told + "..."}));
    EXPECT_EQ(form.List1.entries.size(), 1U);
}

TEST_F(PedidoTest, HundredThousandItemsAreNoMatter) {
    std::vector<Text> lines;
    for (int i = 0; i < 100'000; ++i) {
        const std::string code = std::to_string(1'000'000 + i);
        lines.push_back(lineOf({.master = Text(code.begin(), code.end())}));
    }
    put(u"77 FRENTE.TXT", orderFile(u"", lines));
    const auto start = std::chrono::steady_clock::now();
    load(tipo::oculta, u"77");
    // Looking for each key along the list would take five thousand million comparisons.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
    EXPECT_EQ(form.List1.entries.size(), 100'000U);
    EXPECT_EQ(form.cmb_referencia.entries.back(), u"1099999 | TENIS CASUAL | AZUL");
}

TEST_F(PedidoTest, RubbishLoadsAsNothing) {
    std::string rubbish;
    for (unsigned i = 0; i < 100'000; ++i) {
        rubbish.push_back(static_cast<char>(i * i * 2'654'435'761U >> 13));
    }
    for (const std::string& bytes :
         {rubbish, std::string("one line"), std::string(100'000, ';'), std::string("\r\n\r\n")}) {
        put(u"77 FRENTE.TXT", bytes);
        EXPECT_EQ(failureOf([&] { load(tipo::oculta, u"77"); }), 0);
        EXPECT_TRUE(form.List1.entries.empty());
        EXPECT_TRUE(form.cmb_referencia.entries.empty());
    }
}

} // namespace etiquetas::test
