#include "workbench/Dialogos.h"

#include "margins/Margens.h"
#include "model/FrmPadrao.h"
#include "platform/MessageBoxes.h"
#include "workbench/FrmParametroImpressora.h"
#include "workbench/LabelKinds.h"

namespace etiquetas {

namespace {

template <typename Dialog, typename Load>
void openDialog(Dialog& dialog, Load&& load) {
    if (dialog.open) {
        dialog.to_front = true;
        return;
    }
    load();
    dialog.open = true;
}

} // namespace

void cmd_calibra_click(FrmPadrao& form) {
    if (isBlank(form.cmb_referencia1.text) && isBlank(form.cmb_referencia.text)) {
        tellOperator(form.platform.messages, u"Selecione um Pedido para realizar a Calibragem...");
        return;
    }
    const LabelKind* const kind = labelKind(form.cmbtipo.text);
    if (kind != nullptr && kind->stock->dialog != nullptr) {
        MargensDialog& dialog = form.*kind->stock->dialog;
        openDialog(dialog, [&] { margens_load(form, dialog); });
    }
}

void cmd_parametro_click(FrmPadrao& form) {
    openDialog(form.FrmParametroImpressora, [&] {
        FrmParametroImpressora_load(form);
        FrmParametroImpressora_activate(form);
    });
}

} // namespace etiquetas
