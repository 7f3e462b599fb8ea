#include "workbench/Campos.h"

#include "support/Golden.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using Event = void (*)(FrmPadrao&);
using KeyEvent = KeyCode (*)(FrmPadrao&, KeyCode);

class CamposTest : public testing::Test, protected LoadedWorkbench {};

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
    const auto press_in_window = [&] {
        for (const KeyCode key : {key::arrow_up, key::arrow_down, key::enter, KeyCode{u'A'}}) {
            FrmPadrao_keydown(form, key);
        }
    };
    for (const auto& [enter, list_key, leave] :
         {ListEvents{cmbtipo_enter, cmbtipo_key, cmbtipo_leave},
          ListEvents{cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave},
          ListEvents{cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}}) {
        machine.log.clear();
        enter(form);
        press_in_window();
        EXPECT_EQ(list_key(form, key::arrow_down), key::arrow_down);
        EXPECT_EQ(machine.log, Log());
        EXPECT_EQ(list_key(form, key::enter), key::enter);
        EXPECT_EQ(machine.log, Log{"focus forward"});
        leave(form); // blank fields load nothing
        press_in_window();
        EXPECT_EQ(machine.log,
                  (Log{"focus forward", "focus backward", "focus forward", "focus forward"}));
    }
}

TEST_F(CamposTest, OrdersAreLoadedOnEnterAndOnLeaving) {
    machine.files.bytes[u"/programa/77 FRENTE.TXT"] = fileOf({u"", lineOf(BoxLine{})});
    const std::vector<Text> old{u"old"};
    const std::vector<Text> loaded{u"3104527 | TENIS CASUAL | AZUL"};
    const Event press_enter = [](FrmPadrao& f) { EXPECT_EQ(txtarquivo_key(f, u'\r'), u'\r'); };
    for (const Event event : {txtarquivo_leave, cmbtipo_leave, press_enter}) {
        for (const TextView number : {u"77", u" "}) {
            const bool is_loaded = number == u"77" || event == press_enter;
            form.cmb_referencia.entries = old;
            form.txtarquivo.text = number;
            event(form);
            EXPECT_EQ(form.cmb_referencia.entries, is_loaded ? loaded : old);
        }
    }
}

TEST_F(CamposTest, CaptionOfThePanelTellsHowAnItemIsRead) {
    const Text box = lineOf({.colour = u"RUBRO"});
    const Text accessory = u"9;AZUL;;TENIS CASUAL;W;B;1;3104527001;;;;";
    form.List1.entries = {lineOf(BoxLine{}), box, accessory};
    form.cmb_referencia1.type(u"no such item");
    const auto leave = [&](const std::string& what, Event event) {
        form.txtcor.text = form.TXTPARES.text = form.txtqte1.text = u"old";
        event(form);
        machine.tell("==", what);
        tellField(machine, "txtcor", form.txtcor);
        tellField(machine, "TXTPARES", form.TXTPARES.text);
        tellField(machine, "txtqte1", form.txtqte1);
    };
    for (const TextView caption : {u"Caixa / Oculta", u"Acessório", u"Corrugado", u""}) {
        form.Frame1.caption = caption;
        form.cmb_referencia.type(caption == u"Acessório" ? u"3104527 | TENIS CASUAL | AZUL"
                                                         : u"3104527 | TENIS CASUAL | RUBRO");
        leave(inQuotes(caption), cmb_referencia_leave);
    }
    leave("a pack that is not there", cmb_referencia1_leave);
    form.cmb_referencia1.type(u" ");
    leave("no pack", cmb_referencia1_leave);
    EXPECT_TRUE(matchesGolden(machine.transcript, "listas-de-itens"));
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
    for (const TextView quantity :
         {u"3", u"0", u"16371", u"16372", u"20001", u"32760", u"100000", u""}) {
        form.txtnumero[13].text = quantity;
        EXPECT_EQ(failureOf([&] { txtnumero_leave(form, 13); }), 0);
        machine.tell("==", inQuotes(quantity));
        tellField(machine, "TXTPARES", form.TXTPARES.text);
        tellField(machine, "TXTOCULTAS", form.TXTOCULTAS.text);
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "totais"));
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
