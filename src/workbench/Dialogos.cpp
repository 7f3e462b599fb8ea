#include "workbench/Dialogos.h"

#include "margins/Margens.h"
#include "model/FrmPadrao.h"
#include "platform/MessageBoxes.h"
#include "workbench/FrmParametroImpressora.h"

#include <array>

namespace etiquetas {

namespace {

struct CalibratedKind {
    TextView kind;
    MargensDialog FrmPadrao::*dialog;
};

constexpr std::array<CalibratedKind, 4> calibrated_kinds{{
    {tipo::acessorio, &FrmPadrao::FrmMargensOcultaZPL2},
    {tipo::oculta, &FrmPadrao::FrmMargensOcultaZPL2},
    {tipo::frente_de_caixa, &FrmPadrao::FrmMargensCxZPL45},
    {tipo::corrugado, &FrmPadrao::FrmMargensPackZPL},
}};

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
    for (const CalibratedKind& row : calibrated_kinds) {
        if (row.kind == form.cmbtipo.text) {
            MargensDialog& dialog = form.*row.dialog;
            openDialog(dialog, [&] { margens_load(form, dialog); });
        }
    }
}

void cmd_parametro_click(FrmPadrao& form) {
    openDialog(form.FrmParametroImpressora, [&] {
        FrmParametroImpressora_load(form);
        FrmParametroImpressora_activate(form);
    });
}

} // namespace etiquetas
