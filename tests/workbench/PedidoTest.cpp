#include "workbench/Pedido.h"

#include "support/Golden.h"
#include "support/ItemFields.h"
#include "support/Messages.h"
#include "support/SettingsText.h"

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

TEST_F(PedidoTest, OrderThatIsNotFoundIsTold) {
    file(u"77 corrugado.txt") = fileOf({u"", lineOf(BoxLine{})});
    load(tipo::oculta, u"78 ");
    EXPECT_FALSE(form.cmd_printacessorio.visible);
    load(tipo::oculta, u"77");
    EXPECT_FALSE(form.cmd_printacessorio.visible);
    EXPECT_EQ(machine.log,
              (Log{messageBox("O Pedido 78 , não foi localizado em /programa"),
                   messageBox("O arquivo não foi localizado... ")})); // no key is written
}

TEST_F(PedidoTest, FileThatIsEmptyOrGoneIsTold) {
    form.List1.entries = {u"old"};
    form.cmd_printacessorio.visible = false;
    loadHidden({});
    EXPECT_TRUE(form.cmd_printacessorio.visible);
    EXPECT_FALSE(form.LBLBRISAKO.visible);
    EXPECT_EQ(machine.log.back(), warningBox("O arquivo está em branco!", "ATENÇÃO!!!"));
    machine.files.on_write = [&] { machine.files.bytes.erase(u"/programa/77 Frente.txt"); };
    loadHidden({});
    EXPECT_EQ(machine.log.back(), warningBox("O arquivo não existe!", "ATENÇÃO!!!"));
    EXPECT_EQ(form.List1.entries, std::vector<Text>{u"old"});
}

TEST_F(PedidoTest, FileThatCannotBeReadIsTold) {
    form.List1.entries = {u"old"};
    file(u"77 Frente.txt") = fileOf({u"", lineOf(BoxLine{})});
    machine.failing = {"read"};
    EXPECT_EQ(failureOf([&] { load(tipo::oculta, u"77"); }), 0);
    EXPECT_EQ(machine.log.back(),
              warningBox("O arquivo não pôde ser lido!\nrefused", "ATENÇÃO!!!"));
    EXPECT_EQ(form.List1.entries, std::vector<Text>{u"old"});
}

TEST_F(PedidoTest, EachKindReadsTheFileOfItsFamily) {
    file(u"77 FRENTE.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;box567890;c7;c8"});
    file(u"77 CORRUGADO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;pack567890;c7;c8"});
    file(u"77 ACESSORIO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;c6;loose67890;c8"});
    for (const TextView kind :
         {u"Acessório", u"Corrugado", u"Oculta", u"Frente de Caixa", u"Outro"}) {
        form.txtgrade1.locked = form.txtgrade2.locked = form.txttotgrade.locked = false;
        load(kind, u"77");
        machine.tell("==", utf8(kind));
        tellList(machine, "cmb_referencia", form.cmb_referencia);
        tellList(machine, "cmb_referencia1", form.cmb_referencia1);
        tellField(machine, "TipoArquivo", form.TipoArquivo);
        tellField(machine, "Frame1", form.Frame1.caption, form.Frame1.visible ? " shown" : "");
        tellField(machine, "Frame3", form.Frame3.caption, form.Frame3.visible ? " shown" : "");
        machine.tell(form.cmd_printacessorio.visible ? "printable" : "not printable");
        EXPECT_TRUE(form.txtgrade1.locked);
        EXPECT_TRUE(form.txtgrade2.locked);
        EXPECT_TRUE(form.txttotgrade.locked);
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "pedidos"));
}

