#include "workbench/Impressao.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "labels/Cabecalho.h"
#include "labels/LabelJob.h"
#include "labels/Oculta.h"
#include "orders/Complemento.h"
#include "orders/GradeFc.h"
#include "orders/ItemSlots.h"
#include "platform/MessageBoxes.h"
#include "platform/PrintSurface.h"
#include "workbench/FrmPadrao.h"
#include "workbench/Inicio.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr std::size_t ref3_length = 3;

// Whether the command goes on behind a step, to its closing question in the end.
enum class Course : std::uint8_t { goes_on, ends };

void tell(FrmPadrao& form, Text text, Symbol symbol = Symbol::none) {
    skip([&] { form.platform.messages.show({.text = std::move(text), .symbol = symbol}); });
}

// True only on Yes.
bool confirmed(FrmPadrao& form, Text question) {
    Answer answer = Answer::no;
    skip([&] {
        answer = form.platform.messages.show(
            {.text = std::move(question), .symbol = Symbol::question, .buttons = Buttons::yes_no});
    });
    return answer == Answer::yes;
}

// An item without a colour is printed only when the operator wants it so.
Course askForMissingColour(FrmPadrao& form, const TextField& colour) {
    const bool may_print =
        !isBlank(colour.text) || confirmed(form, u"O Item está sem COR!, Imprimir mesmo assim");
    return may_print ? Course::goes_on : Course::ends;
}

// A job ends on its own printer, and the default printer is the current one again.
void endJob(FrmPadrao& form) {
    skip([&] { form.platform.surface.EndDoc(); });
    skip([&] { SelecionaImpressora(form, form.lblprinterdefault.caption); });
}

void beginHiddenJob(FrmPadrao& form) {
    skip([&] { SelecionaImpressora(form, form.CMBPRINTER.text); });
    form.coluna_etiqueta = 1;
    prepara_superficie(form, pagina_oculta);
    skip([&] { le_margens(form, margens_oculta); });
    skip([&] { form.platform.surface.FontName(form.NomeFonte); });
    escolhe_marca(form);
}

// The labels of one size: two for each pair.
void printHiddenSlot(FrmPadrao& form, std::size_t slot) {
    constexpr std::int32_t labels_per_pair = 2;
    const std::int16_t pairs = toInteger16(form.txtnumero[slot].text);
    Imprime_Oculta_40_20_2(form, form.marca_logo, trimmed(form.txtdescricao.text),
                           right(form.txtcodigo.text, ref3_length), form.lblmaster.caption,
                           form.lblbarra.caption, form.Label7[slot].caption,
                           toInteger16(pairs * labels_per_pair), form.txtcor.text);
}

// A size without its codes ends the command; its job stays open as far as it has gone.
Course printHiddenSlots(FrmPadrao& form) {
    for (std::size_t slot = 0; slot < total_slots; ++slot) {
        if (isBlank(form.txtnumero[slot].text)) {
            continue;
        }
        skip([&] { ret_codcomplemento(form, form.Label7[slot].caption); });
        if (isBlank(form.lblmaster.caption) || isBlank(form.lblbarra.caption)) {
            tell(form, u"Erro - 1012 - Código Master - Contate Suporte ");
            return Course::ends;
        }
        skip([&] { printHiddenSlot(form, slot); });
    }
    return Course::goes_on;
}

Course printHidden(FrmPadrao& form) {
    if (askForMissingColour(form, form.txtcor) == Course::ends) {
        return Course::ends;
    }
    if (isBlank(form.TXTOCULTAS.text)) {
        tell(form, u"Quantidade de Etiquetas Ocultas - Inválida", Symbol::exclamation);
        return Course::ends;
    }
    beginHiddenJob(form);
    if (form.Frame2.visible) {
        skip([&] { Imprime_CabecAlho(form, u"OCULTA"); });
    }
    if (printHiddenSlots(form) == Course::ends) {
        return Course::ends;
    }
    endJob(form);
    return Course::goes_on;
}

// Kinds whose labels this version does not draw yet.
constexpr std::array<TextView, 3> kinds_to_come{u"Frente de Caixa100x40", tipo::frente_de_caixa,
                                                tipo::acessorio};

// An item that was not drawn must not leave its list as a printed one.
Course refuseKind(FrmPadrao& form) {
    tell(form, u"Esta versão ainda não imprime este tipo de etiqueta.", Symbol::exclamation);
    return Course::ends;
}

Course printLabels(FrmPadrao& form) {
    if (!form.Frame1.visible) {
        return refuseKind(form);
    }
    if (isBlank(form.txtcodigo.text)) {
        tell(form, u"Código Inválido");
        return Course::ends;
    }
    const Text& kind = form.cmbtipo.text;
    if (std::find(kinds_to_come.begin(), kinds_to_come.end(), kind) != kinds_to_come.end()) {
        return refuseKind(form);
    }
    return kind == tipo::oculta ? printHidden(form) : Course::goes_on;
}

// Takes the chosen item off its list, and one line off the order: the one at the same position,
// which need not be a line of that item. The first of the items left is chosen.
void dropChosen(FrmPadrao& form, ListField& items) {
    const int position = items.position;
    skip([&] { items.remove(position); });
    skip([&] { form.List1.remove(position); });
    if (!items.entries.empty()) {
        skip([&] { items.choose(0); });
        skip([&] { form.List1.choose(0); });
    }
}

void goToNextItem(FrmPadrao& form) {
    ListField& items =
        form.cmbtipo.text == tipo::corrugado ? form.cmb_referencia1 : form.cmb_referencia;
    if (items.position < 0) {
        return;
    }
    dropChosen(form, items);
    const bool box_item = form.cmbtipo.text != tipo::corrugado &&
                          form.Frame1.caption != tipo::acessorio &&
                          form.Frame1.caption != tipo::corrugado;
    if (box_item && !isBlank(items.text)) {
        skip([&] { carrega_gradeFc(form); });
        oculta_objetos(form);
    }
}

} // namespace

void cmd_printacessorio_click(FrmPadrao& form) {
    fecha_margens(form);
    form.txtbarra.text.clear();
    form.ImpressaoFeita = true;
    if (printLabels(form) == Course::ends) {
        return;
    }
    if (form.ImpressaoFeita && !confirmed(form, u"A Impressão está OK")) {
        return;
    }
    skip([&] { limpa_objetos(form); });
    goToNextItem(form);
}

} // namespace etiquetas
