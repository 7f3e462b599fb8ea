#include "orders/Complemento.h"
#include "orders/GradeFc.h"
#include "orders/OrderFormat.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class OrdersTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void load(std::vector<Text> lines, TextView key = u"3104527 |TENIS CASUAL| AZUL ") {
        form.List1.entries = std::move(lines);
        form.cmb_referencia.type(Text(key));
        carrega_gradeFc(form);
    }

    // The sizes with their quantities, and the totals.
    Text slots() const {
        Text text;
        for (std::size_t i = 0; i < total_slots; ++i) {
            const Text& quantity = form.txtnumero[i].text;
            const bool filled = !quantity.empty();
            EXPECT_TRUE(form.Label7[i].visible == filled && form.txtnumero[i].visible == filled);
            text += filled ? form.Label7[i].caption + u"x" + quantity + u" " : u"";
        }
        return text + form.TXTPARES.text + u" " + form.TXTOCULTAS.text;
    }
};

TEST_F(OrdersTest, RunsOfBlanksInFiveSteps) {
    // 239 = 47 * 5 + 4: 51 = 12 * 4 + 3: 15: 5: 3: 2, and so on for the others.
    using Case = std::pair<std::size_t, std::size_t>;
    for (const auto& [blanks, left] : {Case{1, 1}, Case{2, 1}, Case{3, 1}, Case{9, 1}, Case{119, 1},
                                       Case{159, 2}, Case{239, 2}, Case{479, 3}}) {
        EXPECT_EQ(withReducedBlanks(Text(blanks, u' ') + u";\t\t"), Text(left, u' ') + u";\t\t");
    }
}

TEST_F(OrdersTest, LinesAndTheirKeys) {
    EXPECT_EQ(linesOf(u"a\r\n\r\nb\nc\rd"), (std::vector<TextView>{u"a", u"", u"b", u"c", u"d"}));
    EXPECT_EQ(itemKey(OrderLine(u"0; c ;2;3; d ;5; m"), box_key), u" m |  d  |  c ");
    EXPECT_EQ(itemKey(OrderLine(u"0;1;2;3;4;5;6"), accessory_key), std::nullopt);
}

TEST_F(OrdersTest, FieldsByWidth) {
    using Case = std::pair<Text, Text>;
    for (const auto& [rest, fields] :
         {Case{u" W;B ; X ", u"| W/X|B | X "}, Case{u"W;B; ", u"|W|B| "},
          Case{u"W;B; P; X ", u"|W/X|B| P"}, Case{u"W;B;P; ", u"|W|B|P"},
          Case{u"W;B;P;X;N", u"|W/X|B|P"}, Case{u"99,90;W;B;X;P;N", u"99,90|W/X|B|P"},
          Case{u"99,90;W;B;;P;N", u"99,90|W|B|P"}}) {
        form.txtpreco.text = u"1,00";
        load({lineOf({.colour = u" AZUL ", .rest = rest}),
              lineOf({.size = u"35", .rest = u"99,90;w;b;x;p;n"})});
        EXPECT_EQ(form.txtcodigo.text + form.txtcor.text + form.txtdescricao.text +
                      form.txtpreco.text + u"|" + form.txtsemana.text + u"|" +
                      form.txtbandeira.text + u"|" + form.txtpromocao.text,
                  u"3104527 AZUL TENIS CASUAL" + fields);
        EXPECT_EQ(slots(), u"34x12 35x12 24 48");
    }
}

TEST_F(OrdersTest, LinesOfOtherItemsAndWidthsArePassedOver) {
    form.txtcor.text = u"old";
    load({lineOf({.master = u"3104528"}), lineOf({.description = u"TENIS"}),
          lineOf({.colour = u"Azul"}), lineOf({.master = u" 310452"}), lineOf({.rest = u";"}),
          lineOf({.rest = u";;;;;;"})});
    EXPECT_EQ(form.txtcor.text + slots(), u"old0 0");
    load({lineOf({.master = u"  3104527001"})});
    EXPECT_EQ(form.txtcodigo.text, u"  31045"); // cut as it stands
}

