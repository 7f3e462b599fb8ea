#include "workbench/Campos.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "model/FrmPadrao.h"
#include "orders/GradeCorrugado.h"
#include "orders/ItemSlots.h"
#include "orders/OrderFamily.h"
#include "platform/Focus.h"
#include "workbench/Pedido.h"

namespace etiquetas {

namespace {

constexpr Colour light_yellow{255, 255, 192};

void toggle(bool& state) {
    state = !state;
}

// The size run is opened and closed as a whole, whichever of its fields is clicked.
void toggleSizeRun(FrmPadrao& form) {
    toggle(form.txtgrade1.locked);
    toggle(form.txtgrade2.locked);
    toggle(form.txttotgrade.locked);
}

// A list keeps its arrow keys to walk through its entries.
void enterList(FrmPadrao& form) {
    form.KeyPreview = false;
}

KeyCode listKey(FrmPadrao& form, KeyCode key) {
    if (key == key::enter) {
        proximo(form, key);
    }
    return key;
}

void reloadOrder(FrmPadrao& form) {
    form.cmb_referencia.clear();
    carrega_pedido(form);
}

void setTotalCaptions(FrmPadrao& form) {
    const bool accessory = form.cmbtipo.text == tipo::acessorio;
    form.Label71.caption = accessory ? u"Total de Itens" : u"Total de Pares";
    form.Label72.visible = !accessory;
    form.TXTOCULTAS.visible = !accessory;
}

} // namespace

void entra1(TextField& field) {
    field.back_colour = light_yellow;
    seleciona(field);
}

void sai1(TextField& field) {
    field.back_colour = white;
}

void seleciona(TextField& field) {
    field.selection = {0, field.text.size()};
}

void proximo(FrmPadrao& form, KeyCode key_code) {
    skip([&] {
        if (key_code == key::enter || key_code == key::arrow_down) {
            form.platform.focus.tabForward();
        } else if (key_code == key::arrow_up) {
            form.platform.focus.tabBackward();
        }
    });
}

KeyCode Numero(KeyCode key) {
    const bool passes = key == key::select_all || key == key::backspace || isNumeric(key);
    return passes ? key : key::none;
}

KeyCode Mais(KeyCode key) {
    return upperCase(key);
}

void FrmPadrao_keydown(FrmPadrao& form, KeyCode key_code) {
    if (form.KeyPreview) {
        proximo(form, key_code);
    }
}

void cmbtipo_enter(FrmPadrao& form) {
    enterList(form);
}

KeyCode cmbtipo_key(FrmPadrao& form, KeyCode key) {
    return listKey(form, key);
}

void cmbtipo_leave(FrmPadrao& form) {
    form.KeyPreview = true;
    if (isBlank(form.txtarquivo.text)) {
        return;
    }
    reloadOrder(form);
    setTotalCaptions(form);
}

void cmb_referencia_enter(FrmPadrao& form) {
    enterList(form);
}

KeyCode cmb_referencia_key(FrmPadrao& form, KeyCode key) {
    return listKey(form, key);
}

void cmb_referencia_leave(FrmPadrao& form) {
    form.KeyPreview = true;
    if (!isBlank(form.cmb_referencia.text)) {
        // The caption is the switch, not the kind: a kind changed without a reload keeps the
        // loader.
        familyOfCaption(form.Frame1.caption).loadItem(form);
    }
}

void cmb_referencia1_enter(FrmPadrao& form) {
    enterList(form);
}

KeyCode cmb_referencia1_key(FrmPadrao& form, KeyCode key) {
    return listKey(form, key);
}

void cmb_referencia1_leave(FrmPadrao& form) {
    form.KeyPreview = true;
    if (!isBlank(form.cmb_referencia1.text)) {
        carrega_corrugado(form);
    }
}

void txtarquivo_enter(FrmPadrao& form) {
    entra1(form.txtarquivo);
}

KeyCode txtarquivo_key(FrmPadrao& form, KeyCode key) {
    if (key != key::enter) {
        return Mais(key);
    }
    reloadOrder(form);
    return key;
}

void txtarquivo_leave(FrmPadrao& form) {
    sai1(form.txtarquivo);
    if (!isBlank(form.txtarquivo.text)) {
        reloadOrder(form);
    }
}

void txtcliente_enter(FrmPadrao& form) {
    entra1(form.txtcliente);
}

KeyCode txtcliente_key(FrmPadrao& /*form*/, KeyCode key) {
    return Mais(key);
}

void txtcliente_leave(FrmPadrao& form) {
    sai1(form.txtcliente);
}

void txtcor_enter(FrmPadrao& form) {
    entra1(form.txtcor);
}

KeyCode txtcor_key(FrmPadrao& /*form*/, KeyCode key) {
    return Mais(key);
}

void txtcor_leave(FrmPadrao& form) {
    sai1(form.txtcor);
}

KeyCode txtlote_key(FrmPadrao& /*form*/, KeyCode key) {
    return Numero(key);
}

void txtnumero_enter(FrmPadrao& form, std::size_t slot) {
    entra1(form.txtnumero.at(slot));
}

KeyCode txtnumero_key(FrmPadrao& /*form*/, std::size_t /*slot*/, KeyCode key) {
    return Numero(key);
}

void txtnumero_leave(FrmPadrao& form, std::size_t slot) {
    sai1(form.txtnumero.at(slot));
    skip([&] { soma(form); });
}

void TXTOCULTAS_enter(FrmPadrao& form) {
    entra1(form.TXTOCULTAS);
}

KeyCode TXTOCULTAS_key(FrmPadrao& /*form*/, KeyCode key) {
    return Numero(key);
}

void TXTOCULTAS_leave(FrmPadrao& form) {
    sai1(form.TXTOCULTAS);
}

void txtgrade1_dblclick(FrmPadrao& form) {
    toggleSizeRun(form);
}

void txtgrade2_dblclick(FrmPadrao& form) {
    toggleSizeRun(form);
}

void txttotgrade_dblclick(FrmPadrao& form) {
    toggleSizeRun(form);
}

void Frame4_dblclick(FrmPadrao& form) {
    toggle(form.Frame2.visible);
}

} // namespace etiquetas
