#include "orders/ItemSlots.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "model/FrmPadrao.h"
#include "model/LabelCounts.h"
#include "platform/MessageBoxes.h"

#include <algorithm>

namespace etiquetas {

namespace {

// The hidden labels of a total may be more than 16 bits hold; they are only shown.
void showTotals(FrmPadrao& form, std::int16_t total) {
    form.TXTPARES.text = numberText(total);
    form.TXTOCULTAS.text = numberText(std::int32_t{total} * hidden_labels_per_pair);
}

std::int16_t sumOf(std::int16_t one, std::int16_t other) {
    return toInteger16(std::int32_t{one} + other);
}

} // namespace

void soma(FrmPadrao& form) {
    std::int16_t total = 0;
    for (const TextField& quantity : form.txtnumero) {
        if (!isBlank(quantity.text)) {
            total = sumOf(total, toInteger16(quantity.text));
        }
    }
    showTotals(form, total);
}

void OCULTA_ITENS(FrmPadrao& form) {
    for (std::size_t i = 0; i < total_slots; ++i) {
        form.Label7[i].caption.clear();
        form.Label7[i].visible = false;
        form.txtnumero[i].text.clear();
        form.txtnumero[i].visible = false;
    }
}

bool fillSlot(FrmPadrao& form, TextView size, TextView quantity) {
    auto* const free = std::find_if(form.Label7.begin(), form.Label7.end(),
                                    [](const Label& slot) { return isBlank(slot.caption); });
    if (free == form.Label7.end()) {
        return false;
    }
    free->caption = size;
    form.txtnumero[static_cast<std::size_t>(free - form.Label7.begin())].text = quantity;
    return true;
}

void tellSlotsAreFull(FrmPadrao& form) {
    form.platform.messages.show(
        {.text = u"Erro ao Preencher Dados.. Contate a Varesko e comunique o Erro no Pedido " +
                 form.txtarquivo.text,
         .symbol = Symbol::exclamation});
}

void EXIBE_ITENS(FrmPadrao& form) {
    std::int16_t addition = 0;
    if (form.Frame2.visible && !isBlank(form.txtlote.text)) {
        addition = toInteger16(form.txtlote.text);
    }
    std::int16_t total = 0;
    for (std::size_t i = 0; i < total_slots; ++i) {
        TextField& quantity = form.txtnumero[i];
        if (isBlank(quantity.text)) {
            continue;
        }
        form.Label7[i].visible = true;
        quantity.visible = true;
        quantity.locked = false;
        const std::int16_t sum = sumOf(toInteger16(quantity.text), addition);
        quantity.text = numberText(sum);
        total = sumOf(total, sum);
    }
    showTotals(form, total);
}

void limpa_objetos(FrmPadrao& form) {
    form.txtcodigo.text.clear();
    form.txtcor.text.clear();
    form.txtsemana.text.clear();
    form.txtbandeira.text.clear();
    form.txtpreco.text.clear();
    form.txtdescricao.text.clear();
    // The walk over the slots starts at index 14, where no slot stands, and ends there at once.
    throw subscriptOutOfRange();
}

void oculta_objetos(FrmPadrao& /*form*/) {}

} // namespace etiquetas
