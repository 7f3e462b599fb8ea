#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// Hidden labels: an item of two sizes with a pair each, and a second item.
class ImpressaoTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoTest() {
        takeOrder(u"FRENTE", {u"LUMIRA", lineOf({.quantity = u"1"}), second_size,
                              lineOf({.quantity = u"1", .colour = u"RUBRO"})});
        load(tipo::oculta);
    }

    const Text second_size = lineOf({.quantity = u"1", .size = u"35"});
};

TEST_F(ImpressaoTest, ClosesTheMarginDialogs) {
    form.FrmMargensOcultaZPL2.open = true;
    form.FrmMargensCxZPL45.open = true;
    form.FrmMargensPackZPL.open = true;
    print();
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open);
    EXPECT_FALSE(form.FrmMargensCxZPL45.open);
    EXPECT_FALSE(form.FrmMargensPackZPL.open);
}

TEST_F(ImpressaoTest, NextItemOnYes) {
    print(Answer::yes);
    EXPECT_EQ(left(), (OrderLeft{.items = 1, .lines = 2}));
    EXPECT_EQ(form.List1.text, second_size); // the line at the item's position has gone
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | RUBRO");
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    EXPECT_EQ(form.txtnumero[0].text, u"1");
    EXPECT_EQ(form.txtnumero[1].text, u"");
}

TEST_F(ImpressaoTest, FieldsAreEmptyAfterTheLastItemButForSlotsAndPromotion) {
    print(Answer::yes);
    print(Answer::yes);
    EXPECT_EQ(left(), (OrderLeft{.items = 0, .lines = 1}));
    for (const TextField* field : {&form.txtcodigo, &form.txtcor, &form.txtsemana,
                                   &form.txtbandeira, &form.txtpreco, &form.txtdescricao}) {
        EXPECT_EQ(field->text, u"") << utf8(field->caption);
    }
    EXPECT_EQ(form.txtnumero[0].text, u"1");
    EXPECT_EQ(form.txtpromocao.text, u"OFERTA");
}

TEST_F(ImpressaoTest, ItemStaysOnNo) {
    print(Answer::no);
    EXPECT_EQ(form.txtcodigo.text, u"3104527");
    EXPECT_EQ(left(), (OrderLeft{.items = 2, .lines = 3}));
}

TEST_F(ImpressaoTest, NoItemLeavesTheListWhereNoneIsChosen) {
    form.cmb_referencia.type(u"3104527 | TENIS CASUAL | AZUL");
    print(Answer::yes);
    EXPECT_EQ(form.txtcodigo.text, u"");
    EXPECT_EQ(left(), (OrderLeft{.items = 2, .lines = 3}));
}

TEST_F(ImpressaoTest, FirstItemFollowsTheSecond) {
    form.cmb_referencia.choose(1);
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | AZUL");
    EXPECT_EQ(form.List1.entries,
              (std::vector<Text>{lineOf({.quantity = u"1"}),
                                 lineOf({.quantity = u"1", .colour = u"RUBRO"})}));
}

TEST_F(ImpressaoTest, UnknownKindIsOnlyAskedAbout) {
    form.cmbtipo.type(u"Outro");
    print();
    EXPECT_EQ(machine.transcript, Log{closing_question});
}

TEST_F(ImpressaoTest, BlankCodeEndsTheCommand) {
    form.txtcodigo.text = u" ";
    print(Answer::yes);
    EXPECT_EQ(machine.transcript, Log{R"(message none ok "Código Inválido")"});
    EXPECT_EQ(left(), (OrderLeft{.items = 2, .lines = 3}));
}

// The panel on the window decides which labels are printed, the kind which item is next.
class ImpressaoPanelTest : public ImpressaoTest {
  protected:
    ImpressaoPanelTest() {
        takeOrder(u"CORRUGADO", {u"LUMIRA", cartonLineOf({}),
                                 cartonLineOf({.master = u"M2", .description = u"BOTA"})});
    }

