#include "workbench/Campos.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using Event = void (*)(FrmPadrao&);
using KeyEvent = KeyCode (*)(FrmPadrao&, KeyCode);

class CamposTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void pressInWindow(const std::vector<KeyCode>& keys) {
        for (const KeyCode key : keys) {
            FrmPadrao_keydown(form, key);
        }
    }
};

TEST_F(CamposTest, FieldWithTheFocusIsYellowAndSelected) {
    struct FieldEvents {
        TextField& field;
        Event enter, leave;
    };
    const Event enter_slot = [](FrmPadrao& f) { txtnumero_enter(f, 13); };
    const Event leave_slot = [](FrmPadrao& f) { txtnumero_leave(f, 13); };
    // clang-format off
    for (const auto& [field, enter, leave] : {
        FieldEvents{.field = form.txtarquivo, .enter = txtarquivo_enter, .leave = txtarquivo_leave},
        FieldEvents{.field = form.txtcliente, .enter = txtcliente_enter, .leave = txtcliente_leave},
        FieldEvents{.field = form.txtcor, .enter = txtcor_enter, .leave = txtcor_leave},
        FieldEvents{.field = form.TXTOCULTAS, .enter = TXTOCULTAS_enter, .leave = TXTOCULTAS_leave},
        FieldEvents{.field = form.txtnumero[13], .enter = enter_slot, .leave = leave_slot}}) {
        // clang-format on
        SCOPED_TRACE(utf8(field.caption));
        field.text = u"12 ";
        enter(form);
        EXPECT_EQ(field.back_colour, (Colour{.red = 255, .green = 255, .blue = 192}));
        EXPECT_EQ(field.selection, (Selection{.start = 0, .length = 3}));
        leave(form);
        EXPECT_EQ(field.back_colour, (Colour{.red = 255, .green = 255, .blue = 255}));
    }
}

TEST_F(CamposTest, TextsAreTypedInUpperCase) {
    for (const KeyEvent event : {txtarquivo_key, txtcliente_key, txtcor_key}) {
        for (const KeyCode key : {u'0', u'9', key::select_all, key::backspace, u'-', u','}) {
            EXPECT_EQ(event(form, key), key);
        }
        EXPECT_EQ(event(form, u'a'), u'A');
        EXPECT_EQ(event(form, u'ç'), u'Ç');
    }
}

TEST_F(CamposTest, QuantitiesTakeDigitsOnly) {
    const KeyEvent slot_key = [](FrmPadrao& f, KeyCode key) { return txtnumero_key(f, 13, key); };
    for (const KeyEvent event : {TXTOCULTAS_key, txtlote_key, slot_key}) {
        for (const KeyCode key : {u'0', u'9', key::select_all, key::backspace}) {
            EXPECT_EQ(event(form, key), key);
        }
        for (const KeyCode key : {u'-', u',', u'a', u'ç'}) {
            EXPECT_EQ(event(form, key), key::none);
        }
    }
}

TEST_F(CamposTest, ListsKeepTheirArrowKeysAndEnterMovesOn) {
    struct ListEvents {
        Event enter;
        KeyEvent key;
        Event leave;
    };
    const std::vector<KeyCode> keys{key::arrow_up, key::arrow_down, key::enter, u'A'};
    for (const auto& [enter, list_key, leave] :
         {ListEvents{.enter = cmbtipo_enter, .key = cmbtipo_key, .leave = cmbtipo_leave},
          ListEvents{.enter = cmb_referencia_enter,
          .key = cmb_referencia_key,
          .leave = cmb_referencia_leave},
          ListEvents{.enter = cmb_referencia1_enter,
          .key = cmb_referencia1_key,
          .leave = cmb_referencia1_leave}}) {
        machine.log.clear();
        enter(form);
        pressInWindow(keys);
        EXPECT_EQ(list_key(form, key::arrow_down), key::arrow_down);
        EXPECT_EQ(machine.log, Log());
        EXPECT_EQ(list_key(form, key::enter), key::enter);
        EXPECT_EQ(machine.log, Log{"focus forward"});
        leave(form); // blank fields load nothing
        pressInWindow(keys);
        EXPECT_EQ(machine.log,
                  (Log{"focus forward", "focus backward", "focus forward", "focus forward"}));
    }
}

TEST_F(CamposTest, OrdersAreLoadedOnEnterAndOnLeaving) {
    machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
        fileOf({u"", lineOf({}), lineOf({.colour = u"RUBRO"})});
    const std::vector<Text> old{u"old"};
    const std::vector<Text> loaded{u"3104527 | TENIS CASUAL | AZUL",
                                   u"3104527 | TENIS CASUAL | RUBRO"};
    const Event press_enter = [](FrmPadrao& f) { EXPECT_EQ(txtarquivo_key(f, u'\r'), u'\r'); };
    struct Load {
        Event event;
        TextView number;
        const std::vector<Text>& items;
    };
    for (const Load& load : {Load{.event = txtarquivo_leave, .number = u"77", .items = loaded},
                             Load{.event = cmbtipo_leave, .number = u"77", .items = loaded},
                             Load{.event = press_enter, .number = u"77", .items = loaded},
                             Load{.event = txtarquivo_leave, .number = u" ", .items = old},
                             Load{.event = cmbtipo_leave, .number = u" ", .items = old},
                             Load{.event = press_enter, .number = u" ", .items = loaded}}) {
        form.cmb_referencia.entries = old;
        form.txtarquivo.text = load.number;
        load.event(form);
        EXPECT_EQ(form.cmb_referencia.entries, load.items);
    }
}

