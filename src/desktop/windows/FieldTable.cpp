#include "desktop/windows/FieldTable.h"

#include "desktop/machine/QtText.h"
#include "desktop/windows/Bindings.h"
#include "desktop/windows/WorkbenchWindow.h"
#include "model/FrmPadrao.h"
#include "workbench/Campos.h"
#include "workbench/Dialogos.h"
#include "workbench/Impressao.h"
#include "workbench/Saida.h"

#include <QString>

#include <optional>

namespace etiquetas {

namespace {

constexpr Binding<FrmPadrao, FrmPadrao> bindings[] = {
    {"txtarquivo", &FrmPadrao::txtarquivo, {txtarquivo_enter, txtarquivo_key, txtarquivo_leave}},
    {"txtcodigo", &FrmPadrao::txtcodigo},
    {"txtcor", &FrmPadrao::txtcor, {txtcor_enter, txtcor_key, txtcor_leave}},
    {"txtdescricao", &FrmPadrao::txtdescricao},
    {"txtsemana", &FrmPadrao::txtsemana},
    {"txtbandeira", &FrmPadrao::txtbandeira},
    {"txtpreco", &FrmPadrao::txtpreco},
    {"txtpromocao", &FrmPadrao::txtpromocao},
    {"TXTPARES", &FrmPadrao::TXTPARES},
    {"TXTOCULTAS", &FrmPadrao::TXTOCULTAS, {TXTOCULTAS_enter, TXTOCULTAS_key, TXTOCULTAS_leave}},
    {"txtsemana1", &FrmPadrao::txtsemana1},
    {"txtcor1", &FrmPadrao::txtcor1},
    {"txtcodigo1", &FrmPadrao::txtcodigo1},
    {"txtqte1", &FrmPadrao::txtqte1},
    {"txtdescricao1", &FrmPadrao::txtdescricao1},
    {"txtprepack", &FrmPadrao::txtprepack},
    {"txtgrade1", &FrmPadrao::txtgrade1, {.dblclick = txtgrade1_dblclick}},
    {"txtgrade2", &FrmPadrao::txtgrade2, {.dblclick = txtgrade2_dblclick}},
    {"txttotgrade", &FrmPadrao::txttotgrade, {.dblclick = txttotgrade_dblclick}},
    {"txtfornecedor1", &FrmPadrao::txtfornecedor1},
    {"txtdestino1", &FrmPadrao::txtdestino1},
    {"txtvolume", &FrmPadrao::txtvolume},
    {"txtean", &FrmPadrao::txtean},
    {"txtlote", &FrmPadrao::txtlote, {.key = txtlote_key}},
    {"txtcliente", &FrmPadrao::txtcliente, {txtcliente_enter, txtcliente_key, txtcliente_leave}},
    {"cmbtipo", &FrmPadrao::cmbtipo, {cmbtipo_enter, cmbtipo_key, cmbtipo_leave}},
    {"cmb_referencia",
     &FrmPadrao::cmb_referencia,
     {cmb_referencia_enter, cmb_referencia_key, cmb_referencia_leave}},
    {"cmb_referencia1",
     &FrmPadrao::cmb_referencia1,
     {cmb_referencia1_enter, cmb_referencia1_key, cmb_referencia1_leave}},
    {"cmb_vol1", &FrmPadrao::cmb_vol1},
    {"cmb_vol2", &FrmPadrao::cmb_vol2},
    {"CMBPRINTER", &FrmPadrao::CMBPRINTER},
    {"LBLBRISAKO", &FrmPadrao::LBLBRISAKO},
    {"Label7_50", &FrmPadrao::Label7_50},
    {"Label71", &FrmPadrao::Label71},
    {"Label72", &FrmPadrao::Label72},
    {"lblean", &FrmPadrao::lblean},
    {"pctimage", &FrmPadrao::pctimage},
    {"pctlogo1", &FrmPadrao::pctlogo1},
    {"pctlogo2", &FrmPadrao::pctlogo2},
    {"Frame4", &FrmPadrao::Frame4, {.dblclick = Frame4_dblclick}},
    {"Frame1", &FrmPadrao::Frame1},
    {"Frame2", &FrmPadrao::Frame2},
    {"Frame3", &FrmPadrao::Frame3},
    {"cmd_printacessorio", &FrmPadrao::cmd_printacessorio, {.click = cmd_printacessorio_click}},
    {"cmd_calibra", &FrmPadrao::cmd_calibra, {.click = cmd_calibra_click}},
    {"cmd_parametro", &FrmPadrao::cmd_parametro, {.click = cmd_parametro_click}},
    {"cmd_sair", &FrmPadrao::cmd_sair, {.click = cmd_sair_click, .click_waits = true}},
};

void addSlots(WindowBinder& binder, FrmPadrao& form) {
    for (std::size_t i = 0; i < total_slots; ++i) {
        binder.add(QStringLiteral("Label7_%1").arg(i), form.Label7[i]);
        binder.add(QStringLiteral("txtnumero_%1").arg(i), form.txtnumero[i],
                   {.enter = [&form, i] { txtnumero_enter(form, i); },
                    .key = [&form, i](KeyCode key) { return txtnumero_key(form, i, key); },
                    .leave = [&form, i] { txtnumero_leave(form, i); }});
    }
}

// A label's banner is that of the shown name: by its first letter LUMIRA, else the other one.
std::optional<bool> bannerOf(const Label& name) {
    if (!name.visible) {
        return std::nullopt;
    }
    return name.caption.starts_with(u'L');
}

void pushWindow(const FrmPadrao& form, WorkbenchWindow& window) {
    window.setWindowTitle(toQString(form.Caption));
    window.showSize({form.Width, form.Height});
    window.showBanner(bannerOf(form.LBLBRISAKO));
}

bool previewKey(FrmPadrao& form, KeyCode key) {
    const bool previewed = form.KeyPreview;
    FrmPadrao_keydown(form, key);
    return previewed;
}

// By key as by a double click on it, which needs it to be there.
void unlockShownSizeRun(FrmPadrao& form) {
    if (form.Frame3.visible) {
        txtgrade1_dblclick(form);
    }
}

} // namespace

BridgedWindow fieldTable(FrmPadrao& form, WorkbenchWindow& window) {
    WindowBinder binder(window);
    addSlots(binder, form);
    binder.add(bindings, form, form);
    return {.window = &window,
            .rows = binder.takeRows(),
            .push = [&form, &window] { pushWindow(form, window); },
            .keydown = [&form](KeyCode key) { return previewKey(form, key); },
            .keys = {{Qt::Key_F2, [&form] { Frame4_dblclick(form); }},
                     {Qt::Key_F3, [&form] { unlockShownSizeRun(form); }}}};
}

} // namespace etiquetas
