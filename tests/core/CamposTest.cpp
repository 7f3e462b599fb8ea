#include "workbench/Campos.h"

#include "orders/ItemSlots.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class CamposTest : public testing::Test, protected LoadedWorkbench {};

TEST_F(CamposTest, EnteringHighlightsAndLeavingRestores) {
    struct Case {
        TextField* field;
        void (*enter)(FrmPadrao&);
        void (*leave)(FrmPadrao&);
    };
    const Case slot{&form.txtnumero[13], [](FrmPadrao& f) { txtnumero_enter(f, 13); },
                    [](FrmPadrao& f) { txtnumero_leave(f, 13); }};
    for (const Case& row : {Case{&form.txtarquivo, txtarquivo_enter, txtarquivo_leave},
                            {&form.txtcliente, txtcliente_enter, txtcliente_leave},
                            {&form.txtcor, txtcor_enter, txtcor_leave},
                            {&form.TXTOCULTAS, TXTOCULTAS_enter, TXTOCULTAS_leave},
                            slot}) {
        row.field->text = u"12 ";
        row.enter(form);
        EXPECT_EQ(row.field->back_colour, (Colour{255, 255, 192}));
        EXPECT_EQ(row.field->selection, (Selection{0, 3}));
        row.leave(form);
        EXPECT_EQ(row.field->back_colour, (Colour{255, 255, 255}));
    }
}

TEST_F(CamposTest, KeysOfTheFields) {
    const auto slot_key = [](FrmPadrao& f, KeyCode key) { return txtnumero_key(f, 0, key); };
    for (KeyCode (*const field)(FrmPadrao&, KeyCode) : {+slot_key, &txtlote_key, &TXTOCULTAS_key}) {
        for (const KeyCode key : {u'0', u'9', u'\x01', u'\b'}) {
            EXPECT_EQ(field(form, key), key);
        }
        for (const KeyCode key : {u'-', u',', u'a', u'\r'}) {
            EXPECT_EQ(field(form, key), 0);
        }
    }
    for (KeyCode (*const field)(FrmPadrao&, KeyCode) :
         {&txtarquivo_key, &txtcliente_key, &txtcor_key}) {
        EXPECT_EQ(field(form, u'ç'), u'Ç');
        EXPECT_EQ(field(form, u'a'), u'A');
        EXPECT_EQ(field(form, u'-'), u'-');
    }
}

TEST_F(CamposTest, ListsKeepTheirArrowKeysAndEnterMovesOn) {
    struct Case {
        void (*enter)(FrmPadrao&);
        KeyCode (*key)(FrmPadrao&, KeyCode);
        void (*leave)(FrmPadrao&);
    };
    form.txtarquivo.text.clear();
    int moves = 0;
    for (const Case& row : {Case{cmbtipo_enter, cmbtipo_key, cmbtipo_leave},
                            {cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave},
                            {cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}}) {
        row.enter(form);
        for (const KeyCode key : {key::arrow_up, key::arrow_down, key::enter}) {
            FrmPadrao_keydown(form, key); // the window does not look
        }
        EXPECT_EQ(row.key(form, key::arrow_down), key::arrow_down);
        EXPECT_EQ(machine.focus.forward, moves);
        EXPECT_EQ(row.key(form, key::enter), key::enter);
        EXPECT_EQ(machine.focus.forward, ++moves);
        row.leave(form);
        EXPECT_TRUE(form.KeyPreview);
    }
    for (const KeyCode key : {key::arrow_up, key::arrow_down, key::enter, KeyCode{u'A'}}) {
        FrmPadrao_keydown(form, key);
    }
    EXPECT_EQ(machine.focus.forward, moves + 2);
    EXPECT_EQ(machine.focus.backward, 1);
    EXPECT_EQ(machine.log, Log()); // blank fields load nothing
}