TEST_F(PedidoTest, FirstFileOfTheFamilyIsTaken) {
    for (const TextView name : {u"B 1400050831 FRENTE.TXT", u"a 1400050831 frente.txt",
                                u"C 1400 Frente.txt", u"A 1400 FRENTE.bak", u"0 1500.txt"}) {
        file(name) = fileOf({u"", lineOf({.description = Text(name)})});
    }
    machine.files.bytes[u"/pedidos/77 FRENTE.txt"] = fileOf({u"", lineOf(BoxLine{})});
    struct Search {
        TextView number, folder;
    };
    for (const Search& search : {Search{u"77", u"/pedidos"}, Search{u"1400050831", u"/gone"},
                                 Search{u" 1400 ", u"/programa"}, Search{u"", u"  "},
                                 Search{u"b 14", u"/programa"}, Search{u"c*00 f ", u"/programa"}}) {
        form.lblpath.caption = search.folder;
        file(u"Varesko.ini").clear();
        load(tipo::frente_de_caixa, search.number);
        machine.tell("==", inQuotes(search.number), "in", inQuotes(search.folder));
        tellField(machine, "lblpath", form.lblpath.caption);
        tellList(machine, "filelist", form.filelist);
        tellField(machine, "txtdescricao", form.txtdescricao);
        tellSettings(machine, machine.files);
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "busca-de-pedidos"));
}

TEST_F(PedidoTest, HeaderTellsTheBannerEvenWithoutItems) {
    form.txtdescricao.text = u"kept";
    struct Order {
        TextView banner;
        std::vector<Text> lines;
    };
    for (const Order& order :
         {Order{u"BRISA KO", {u"PEDIDO BRISA KO"}},
          Order{u"BRISA KO", {u"x brisako;", Text(9, u'\0'), Text(9999, u';')}},
          Order{u"BRISA KO", {u"Brisa Ko", u"", u" "}}, Order{u"LUMIRA", {u"BRISA  KO"}},
          Order{u"LUMIRA", {u""}}}) {
        loadHidden(order.lines);
        EXPECT_EQ(form.LBLBRISAKO.caption, order.banner) << utf8(order.lines[0]);
        EXPECT_TRUE(form.LBLBRISAKO.visible) << utf8(order.lines[0]);
        EXPECT_EQ(form.List1.entries, std::vector<Text>());
        EXPECT_EQ(form.txtdescricao.text, u"kept");
    }
}

TEST_F(PedidoTest, EveryItemLineIsKeptAndEveryKeyOnce) {
    const Text blue = lineOf({.description = u"BOTA CANO", .rest = u"S;AÇÃO;"});
    const Text wide_blue = lineOf({.description = u"BOTA       CANO", .rest = u"S;AÇÃO;"});
    const Text red = lineOf({.colour = u"RUBRO"});
    loadHidden({u"12;not;an;item;line;is;header", u"QTDE;COR", wide_blue, u"   ", red,
                u"TOTAL 24;;;;;;;", blue});
    EXPECT_EQ(form.cmb_referencia.entries, (std::vector<Text>{u"3104527 | BOTA CANO | AZUL",
                                                              u"3104527 | TENIS CASUAL | RUBRO"}));
    EXPECT_EQ(form.List1.entries, (std::vector<Text>{blue, red, blue}));
    EXPECT_EQ(form.txtbandeira.text, u"AÇÃO"); // the first item is loaded
    EXPECT_EQ(form.TXTPARES.text, u"24");
}

TEST_F(PedidoTest, ShortLinesAreToldOnceAndTenOfThemNamed) {
    std::vector<Text> lines(12, u"12;short;line");
    lines[1] = lineOf(BoxLine{});
    loadHidden(lines);
    lines.emplace_back(u"1");
    loadHidden(lines);
    const std::string text = "Há linhas incompletas no arquivo 77 Frente.txt, que não foram "
                             "carregadas. Linhas: 3, 4, 5, 6, 7, 8, 9, 10, 11, 12";
    EXPECT_EQ(machine.logged({"message"}), (Log{warningBox(text), warningBox(text + "...")}));
    EXPECT_EQ(form.List1.entries, std::vector<Text>{lineOf(BoxLine{})});
}

} // namespace etiquetas::test
