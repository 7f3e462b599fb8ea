#include "workbench/Campos.h"

#include "support/FakePlatform.h"
#include "support/Module1.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using Event = void (*)(FrmPadrao&);
using KeyEvent = KeyCode (*)(FrmPadrao&, KeyCode);

class CamposTest : public testing::Test, protected LoadedWorkbench {
  protected:
    // What a field gets of these keys.
    Text typed(KeyEvent event, Text keys) {
        for (KeyCode& key : keys) {
            key = event(form, key);
        }
        return keys;
    }
};

TEST_F(CamposTest, TextFieldsAreHighlightedAndLookAtTheirKeys) {
    const Text keys = u"09\x01\b-,aç", letters = u"09\x01\b-,AÇ", digits(u"09\x01\b\0\0\0\0", 8);
    const Event enter_slot = [](FrmPadrao& f) { txtnumero_enter(f, 13); };
    const Event leave_slot = [](FrmPadrao& f) { txtnumero_leave(f, 13); };
    const KeyEvent slot_key = [](FrmPadrao& f, KeyCode key) { return txtnumero_key(f, 13, key); };
    using Case = std::tuple<TextField&, Event, KeyEvent, Text, Event>;
    for (const auto& [field, enter, key, passed, leave] :
         {Case{form.txtarquivo, txtarquivo_enter, txtarquivo_key, letters, txtarquivo_leave},
          Case{form.txtcliente, txtcliente_enter, txtcliente_key, letters, txtcliente_leave},
          Case{form.txtcor, txtcor_enter, txtcor_key, letters, txtcor_leave},
          Case{form.TXTOCULTAS, TXTOCULTAS_enter, TXTOCULTAS_key, digits, TXTOCULTAS_leave},
          Case{form.txtnumero[13], enter_slot, slot_key, digits, leave_slot}}) {
        field.text = u"12 ";
        enter(form);
        EXPECT_EQ(field.back_colour, (Colour{255, 255, 192}));
        EXPECT_EQ(field.selection, (Selection{0, 3}));
        EXPECT_EQ(typed(key, keys), passed);
        SelecionaTexto(field);
        EXPECT_EQ(field.selection, (Selection{0, 2}));
        leave(form);
        EXPECT_EQ(field.back_colour, (Colour{255, 255, 255}));
    }
    EXPECT_EQ(typed(txtlote_key, keys), digits);
    const KeyEvent whole = [](FrmPadrao&, KeyCode key) { return SoNumero(key); };
    const KeyEvent decimal = [](FrmPadrao&, KeyCode key) { return SoDecimal(key); };
    EXPECT_EQ(typed(whole, u"09\b-,.\x01\raE"), Text(u"09\b-\0\0\0\0\0\0", 10));
    EXPECT_EQ(typed(decimal, u"09\b-,.\x01\raE"), Text(u"09\b-,,\0\0\0\0", 10));
}

TEST_F(CamposTest, ListsKeepTheirArrowKeysAndEnterMovesOn) {
    const Text all_keys = u"\x26\x28\rA"; // arrow up, arrow down, Enter and a letter
    const KeyEvent window_key = [](FrmPadrao& f, KeyCode key) {
        FrmPadrao_keydown(f, key);
        return key;
    };
    using Case = std::tuple<Event, KeyEvent, Event>;
    for (const auto& [enter, list_key, leave] :
         {Case{cmbtipo_enter, cmbtipo_key, cmbtipo_leave},
          Case{cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave},
          Case{cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}}) {
        machine.log.clear();
        enter(form);
        typed(window_key, all_keys); // the window does not look
        EXPECT_EQ(typed(list_key, u"\x28\r\r"), u"\x28\r\r");
        leave(form); // blank fields load nothing
        typed(window_key, all_keys);
        EXPECT_EQ(machine.log, (Log{"focus forward", "focus forward", "focus backward",
                                    "focus forward", "focus forward"}));
    }
}