    [[nodiscard]] std::size_t pages() const { return machine.told("page").size() - set_up_lines; }

    static constexpr std::size_t set_up_lines = 2; // width and height of the page
};

TEST_F(ImpressaoPanelTest, CartonsOnTheirPanelWhateverTheKind) {
    load(tipo::corrugado);
    form.cmbtipo.type(Text(tipo::oculta));
    print(Answer::yes);
    EXPECT_EQ(pages(), 3U);
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 2U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 1U);
}

TEST_F(ImpressaoPanelTest, CartonLeavesItsListByTheKind) {
    load(tipo::corrugado);
    load(tipo::oculta);
    form.cmbtipo.type(Text(tipo::corrugado));
    print(Answer::yes);
    EXPECT_EQ(machine.transcript, Log{closing_question});
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 1U);
    EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
}

TEST_F(ImpressaoPanelTest, NoItemIsLoadedUnderTheCaptionOfCartons) {
    form.Frame1.caption = tipo::corrugado;
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | RUBRO");
    EXPECT_EQ(form.txtcor.text, u"");
}

// Each family with two items, of which the second is not sound.
struct UnsoundOrder {
    std::string name;
    TextView kind;
    Text second_key, second_line;
};

class ImpressaoUnsoundOrderTest : public testing::TestWithParam<UnsoundOrder>,
                                  protected PrintWorkbench {
  protected:
    ImpressaoUnsoundOrderTest() {
        takeOrder(u"FRENTE", {u"LUMIRA", lineOf({.quantity = u"1"}), lineOf({.colour = u"RUBRO"})});
        takeOrder(u"ACESSORIO",
                  {u"LUMIRA", accessoryLineOf({}), accessoryLineOf({.colour = u"RUBRO"})});
        takeOrder(u"CORRUGADO", {u"LUMIRA", cartonLineOf({}),
                                 cartonLineOf({.master = u"M2", .description = u"BOTA"})});
        load(GetParam().kind);
    }

    ListField& items() {
        return GetParam().kind == tipo::corrugado ? form.cmb_referencia1 : form.cmb_referencia;
    }
};

TEST_P(ImpressaoUnsoundOrderTest, NoLineToTakeOff) {
    form.List1.clear();
    EXPECT_EQ(failureOf([&] { print(Answer::yes); }), 0);
    EXPECT_EQ(items().entries.size(), 1U);
}

TEST_P(ImpressaoUnsoundOrderTest, FailingLoadIsPassedOver) {
    items().entries[1] = GetParam().second_key;
    form.List1.entries[1] = GetParam().second_line;
    EXPECT_EQ(failureOf([&] { print(Answer::yes); }), 0);
    EXPECT_EQ(items().text, GetParam().second_key);
    const bool carton = GetParam().kind == tipo::corrugado;
    EXPECT_EQ((carton ? form.txtcodigo1 : form.txtcodigo).text, carton ? u"M2" : u"3104527");
}

INSTANTIATE_TEST_SUITE_P(
    , ImpressaoUnsoundOrderTest,
    testing::Values(
        UnsoundOrder{"BoxQuantityTooLarge", tipo::frente_de_caixa,
                     u"3104527 | TENIS CASUAL | RUBRO",
                     lineOf({.quantity = u"40000", .colour = u"RUBRO"})},
        UnsoundOrder{"AccessoryWithoutASlot", tipo::acessorio, u"3104527|BOLSA|RUBRO",
                     accessoryLineOf({.colour = u"RUBRO"})},
        UnsoundOrder{"CartonVolumesThatAreNoNumbers", tipo::corrugado, u"20 | BOTA | AZUL",
                     cartonLineOf({.master = u"M2", .description = u"BOTA", .volumes = u"8/x"})}),
    [](const auto& row) { return row.param.name; });

} // namespace etiquetas::test
