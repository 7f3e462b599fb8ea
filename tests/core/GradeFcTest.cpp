#include "orders/GradeFc.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class GradeFcTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void load(std::vector<Text> lines, TextView key = u"3104527 | TENIS CASUAL | AZUL") {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        carrega_gradeFc(form);
    }
};

TEST_F(GradeFcTest, FieldsByWidth) {
    using Case = std::tuple<std::vector<Text>, TextView, TextView, TextView, TextView>;
    for (const auto& [rest, price, week, banner, promotion] : {
             Case{{u" W", u"B ", u" X "}, u"", u" W/X", u"B ", u" X "},
             Case{{u"W", u"B", u" "}, u"", u"W", u"B", u" "},
             Case{{u"W", u"B", u" P", u" X "}, u"", u"W/X", u"B", u" P"},
             Case{{u"W", u"B", u"P", u" "}, u"", u"W", u"B", u"P"},
             Case{{u"W", u"B", u"P", u"X", u"N"}, u"", u"W/X", u"B", u"P"},
             Case{{u"99,90", u"W", u"B", u"X", u"P", u"N"}, u"99,90", u"W/X", u"B", u"P"},
             Case{{u"99,90", u"W", u"B", u"", u"P", u"N"}, u"99,90", u"W", u"B", u"P"},
         }) {
        SCOPED_TRACE(rest.size());
        form.txtpreco.text = u"1,00";
        load({lineOf({.colour = u" AZUL ", .rest = rest}),
              lineOf({.size = u"35", .rest = {u"99,90", u"w", u"b", u"x", u"p", u"n"}})});
        EXPECT_EQ(form.txtcodigo.text + form.txtcor.text + form.txtdescricao.text,
                  u"3104527 AZUL TENIS CASUAL");
        EXPECT_EQ(form.txtpreco.text, price);
        EXPECT_EQ(form.txtsemana.text, week);
        EXPECT_EQ(form.txtbandeira.text, banner);
        EXPECT_EQ(form.txtpromocao.text, promotion);
        EXPECT_EQ(form.Label7[0].caption + form.Label7[1].caption, u"3435");
        EXPECT_EQ(form.txtnumero[0].text, u"12");
        EXPECT_TRUE(form.Label7[1].visible && form.txtnumero[1].visible);
        EXPECT_FALSE(form.Label7[2].visible || form.txtnumero[2].visible);
        EXPECT_EQ(form.TXTPARES.text, u"24");
        EXPECT_EQ(form.TXTOCULTAS.text, u"48");
    }
}

TEST_F(GradeFcTest, LinesOfOtherItemsAndWidthsArePassedOver) {
    form.txtcor.text = u"old";
    form.TXTPARES.text = u"9";
    load({lineOf({.master = u"3104528"}), lineOf({.description = u"TENIS"}),
          lineOf({.colour = u"Azul"}), lineOf({.master = u" 310452"}), lineOf({.rest = {u"", u""}}),
          lineOf({.rest = std::vector<Text>(7)})});
    EXPECT_EQ(form.txtcor.text, u"old");
    EXPECT_EQ(form.Label7[0].caption, u"");
    EXPECT_EQ(form.TXTPARES.text, u"0");
    load({lineOf({.master = u"  3104527001"})});
    EXPECT_EQ(form.txtcodigo.text, u"  31045"); // cut as it stands
}

TEST_F(GradeFcTest, FifteenthSizeIsToldAndLeftOut) {
    std::vector<Text> lines(14, lineOf({.quantity = u"1"}));
    lines.push_back(lineOf({.quantity = u"100", .size = u"49"}));
    form.txtarquivo.text = u"77";
    load(lines);
    EXPECT_EQ(machine.messages.shown,
              (Log{"exclamation, ok, : Erro ao Preencher Dados.. Contate a Varesko e comunique o "
                   "Erro no Pedido 77"}));
    EXPECT_EQ(form.TXTPARES.text, u"14");
    EXPECT_EQ(form.Label7[13].caption, u"34");
}

TEST_F(GradeFcTest, BlankSizeLeavesItsSlotToTheNextLine) {
    load({lineOf({.quantity = u"7", .size = u" "}), lineOf({.quantity = u"02", .size = u"35 "})});
    EXPECT_EQ(form.Label7[0].caption, u"35 ");
    EXPECT_EQ(form.txtnumero[0].text, u"2");
    EXPECT_EQ(form.TXTPARES.text, u"2");
}

TEST_F(GradeFcTest, AdditionCountsOnceWhileTheOptionsShow) {
    form.txtlote.text = u"5";
    const std::vector<Text> lines{lineOf({}), lineOf({.quantity = u"0", .size = u"35"})};
    load(lines);
    EXPECT_EQ(form.TXTPARES.text, u"12");
    form.Frame2.visible = true;
    form.txtnumero[0].locked = true;
    for (int i = 0; i < 2; ++i) {
        load(lines);
        EXPECT_EQ(form.txtnumero[0].text, u"17");
        EXPECT_EQ(form.txtnumero[1].text, u"5");
        EXPECT_EQ(form.TXTPARES.text, u"22");
        EXPECT_EQ(form.TXTOCULTAS.text, u"44");
    }
    EXPECT_FALSE(form.txtnumero[0].locked);
    form.txtlote.text = u"x";
    EXPECT_EQ(failureOf([&] { load(lines); }), failure_number::type_mismatch);
}

TEST_F(GradeFcTest, BlankKeyEmptiesTheSlotsAndKeepsThePicture) {
    machine.files.bytes[u"/programa/imagens/3104527.JPG"] = "JPEG";
    load({lineOf({})});
    EXPECT_TRUE(form.tem_imagem);
    load({lineOf({})}, u"  ");
    EXPECT_NE(form.pctimage.picture, nullptr);
    EXPECT_FALSE(form.tem_imagem);
    EXPECT_EQ(form.TXTPARES.text, u"");
    EXPECT_EQ(form.TXTOCULTAS.text, u"");
    EXPECT_FALSE(form.Label7[0].visible);
    EXPECT_EQ(form.txtnumero[0].text, u"");
}

} // namespace etiquetas::test