TEST_F(CamposTest, OrdersAreLoadedOnEnterAndOnLeaving) {
    machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
        fileOf({u"", lineOf({}), lineOf({.colour = u"RUBRO"})});
    const Event press_enter = [](FrmPadrao& f) { EXPECT_EQ(txtarquivo_key(f, u'\r'), u'\r'); };
    using Case = std::tuple<Event, TextView, std::size_t>;
    for (const auto& [load, number, items] :
         {Case{txtarquivo_leave, u"77", 2}, Case{cmbtipo_leave, u"77", 2},
          Case{press_enter, u"77", 2}, Case{txtarquivo_leave, u" ", 1},
          Case{cmbtipo_leave, u" ", 1}, Case{press_enter, u" ", 2}}) {
        form.cmb_referencia.entries = {u"old"};
        form.txtarquivo.text = number;
        load(form);
        EXPECT_EQ(form.cmb_referencia.entries.size(), items);
    }
    form.List1.entries.push_back(u"9;AZUL;;TENIS CASUAL;W;B;1;3104527001;;;;"); // an accessory
    using Item = std::tuple<TextView, int, TextView>;
    for (const auto& [caption, position, fields] : // the caption is the switch, not the kind
         {Item{u"Caixa / Oculta", 1, u"RUBRO 12 Q"}, Item{tipo::acessorio, 0, u"AZUL 9 Q"},
          Item{tipo::corrugado, 1, u"AZUL 9 "}, Item{u"", 1, u"RUBRO 12 Q"}}) {
        form.Frame1.caption = caption;
        form.txtqte1.text = u"Q";
        form.cmb_referencia.choose(position);
        cmb_referencia_leave(form);
        EXPECT_EQ(form.txtcor.text + u" " + form.TXTPARES.text + u" " + form.txtqte1.text, fields);
    }
    for (const TextView item : {u" ", u"no such item"}) {
        form.txtqte1.text = u"Q";
        form.cmb_referencia1.type(Text(item));
        cmb_referencia1_leave(form);
        EXPECT_EQ(form.txtqte1.text, item == u" " ? u"Q" : u"");
    }
}

TEST_F(CamposTest, TotalsAndTheirCaptions) {
    form.txtarquivo.text = u"77";
    for (const TextView kind : {tipo::acessorio, tipo::oculta, tipo::acessorio, tipo::corrugado}) {
        const bool pairs = kind != tipo::acessorio;
        form.cmbtipo.type(Text(kind));
        cmbtipo_leave(form);
        EXPECT_EQ(form.Label71.caption, pairs ? u"Total de Pares" : u"Total de Itens");
        EXPECT_TRUE(form.Label72.visible == pairs && form.TXTOCULTAS.visible == pairs);
    }
    form.txtnumero[0].text = u"12";
    form.txtnumero[5].text = u" ";
    using Case = std::pair<TextView, TextView>;
    for (const auto& [quantity, totals] :
         {Case{u"3", u"15 30"}, Case{u"0", u"12 24"}, Case{u"16371", u"16383 32766"},
          // The totals stay where they leave 16 bits.
          Case{u"16372", u"16383 32766"}, Case{u"32760", u"16383 32766"},
          Case{u"100000", u"16383 32766"}, Case{u"", u"12 24"}}) {
        form.txtnumero[13].text = quantity;
        EXPECT_EQ(failureOf([&] { txtnumero_leave(form, 13); }), 0);
        EXPECT_EQ(form.TXTPARES.text + u" " + form.TXTOCULTAS.text, totals);
    }
}

TEST_F(CamposTest, DoubleClicksToggle) {
    const auto state = [&] {
        return std::array{form.Frame2.visible, form.txtgrade1.locked, form.txtgrade2.locked,
                          form.txttotgrade.locked};
    };
    form.txtgrade2.locked = true;
    using Case = std::pair<Event, std::array<bool, 4>>;
    for (const auto& [click, toggled] :
         {Case{Frame4_dblclick, {true, false, true, false}},
          Case{txtgrade1_dblclick, {false, true, false, true}}, // all three, each to its opposite
          Case{txtgrade2_dblclick, {false, true, false, true}},
          Case{txttotgrade_dblclick, {false, true, false, true}}}) {
        click(form);
        EXPECT_EQ(state(), toggled);
        click(form);
        EXPECT_EQ(state(), (std::array{false, false, true, false}));
    }
}

} // namespace etiquetas::test
