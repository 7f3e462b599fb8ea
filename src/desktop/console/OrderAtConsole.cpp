#include "desktop/console/OrderAtConsole.h"

#include "desktop/console/ConsoleText.h"
#include "desktop/machine/QtText.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFamily.h"
#include "workbench/Campos.h"
#include "workbench/LabelKinds.h"

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A kind that has no order files of its own is printed from those of the box fronts: the operator
// loads the order for them, and types the kind over theirs.
const LabelKind& kindThatLoads(const LabelKind& kind) {
    return kind.family.empty() ? *labelKind(tipo::frente_de_caixa) : kind;
}

} // namespace

// The order stands before the kind is chosen, so that the one of the last run isn't loaded first.
bool loadOrder(FrmPadrao& form, const QString& order, const QString& kind) {
    const LabelKind* const chosen = labelKind(toText(kind));
    if (chosen == nullptr) {
        return false;
    }
    form.txtarquivo.text = upperCase(toText(order));
    form.cmbtipo.type(Text(kindThatLoads(*chosen).name));
    txtarquivo_leave(form);
    form.cmbtipo.type(Text(chosen->name));
    if (!form.cmd_printacessorio.visible) {
        return false;
    }
    if (itemsOf(form).entries.empty()) {
        tell(u"O pedido \"%1\" não tem itens deste tipo de etiqueta."_s.arg(order));
        return false;
    }
    return true;
}

ListField& itemsOf(FrmPadrao& form) {
    const OrderFamily* const family = orderFamily(form.TipoArquivo);
    return family == nullptr ? form.cmb_referencia : form.*family->items;
}

void chooseItem(FrmPadrao& form, int place) {
    ListField& items = itemsOf(form);
    items.choose(place);
    if (&items == &form.cmb_referencia1) {
        cmb_referencia1_leave(form);
    } else {
        cmb_referencia_leave(form);
    }
}

} // namespace etiquetas