TEST_F(CamposTest, OrdersAreLoadedOnEnterAndOnLeaving) {
    machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
        orderFile(u"", {lineOf({}), lineOf({.colour = u"RUBRO"})});
    form.txtarquivo.text = u"77";
    const std::array<void (*)(FrmPadrao&), 3> loads{
        txtarquivo_leave, cmbtipo_leave,
        [](FrmPadrao& f) { EXPECT_EQ(txtarquivo_key(f, key::enter), key::enter); }};
    for (void (*const load)(FrmPadrao&) : loads) {
        form.cmb_referencia.entries = {u"old", u"old", u"old"};
        load(form);
        EXPECT_EQ(form.cmb_referencia.entries.size(), 2U);
    }
    form.txtarquivo.text = u" "; // blank: Enter takes the first file, leaving takes none
    form.cmb_referencia.clear();
    txtarquivo_leave(form);
    cmbtipo_leave(form);
    EXPECT_EQ(form.cmb_referencia.text, u"");
    (void)txtarquivo_key(form, key::enter);
    EXPECT_EQ(form.cmb_referencia.text, u"3104527 | TENIS CASUAL | AZUL");

    form.cmb_referencia.choose(1);
    cmb_referencia_leave(form);
    EXPECT_EQ(form.txtcor.text, u"RUBRO");
    for (const TextView caption : {tipo::acessorio, tipo::corrugado}) {
        form.Frame1.caption = caption; // the caption is the switch, not the kind
        form.cmb_referencia.choose(0);
        cmb_referencia_leave(form);
        EXPECT_EQ(form.txtcor.text, u"RUBRO");
    }
}

TEST_F(CamposTest, CaptionsOfTheTotals) {
    form.txtarquivo.text = u"77";
    for (const TextView kind : {tipo::acessorio, tipo::oculta, tipo::acessorio, tipo::corrugado}) {
        const bool accessory = kind == tipo::acessorio;
        form.cmbtipo.type(Text(kind));
        cmbtipo_leave(form);
        EXPECT_EQ(form.Label71.caption, accessory ? u"Total de Itens" : u"Total de Pares");
        EXPECT_EQ(form.Label72.visible, !accessory);
        EXPECT_EQ(form.TXTOCULTAS.visible, !accessory);
    }
}

TEST_F(CamposTest, TotalsFollowTheQuantities) {
    using Case = std::tuple<TextView, TextView, TextView>;
    form.txtnumero[0].text = u"12";
    form.txtnumero[5].text = u" ";
    for (const auto& [quantity, pairs, hidden] :
         {Case{u"3", u"15", u"30"},
          {u"0", u"12", u"24"},
          {u"16371", u"16383", u"32766"},
          {u"16372", u"16383", u"32766"}, // beyond 16 bits from here on
          {u"32760", u"16383", u"32766"},
          {u"100000", u"16383", u"32766"},
          {u"", u"12", u"24"}}) {
        form.txtnumero[13].text = quantity;
        EXPECT_EQ(failureOf([&] { txtnumero_leave(form, 13); }), 0);
        EXPECT_EQ(form.TXTPARES.text, pairs);
        EXPECT_EQ(form.TXTOCULTAS.text, hidden);
    }
    form.txtnumero[0].text = u"100000";
    EXPECT_EQ(failureOf([&] { soma(form); }), failure_number::overflow);
}

TEST_F(CamposTest, DoubleClicksToggle) {
    for (const bool toggled : {true, false}) {
        Frame4_dblclick(form);
        txtgrade1_dblclick(form);
        EXPECT_EQ(form.Frame2.visible, toggled);
        EXPECT_EQ(form.txtgrade1.locked, toggled);
        EXPECT_FALSE(form.txtgrade2.locked || form.txttotgrade.locked);
    }
    txtgrade2_dblclick(form);
    EXPECT_TRUE(form.txtgrade2.locked && !form.txttotgrade.locked);
    txttotgrade_dblclick(form);
    EXPECT_TRUE(form.txttotgrade.locked);
}

} // namespace etiquetas::test
