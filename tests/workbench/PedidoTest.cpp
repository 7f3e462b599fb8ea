#include "workbench/Pedido.h"

#include "support/Cases.h"
#include "support/FakePlatform.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct Orders : LoadedWorkbench {
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

class PedidoTest : public testing::Test, protected Orders {};

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
    std::string name;
    Text kind, family, key, caption = u"Caixa / Oculta";
    bool corrugated = false;
    bool printable = true;
};

class KindOfOrderTest : public testing::TestWithParam<KindOfOrder>, protected Orders {};

TEST_P(KindOfOrderTest, ReadsTheFileOfItsFamily) {
    file(u"77 FRENTE.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;box567890;c7;c8"});
    file(u"77 CORRUGADO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;pack567890;c7;c8"});
    file(u"77 ACESSORIO.TXT") = fileOf({u"", u"12;c1;c2;c3;c4;c5;c6;loose67890;c8"});
    load(tipo::oculta, u"77");
    form.txtgrade1.locked = form.txtgrade2.locked = form.txttotgrade.locked = false;
    load(GetParam().kind, u"77");
    EXPECT_EQ((GetParam().corrugated ? form.cmb_referencia1 : form.cmb_referencia).entries,
              std::vector<Text>{GetParam().key});
    EXPECT_EQ(form.TipoArquivo, GetParam().family);
    EXPECT_EQ(form.Frame1.caption, GetParam().caption);
    EXPECT_EQ(form.Frame3.visible, GetParam().corrugated);
    EXPECT_NE(form.Frame1.visible, GetParam().corrugated);
    EXPECT_TRUE(form.txtgrade1.locked);
    EXPECT_TRUE(form.txtgrade2.locked);
    EXPECT_TRUE(form.txttotgrade.locked);
    EXPECT_EQ(form.cmd_printacessorio.visible, GetParam().printable);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kinds, KindOfOrderTest, testing::Values(
    KindOfOrder{.name = "Accessory", .kind = u"Acessório", .family = u"C",
                .key = u"loose67 | c3 | c1", .caption = u"Acessório"},
    KindOfOrder{.name = "Corrugated", .kind = u"Corrugado", .family = u"B",
                .key = u"pack567890 | c5 | c4", .corrugated = true},
    KindOfOrder{.name = "Hidden", .kind = u"Oculta", .family = u"A",
                .key = u"box5678 | c4 | c1"},
    KindOfOrder{.name = "BoxFront", .kind = u"Frente de Caixa", .family = u"A",
                .key = u"box5678 | c4 | c1"},
    KindOfOrder{.name = "UnknownKeepsTheFamily", .kind = u"Outro", .family = u"A",
                .key = u"box5678 | c4 | c1", .printable = false}), CaseName());
// clang-format on

TEST_F(PedidoTest, CorrugatedOrderKeepsTheCaptionOfTheOtherPanel) {
    file(u"77 ACESSORIO.TXT") = file(u"77 CORRUGADO.TXT") = fileOf({u""});
    load(tipo::acessorio, u"77");
    load(tipo::corrugado, u"77");
    EXPECT_EQ(form.Frame1.caption, u"Acessório");
}

struct OrderSearch {
    std::string name;
    Text folder, number, description, folder_after = u"/programa";
    std::size_t listed;
};

class OrderSearchTest : public testing::TestWithParam<OrderSearch>, protected Orders {};

TEST_P(OrderSearchTest, TakesTheFirstFileOfTheFamily) {
    for (const TextView name : {u"B 1400050831 FRENTE.TXT", u"a 1400050831 frente.txt",
                                u"C 1400 Frente.txt", u"A 1400 FRENTE.bak", u"0 1500.txt"}) {
        file(name) = fileOf({u"", lineOf({.description = Text(name)})});
    }
    machine.files.bytes[u"/pedidos/77 FRENTE.txt"] = fileOf({u"", lineOf({})});
    form.lblpath.caption = GetParam().folder;
    load(tipo::frente_de_caixa, GetParam().number);
    EXPECT_EQ(form.txtdescricao.text, GetParam().description);
    EXPECT_EQ(form.lblpath.caption, GetParam().folder_after);
    EXPECT_EQ(form.filelist.entries.size(), GetParam().listed);
    EXPECT_TRUE(
        file(u"Varesko.ini").ends_with("[Config]\r\narquivo=" + utf8(GetParam().number) + "\r\n"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Searches, OrderSearchTest, testing::Values(
    OrderSearch{.name = "InTheFolder", .folder = u"/pedidos", .number = u"77",
                .description = u"TENIS CASUAL", .folder_after = u"/pedidos", .listed = 1},
    OrderSearch{.name = "FolderThatIsGone", .folder = u"/gone", .number = u"1400050831",
                .description = u"a 1400050831 frente.txt", .listed = 2},
    OrderSearch{.name = "PartOfANumber", .folder = u"/programa", .number = u" 1400 ",
                .description = u"a 1400050831 frente.txt", .listed = 3},
    OrderSearch{.name = "NoNumber", .folder = u"  ", .number = u"",
                .description = u"a 1400050831 frente.txt", .listed = 4},
    OrderSearch{.name = "InAnyCase", .folder = u"/programa", .number = u"b 14",
                .description = u"B 1400050831 FRENTE.TXT", .listed = 1},
    OrderSearch{.name = "Pattern", .folder = u"/programa", .number = u"c*00 f ",
                .description = u"C 1400 Frente.txt", .listed = 1}), CaseName());
// clang-format on

TEST_F(PedidoTest, HeaderTellsTheBannerEvenWithoutItems) {
    form.txtdescricao.text = u"kept";
    struct Order {
        std::vector<Text> lines;
        TextView banner;
    };
    for (const Order& order :
         {Order{.lines = {u"PEDIDO BRISA KO"}, .banner = u"BRISA KO"},
          Order{.lines = {u"x brisako;", Text(9, u'\0'), Text(9999, u';')}, .banner = u"BRISA KO"},
          Order{.lines = {u"Brisa Ko", u"", u" "}, .banner = u"BRISA KO"},
          Order{.lines = {u"BRISA  KO"}, .banner = u"LUMIRA"},
          Order{.lines = {u""}, .banner = u"LUMIRA"}}) {
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
