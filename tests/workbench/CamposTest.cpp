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
    for (const auto& [field, enter, leave] :
         {FieldEvents{form.txtarquivo, txtarquivo_enter, txtarquivo_leave},
          FieldEvents{form.txtcliente, txtcliente_enter, txtcliente_leave},
          FieldEvents{form.txtcor, txtcor_enter, txtcor_leave},
          FieldEvents{form.TXTOCULTAS, TXTOCULTAS_enter, TXTOCULTAS_leave},
          FieldEvents{form.txtnumero[13], enter_slot, leave_slot}}) {
        SCOPED_TRACE(utf8(field.caption));
        field.text = u"12 ";
        enter(form);
        EXPECT_EQ(field.back_colour, (Colour{.red = 255, .green = 255, .blue = 192}));
        EXPECT_EQ(field.selection, (Selection{.start = 0, .length = 3}));
        leave(form);
        EXPECT_EQ(field.back_colour, (Colour{.red = 255, .green = 255, .blue = 255}));
    }
}

TEST_F(CamposTest, TextsAreTypedInUpperCaseAndQuantitiesInDigits) {
    struct TypedKey {
        KeyCode typed, of_text, of_quantity;
    };
    const KeyEvent slot_key = [](FrmPadrao& f, KeyCode key) { return txtnumero_key(f, 13, key); };
    for (const TypedKey& key : {TypedKey{u'0', u'0', u'0'}, TypedKey{u'9', u'9', u'9'},
                                TypedKey{key::select_all, key::select_all, key::select_all},
                                TypedKey{key::backspace, key::backspace, key::backspace},
                                TypedKey{u'-', u'-', key::none}, TypedKey{u',', u',', key::none},
                                TypedKey{u'a', u'A', key::none}, TypedKey{u'ç', u'Ç', key::none}}) {
        for (const KeyEvent event : {txtarquivo_key, txtcliente_key, txtcor_key}) {
            EXPECT_EQ(event(form, key.typed), key.of_text);
        }
        for (const KeyEvent event : {TXTOCULTAS_key, txtlote_key, slot_key}) {
            EXPECT_EQ(event(form, key.typed), key.of_quantity);
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
         {ListEvents{cmbtipo_enter, cmbtipo_key, cmbtipo_leave},
          ListEvents{cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave},
          ListEvents{cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}}) {
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
    for (const Load& load :
         {Load{txtarquivo_leave, u"77", loaded}, Load{cmbtipo_leave, u"77", loaded},
          Load{press_enter, u"77", loaded}, Load{txtarquivo_leave, u" ", old},
          Load{cmbtipo_leave, u" ", old}, Load{press_enter, u" ", loaded}}) {
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
    constexpr Item items[] = {
        // caption           colour    txtcor    pairs    pack
        {u"Caixa / Oculta",  u"RUBRO", u"RUBRO", u"12",   u"old"},
        {tipo::acessorio,    u"AZUL",  u"AZUL",  u"9",    u"old"},
        {tipo::corrugado,    u"RUBRO", u"old",   u"old",  u""},
        {u"",                u"RUBRO", u"RUBRO", u"12",   u"old"}};
    // clang-format on
    for (const Item& item : items) {
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
    // Beyond 16 bits the totals stay: of the hidden labels, of the pairs, of one size.
    for (const Typed& typed :
         {Typed{u"3", u"15", u"30"}, Typed{u"0", u"12", u"24"}, Typed{u"16371", u"16383", u"32766"},
          Typed{u"16372", u"16383", u"32766"}, Typed{u"32760", u"16383", u"32766"},
          Typed{u"100000", u"16383", u"32766"}, Typed{u"", u"12", u"24"}}) {
        form.txtnumero[13].text = typed.quantity;
        EXPECT_EQ(failureOf([&] { txtnumero_leave(form, 13); }), 0);
        EXPECT_EQ(form.TXTPARES.text, typed.pairs) << utf8(typed.quantity);
        EXPECT_EQ(form.TXTOCULTAS.text, typed.hidden_labels) << utf8(typed.quantity);
    }
}

TEST_F(CamposTest, DoubleClickTurnsTheOptionsOrEachLockOfTheSizeRun) {
    Frame4_dblclick(form);
    EXPECT_TRUE(form.Frame2.visible);
    EXPECT_FALSE(form.txtgrade1.locked);
    Frame4_dblclick(form);
    form.txtgrade2.locked = true;
    bool turned = false;
    for (const Event click : {txtgrade1_dblclick, txtgrade1_dblclick, txtgrade2_dblclick,
                              txtgrade2_dblclick, txttotgrade_dblclick, txttotgrade_dblclick}) {
        click(form);
        turned = !turned;
        EXPECT_EQ(form.txtgrade1.locked, turned);
        EXPECT_NE(form.txtgrade2.locked, turned);
        EXPECT_EQ(form.txttotgrade.locked, turned);
    }
    EXPECT_FALSE(form.Frame2.visible);
}

} // namespace etiquetas::test
