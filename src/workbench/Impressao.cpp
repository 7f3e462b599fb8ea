#include "workbench/Impressao.h"

#include "base/Failure.h"
#include "model/FrmPadrao.h"
#include "orders/GradeCorrugado.h"
#include "orders/ItemSlots.h"
#include "orders/OrderFamily.h"
#include "workbench/ImpressaoComum.h"
#include "workbench/Inicio.h"
#include "workbench/LabelKinds.h"

namespace etiquetas {

namespace {

// The panel that shows decides before the kind does: from the corrugated panel cartons are printed
// whatever the kind, and from the other one never. Nothing where the kind prints nothing.
const LabelKind* kindToPrint(const FrmPadrao& form) {
    const LabelKind* const cartons = labelKind(tipo::corrugado);
    if (!form.Frame1.visible) {
        return cartons;
    }
    const LabelKind* const kind = labelKind(form.cmbtipo.text);
    return kind == cartons ? nullptr : kind;
}

Course printLabels(FrmPadrao& form) {
    if (form.Frame1.visible && checkCode(form, form.txtcodigo) == Course::ends) {
        return Course::ends;
    }
    const LabelKind* const kind = kindToPrint(form);
    return kind == nullptr ? Course::goes_on : kind->print(form, *kind->stock);
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

// By the caption of the item panel, which is the switch, not the kind. The caption of the
// corrugated family loads nothing there.
void loadNextBoxItem(FrmPadrao& form) {
    const OrderFamily& family = familyOfCaption(form.Frame1.caption);
    if (family.name != family_name::corrugated) {
        skip([&] { family.loadItem(form); });
    }
}

void goToNextItem(FrmPadrao& form) {
    const bool corrugated = form.cmbtipo.text == tipo::corrugado;
    ListField& items = corrugated ? form.cmb_referencia1 : form.cmb_referencia;
    if (items.position < 0) {
        return;
    }
    dropChosen(form, items);
    if (isBlank(items.text)) {
        return;
    }
    if (corrugated) {
        skip([&] { carrega_corrugado(form); });
    } else {
        loadNextBoxItem(form);
    }
}

} // namespace

void cmd_printacessorio_click(FrmPadrao& form) {
    closeMarginDialogs(form);
    form.txtbarra.text.clear();
    form.ImpressaoFeita = true;
    form.labels_drawn = 0;
    if (printLabels(form) == Course::ends) {
        return;
    }
    if (form.ImpressaoFeita && !confirm(form, Text(closing_question))) {
        return;
    }
    skip([&] { limpa_objetos(form); });
    goToNextItem(form);
}

} // namespace etiquetas
