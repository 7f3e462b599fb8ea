#include "orders/GradeFc.h"

#include "support/Cases.h"
#include "support/ItemFields.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct BoxItems : LoadedWorkbench {
    void load(std::vector<Text> lines, TextView key = u"3104527 |TENIS CASUAL| AZUL ") {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        carrega_gradeFc(form);
    }
};

class GradeFcTest : public testing::Test, protected BoxItems {};

/// The fields whose place depends on the width of a line.
struct BoxReading {
    std::string name;
    NumberedLine line;
    Text price, week, banner, promotion;
};

class GradeFcFields : public testing::TestWithParam<BoxReading>, protected BoxItems {};

TEST_P(GradeFcFields, AreThoseOfTheFirstLine) {
    const BoxReading& reading = GetParam();
    form.txtpreco.text = u"1,00";
    load({lineOf(reading.line), lineOf({.width = 13, .others = {{2, u"35"}, {8, u"W"}}})},
         u"6 | 4|1 ");
    expectItem(form, {.txtcodigo = u" 6",
                      .txtcor = u" 1",
                      .txtdescricao = u" 4",
                      .txtpreco = reading.price,
                      .txtsemana = reading.week,
                      .txtbandeira = reading.banner,
                      .txtpromocao = reading.promotion});
    EXPECT_EQ(slotsOf(form), (std::vector<Slot>{{.size = u" 2", .quantity = u"0"},
                                                {.size = u"35", .quantity = u"0"}}));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Widths, GradeFcFields, testing::Values(
    BoxReading{.name = "Width10", .line = {.width = 10},
               .week = u" 7/9", .banner = u" 8", .promotion = u" 9"},
    BoxReading{.name = "Width10WithoutSuffix", .line = {.width = 10, .others = {{9, u" "}}},
               .week = u" 7", .banner = u" 8", .promotion = u" "},
    BoxReading{.name = "Width11", .line = {.width = 11},
               .week = u" 7/10", .banner = u" 8", .promotion = u" 9"},
    BoxReading{.name = "Width11WithoutSuffix", .line = {.width = 11, .others = {{10, u" "}}},
               .week = u" 7", .banner = u" 8", .promotion = u" 9"},
    BoxReading{.name = "Width12", .line = {.width = 12},
               .week = u" 7/10", .banner = u" 8", .promotion = u" 9"},
    BoxReading{.name = "Width13", .line = {.width = 13},
               .price = u" 7", .week = u" 8/10", .banner = u" 9", .promotion = u" 11"},
    BoxReading{.name = "Width13WithoutSuffix", .line = {.width = 13, .others = {{10, u""}}},
               .price = u" 7", .week = u" 8", .banner = u" 9", .promotion = u" 11"}), CaseName());
// clang-format on

TEST_F(GradeFcTest, EachLineFillsASlotAndItsPairsAreTotalled) {
    load({lineOf(BoxLine{}), lineOf(BoxLine{.size = u"35"})});
    EXPECT_EQ(slotsOf(form), (std::vector<Slot>{{.size = u"34", .quantity = u"12"},
                                                {.size = u"35", .quantity = u"12"}}));
    expectTotals(form, u"24", u"48");
}

TEST_F(GradeFcTest, LinesOfOtherItemsAndWidthsArePassedOver) {
    form.txtcor.text = u"old";
    load({lineOf(BoxLine{.master = u"3104528"}), lineOf(BoxLine{.description = u"TENIS"}),
          lineOf(BoxLine{.colour = u"Azul"}), lineOf(BoxLine{.master = u" 310452"}),
          lineOf(NumberedLine{.width = 9,
                              .others = {{1, u"AZUL"}, {4, u"TENIS CASUAL"}, {6, u"3104527"}}}),
          lineOf(NumberedLine{.width = 14,
                              .others = {{1, u"AZUL"}, {4, u"TENIS CASUAL"}, {6, u"3104527"}}})});
    EXPECT_EQ(form.txtcor.text, u"old");
    EXPECT_EQ(slotsOf(form), std::vector<Slot>());
    expectTotals(form, u"0", u"0");
}

TEST_F(GradeFcTest, CodeIsCutFromTheMasterCodeAsItStands) {
    load({lineOf(BoxLine{.master = u"  3104527001"})});
    EXPECT_EQ(form.txtcodigo.text, u"  31045");
}

TEST_F(GradeFcTest, BlankSizeLeavesItsSlotToTheNextLine) {
    load({lineOf(BoxLine{.quantity = u"7", .size = u" "}),
          lineOf(BoxLine{.quantity = u"02", .size = u"35 "})});
    EXPECT_EQ(slotsOf(form), (std::vector<Slot>{{.size = u"35 ", .quantity = u"2"}}));
    expectTotals(form, u"2", u"4");
}

TEST_F(GradeFcTest, FifteenthSizeIsToldAndLeftOut) {
    std::vector<Text> lines(14, lineOf(BoxLine{.quantity = u"1"}));
    lines.push_back(lineOf(BoxLine{.quantity = u"100", .size = u"49"}));
    form.txtarquivo.text = u"77";
    load(lines);
    EXPECT_EQ(machine.log,
              Log{warningBox("Erro ao Preencher Dados.. Contate a Varesko e comunique o "
                             "Erro no Pedido 77")});
    EXPECT_EQ(slotsOf(form), std::vector<Slot>(14, {.size = u"34", .quantity = u"1"}));
    expectTotals(form, u"14", u"28");
}

TEST_F(GradeFcTest, BlankKeyEmptiesTheSlotsAndKeepsThePicture) {
    machine.files.bytes[u"/programa/imagens/3104527.jpg"] = "JPEG";
    load({lineOf(BoxLine{})});
    EXPECT_TRUE(form.tem_imagem);
    load({lineOf(BoxLine{})}, u"  ");
    EXPECT_EQ(slotsOf(form), std::vector<Slot>());
    expectTotals(form, u"", u"");
    EXPECT_NE(form.pctimage.picture, nullptr);
    EXPECT_FALSE(form.tem_imagem);
}

} // namespace etiquetas::test
