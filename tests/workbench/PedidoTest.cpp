#include "workbench/Pedido.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"

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
    file(u"77 corrugado.txt") = fileOf({u"", lineOf({})});
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

struct KindOfOrder {
    TextView kind;
    bool corrugated, printable;
    TextView family, caption, key;
};

// clang-format off
constexpr KindOfOrder kinds_of_orders[] = {
    // kind                corrugated  printable  family  caption            key of its file
    {u"Acessório",         false,      true,      u"C",   u"Acessório",      u"loose67 | c3 | c1"},
    {u"Corrugado",         true,       true,      u"B",   u"Acessório",      u"pack567890 | c5 | c4"},
    {u"Oculta",            false,      true,      u"A",   u"Caixa / Oculta", u"box5678 | c4 | c1"},
    {u"Frente de Caixa",   false,      true,      u"A",   u"Caixa / Oculta", u"box5678 | c4 | c1"},
    {u"Outro",             false,      false,     u"A",   u"Caixa / Oculta", u"box5678 | c4 | c1"}};
// clang-format on

// A carton order keeps the caption of the hidden panel, an unknown kind the family.
TEST_F(PedidoTest, EachKindReadsTheFileOfItsFamily) {
    file(u"77 FRENTE.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;box567890;c7;c8"});
    file(u"77 CORRUGADO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;pack567890;c7;c8"});
    file(u"77 ACESSORIO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;c6;loose67890;c8"});
    for (const KindOfOrder& order : kinds_of_orders) {
        SCOPED_TRACE(utf8(order.kind));
        form.txtgrade1.locked = form.txtgrade2.locked = form.txttotgrade.locked = false;
        load(order.kind, u"77");
        EXPECT_EQ((order.corrugated ? form.cmb_referencia1 : form.cmb_referencia).entries,
                  std::vector<Text>{Text(order.key)});
        EXPECT_EQ(form.TipoArquivo, order.family);
        EXPECT_EQ(form.Frame1.caption, order.caption);
        EXPECT_EQ(form.Frame3.visible, order.corrugated);
        EXPECT_NE(form.Frame1.visible, order.corrugated);
        EXPECT_TRUE(form.txtgrade1.locked);
        EXPECT_TRUE(form.txtgrade2.locked);
        EXPECT_TRUE(form.txttotgrade.locked);
        EXPECT_EQ(form.cmd_printacessorio.visible, order.printable);
    }
}

struct OrderSearch {
    TextView number, folder, folder_after;
    std::size_t listed;
    TextView found;
};

// clang-format off
constexpr OrderSearch order_searches[] = {
    // number        folder        folder after   files listed  file found
    {u"77",          u"/pedidos",  u"/pedidos",   1,            u"77 FRENTE.txt"},
    {u"1400050831",  u"/gone",     u"/programa",  2,            u"a 1400050831 frente.txt"},
    {u" 1400 ",      u"/programa", u"/programa",  3,            u"a 1400050831 frente.txt"},
    {u"",            u"  ",        u"/programa",  4,            u"a 1400050831 frente.txt"},
    {u"b 14",        u"/programa", u"/programa",  1,            u"B 1400050831 FRENTE.TXT"},
    {u"c*00 f ",     u"/programa", u"/programa",  1,            u"C 1400 Frente.txt"}};
// clang-format on

TEST_F(PedidoTest, FirstFileOfTheFamilyIsTaken) {
    for (const TextView name : {u"B 1400050831 FRENTE.TXT", u"a 1400050831 frente.txt",
                                u"C 1400 Frente.txt", u"A 1400 FRENTE.bak", u"0 1500.txt"}) {
        file(name) = fileOf({u"", lineOf({.description = Text(name)})});
    }
    machine.files.bytes[u"/pedidos/77 FRENTE.txt"] =
        fileOf({u"", lineOf({.description = u"77 FRENTE.txt"})});
    for (const OrderSearch& search : order_searches) {
        SCOPED_TRACE(utf8(search.number));
        form.lblpath.caption = search.folder;
        load(tipo::frente_de_caixa, search.number);
        EXPECT_EQ(form.txtdescricao.text, search.found);
        EXPECT_EQ(form.lblpath.caption, search.folder_after);
        EXPECT_EQ(form.filelist.entries.size(), search.listed);
        EXPECT_TRUE(
            file(u"Varesko.ini").ends_with("[Config]\r\narquivo=" + utf8(search.number) + "\r\n"));
    }
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
    lines[1] = lineOf({});
    loadHidden(lines);
    lines.emplace_back(u"1");
    loadHidden(lines);
    const std::string text = "Há linhas incompletas no arquivo 77 Frente.txt, que não foram "
                             "carregadas. Linhas: 3, 4, 5, 6, 7, 8, 9, 10, 11, 12";
    EXPECT_EQ(machine.logged({"message"}), (Log{warningBox(text), warningBox(text + "...")}));
    EXPECT_EQ(form.List1.entries, std::vector<Text>{lineOf({})});
}

} // namespace etiquetas::test