TEST_F(CamposTest, CaptionOfThePanelTellsHowAnItemIsRead) {
    form.List1.entries = {lineOf({}), lineOf({.colour = u"RUBRO"}),
                          u"9;AZUL;;TENIS CASUAL;W;B;1;3104527001;;;;"}; // an accessory
    struct Item {
        TextView caption, colour, txtcor, TXTPARES, txtqte1;
    };
    // clang-format off
    for (const Item& item : {
        Item{.caption = u"Caixa / Oculta", .colour = u"RUBRO",
             .txtcor = u"RUBRO", .TXTPARES = u"12", .txtqte1 = u"old"},
        Item{.caption = tipo::acessorio, .colour = u"AZUL",
             .txtcor = u"AZUL", .TXTPARES = u"9", .txtqte1 = u"old"},
        Item{.caption = tipo::corrugado, .colour = u"RUBRO",
             .txtcor = u"old", .TXTPARES = u"old", .txtqte1 = u""},
        Item{.caption = u"", .colour = u"RUBRO",
             .txtcor = u"RUBRO", .TXTPARES = u"12", .txtqte1 = u"old"}}) {
        // clang-format on
        SCOPED_TRACE(utf8(item.caption));
        form.Frame1.caption = item.caption;
        form.txtcor.text = form.TXTPARES.text = form.txtqte1.text = u"old";
        form.cmb_referencia.type(u"3104527 | TENIS CASUAL | " + Text(item.colour));
        cmb_referencia_leave(form);
        EXPECT_EQ(form.txtcor.text, item.txtcor);
        EXPECT_EQ(form.TXTPARES.text, item.TXTPARES);
        EXPECT_EQ(form.txtqte1.text, item.txtqte1);
    }
}

TEST_F(CamposTest, PackIsReadWhenItsListIsLeft) {
    form.txtqte1.text = u"old";
    form.cmb_referencia1.type(u" ");
    cmb_referencia1_leave(form);
    EXPECT_EQ(form.txtqte1.text, u"old");
    form.cmb_referencia1.type(u"no such item");
    cmb_referencia1_leave(form);
    EXPECT_EQ(form.txtqte1.text, u"");
}

TEST_F(CamposTest, AccessoriesAreCountedInItemsAndHaveNoHiddenLabels) {
    form.txtarquivo.text = u"77";
    for (const TextView kind : {tipo::acessorio, tipo::oculta, tipo::acessorio, tipo::corrugado}) {
        const bool pairs = kind != tipo::acessorio;
        form.cmbtipo.type(Text(kind));
        cmbtipo_leave(form);
        EXPECT_EQ(form.Label71.caption, pairs ? u"Total de Pares" : u"Total de Itens");
        EXPECT_EQ(form.Label72.visible, pairs);
        EXPECT_EQ(form.TXTOCULTAS.visible, pairs);
    }
}

TEST_F(CamposTest, TotalsFollowTheQuantitiesAsFarAsSixteenBitsGo) {
    form.txtnumero[0].text = u"12";
    form.txtnumero[5].text = u" ";
    struct Typed {
        TextView quantity, pairs, hidden_labels;
    };
    for (const Typed& typed :
         {Typed{.quantity = u"3", .pairs = u"15", .hidden_labels = u"30"},
          Typed{.quantity = u"0", .pairs = u"12", .hidden_labels = u"24"},
          Typed{.quantity = u"16371", .pairs = u"16383", .hidden_labels = u"32766"},
          // Beyond 16 bits the totals stay: of the hidden labels, of the pairs, of one size.
          Typed{.quantity = u"16372", .pairs = u"16383", .hidden_labels = u"32766"},
          Typed{.quantity = u"32760", .pairs = u"16383", .hidden_labels = u"32766"},
          Typed{.quantity = u"100000", .pairs = u"16383", .hidden_labels = u"32766"},
          Typed{.quantity = u"", .pairs = u"12", .hidden_labels = u"24"}}) {
        form.txtnumero[13].text = typed.quantity;
        EXPECT_EQ(failureOf([&] { txtnumero_leave(form, 13); }), 0);
        EXPECT_EQ(form.TXTPARES.text, typed.pairs) << utf8(typed.quantity);
        EXPECT_EQ(form.TXTOCULTAS.text, typed.hidden_labels) << utf8(typed.quantity);
    }
}

TEST_F(CamposTest, DoubleClickShowsAndHidesTheOptions) {
    Frame4_dblclick(form);
    EXPECT_TRUE(form.Frame2.visible);
    EXPECT_FALSE(form.txtgrade1.locked);
    Frame4_dblclick(form);
    EXPECT_FALSE(form.Frame2.visible);
}

TEST_F(CamposTest, DoubleClickTurnsTheLockOfEachFieldOfTheSizeRun) {
    form.txtgrade2.locked = true;
    for (const Event click : {txtgrade1_dblclick, txtgrade2_dblclick, txttotgrade_dblclick}) {
        click(form);
        EXPECT_TRUE(form.txtgrade1.locked);
        EXPECT_FALSE(form.txtgrade2.locked);
        EXPECT_TRUE(form.txttotgrade.locked);
        click(form);
        EXPECT_FALSE(form.txtgrade1.locked);
        EXPECT_TRUE(form.txtgrade2.locked);
        EXPECT_FALSE(form.txttotgrade.locked);
    }
    EXPECT_FALSE(form.Frame2.visible);
}

} // namespace etiquetas::test
