#include "workbench/Impressao.h"

#include "base/Failure.h"
#include "model/FrmPadrao.h"
#include "orders/GradeAcessorio.h"
#include "orders/GradeCorrugado.h"
#include "orders/GradeFc.h"
#include "orders/ItemSlots.h"
#include "workbench/ImpressaoRamos.h"
#include "workbench/Inicio.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

struct Branch {
    TextView kind;
    Course (*print)(FrmPadrao&);
};

// Any other kind prints nothing and goes on.
constexpr std::array<Branch, 4> branches{{
    {tipo::frente_de_caixa_100x40, printBoxFronts100x40},
    {tipo::frente_de_caixa, printBoxFronts},
    {tipo::oculta, printHiddenLabels},
    {tipo::acessorio, printAccessories},
}};

Course printLabels(FrmPadrao& form) {
    if (!form.Frame1.visible) {
        return printCartons(form);
    }
    if (checkCode(form, form.txtcodigo) == Course::ends) {
        return Course::ends;
    }
    const auto* const branch =
        std::find_if(branches.begin(), branches.end(),
                     [&](const Branch& row) { return row.kind == form.cmbtipo.text; });
    return branch == branches.end() ? Course::goes_on : branch->print(form);
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

// By the caption of the item panel, which is the switch, not the kind.
void loadNextBoxItem(FrmPadrao& form) {
    if (form.Frame1.caption == tipo::acessorio) {
        skip([&] { carrega_grade_Acessorio(form); });
        oculta_objetos(form);
    } else if (form.Frame1.caption != tipo::corrugado) {
        skip([&] { carrega_gradeFc(form); });
        oculta_objetos(form);
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
    if (printLabels(form) == Course::ends) {
        return;
    }
    if (form.ImpressaoFeita && !confirm(form, u"A Impressão está OK")) {
        return;
    }
    skip([&] { limpa_objetos(form); });
    goToNextItem(form);
}

} // namespace etiquetas