TEST_F(OrdersTest, SlotsAreFilledInOrder) {
    load({lineOf({.quantity = u"7", .size = u" "}), lineOf({.quantity = u"02", .size = u"35 "})});
    EXPECT_EQ(slots(), u"35 x2 2 4"); // a blank size leaves its slot to the next line
    std::vector<Text> lines(14, lineOf({.quantity = u"1"}));
    lines.push_back(lineOf({.quantity = u"100", .size = u"49"}));
    form.txtarquivo.text = u"77";
    load(lines);
    EXPECT_EQ(machine.log,
              Log{"message exclamation ok [] Erro ao Preencher Dados.. Contate a Varesko e "
                  "comunique o Erro no Pedido 77"});
    EXPECT_TRUE(slots().ends_with(u" 34x1 14 28"));
}

TEST_F(OrdersTest, AdditionCountsOnceWhileTheOptionsShow) {
    form.txtlote.text = u"5";
    const std::vector<Text> lines{lineOf({}), lineOf({.quantity = u"0", .size = u"35"})};
    load(lines);
    EXPECT_EQ(slots(), u"34x12 35x0 12 24");
    form.Frame2.visible = form.txtnumero[0].locked = true;
    load(lines);
    load(lines);
    EXPECT_EQ(slots(), u"34x17 35x5 22 44");
    EXPECT_FALSE(form.txtnumero[0].locked);
    form.txtlote.text = u"32767";
    EXPECT_EQ(failureOf([&] { load(lines); }), failure_number::overflow);
}

TEST_F(OrdersTest, PhotographOfTheProduct) {
    machine.files.bytes[u"/programa/imagens/3104527.JPG"] = "JPEG";
    machine.files.bytes[u"/programa/imagens/3104528.jpg"] = "no picture";
    using Case = std::pair<TextView, bool>;
    for (const auto& [code, found] : {Case{u"3104527 ", true}, Case{u"3104528", false},
                                      Case{u"3104527", true}, Case{u"3104529", false}}) {
        form.txtcodigo.text = code;
        EXPECT_EQ(failureOf([&] { pega_imagem(form); }), 0);
        EXPECT_EQ(form.tem_imagem, found);
        EXPECT_EQ(form.pctimage.picture != nullptr, found);
    }
    load({lineOf({})});
    load({lineOf({})}, u"  "); // a blank key empties the slots and keeps the picture
    EXPECT_EQ(slots(), u" ");
    EXPECT_TRUE(form.pctimage.picture && !form.tem_imagem);
}

TEST_F(OrdersTest, CodesOfASize) {
    load({lineOf({.barcode = u"1", .master = u"3104528"}),
          lineOf({.barcode = u"1", .colour = u"RUBRO"}),
          lineOf({.barcode = u"1", .description = u"BOTA"}),
          lineOf({.barcode = u" 204455667788 ", .master = u"3104527001 ", .colour = u" AZUL"}),
          lineOf({.barcode = u"second"}), lineOf({.size = u"35 ", .barcode = u"2044556677880"}),
          lineOf({.size = u"40", .master = u" 3104527001"}),
          lineOf({.size = u"0,5", .barcode = u"20445566778"}),
          u"1;AZUL;0; TENIS CASUAL ;S;B; 200000000008;31045279;P",
          u"1;AZUL;0;TENIS CASUAL;S;B;second;31045279;P"});
    form.txtdescricao.text += u" ";
    form.txtcodigo.text += u" ";
    using Case = std::pair<TextView, Text>;
    for (const auto& [size, codes] :
         {Case{u"34", u"2044556677888 3104527001"}, Case{u"35 ", u"2044556677880 3104527001"},
          Case{u"35", u" "}, Case{u"40", u" "}, Case{u"0,5", u"20445566778 3104527001"},
          Case{u"00", u"2000000000084 31045279"}}) {
        ret_codcomplemento(form, size);
        EXPECT_EQ(form.lblbarra.caption + u" " + form.lblmaster.caption, codes) << utf8(size);
    }
    EXPECT_EQ(failureOf([&] { ret_codcomplemento(form, u"P"); }), failure_number::type_mismatch);
    EXPECT_EQ(form.lblbarra.caption + form.lblmaster.caption, u"");
    EXPECT_EQ(DigitoEan(u"789123456789") + DigitoEan(u"2A000000000½") + DigitoEan(u"100000000003"),
              u" 5 8 0");
}

} // namespace etiquetas::test
