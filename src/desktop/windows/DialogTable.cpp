#include "desktop/windows/DialogTable.h"

#include "desktop/machine/QtText.h"
#include "desktop/windows/Bindings.h"
#include "desktop/windows/DialogWindow.h"
#include "desktop/windows/WorkbenchWindow.h"
#include "margins/Margens.h"
#include "model/FrmPadrao.h"
#include "workbench/FrmParametroImpressora.h"

namespace etiquetas {

namespace {

template <TextField MargensDialog::*margin>
void enterMargin(FrmPadrao& /*form*/, MargensDialog& dialog) {
    margem_enter(dialog.*margin);
}

KeyCode filterMarginKey(FrmPadrao& /*form*/, MargensDialog& /*dialog*/, KeyCode key) {
    return margem_key(key);
}

template <TextField MargensDialog::*margin>
constexpr Handlers<FrmPadrao, MargensDialog> margin_events{.enter = enterMargin<margin>,
                                                           .key = filterMarginKey};

constexpr Binding<MargensDialog, FrmPadrao, MargensDialog> margin_bindings[] = {
    {"Frame1", &MargensDialog::Frame1},
    {"Label1", &MargensDialog::Label1},
    {"Label2", &MargensDialog::Label2},
    {"Label3", &MargensDialog::Label3},
    {"Label5", &MargensDialog::Label5},
    {"Label6", &MargensDialog::Label6},
    {"top_default", &MargensDialog::top_default},
    {"txtmargem1", &MargensDialog::txtmargem1, margin_events<&MargensDialog::txtmargem1>},
    {"txtmargem2", &MargensDialog::txtmargem2, margin_events<&MargensDialog::txtmargem2>},
    {"txtmargemsuperior", &MargensDialog::txtmargemsuperior,
     margin_events<&MargensDialog::txtmargemsuperior>},
    {"cmd_gravar", &MargensDialog::cmd_gravar, {.click = cmd_gravar_click}},
    {"cmd_teste", &MargensDialog::cmd_teste, {.click = cmd_teste_click}},
    {"cmd_exit", &MargensDialog::cmd_exit, {.click = cmd_exit_click}},
};

constexpr Binding<ParametroDialog, FrmPadrao> parameter_bindings[] = {
    {"Label6", &ParametroDialog::Label6},
    {"Label7", &ParametroDialog::Label7},
    {"Label8", &ParametroDialog::Label8},
    {"Label9", &ParametroDialog::Label9},
    {"Label10", &ParametroDialog::Label10},
    {"TXTPATH", &ParametroDialog::TXTPATH},
    {"Frame5", &ParametroDialog::Frame5},
    {"CMD_GETPATH", &ParametroDialog::CMD_GETPATH, {.click = CMD_GETPATH_click}},
    {"cmd_grava", &ParametroDialog::cmd_grava, {.click = cmd_grava_click}},
    {"cmd_sair", &ParametroDialog::cmd_sair, {.click = FrmParametroImpressora_cmd_sair_click}},
};

// The window shows the dialog's caption, and stands over the main window while the dialog is open.
template <typename Dialog>
void pushDialog(Dialog& dialog, DialogWindow& window, WorkbenchWindow& main) {
    window.setWindowTitle(toQString(dialog.Caption));
    if (dialog.open && (window.isHidden() || dialog.to_front)) {
        window.openOver(main);
    } else if (!dialog.open && !window.isHidden()) {
        window.closeOver(main);
    }
    dialog.to_front = false;
}

// A told caption that leaves the unit out shows it all the same.
void tellMillimetres(std::vector<FieldRow>& rows, const char* name, const char* shown_text) {
    for (FieldRow& row : rows) {
        if (row.widget->objectName() == QLatin1String(name)) {
            row.push = [push = std::move(row.push), widget = row.widget, shown_text] {
                push();
                const QString told = widget->property(shown_text).toString();
                widget->setProperty(shown_text, told + QStringLiteral(" (mm)"));
            };
        }
    }
}

template <typename Dialog>
BridgedWindow bridged(Dialog& dialog, DialogWindow& window, WorkbenchWindow& main,
                      WindowBinder& binder) {
    return {.window = &window,
            .rows = binder.takeRows(),
            .push = [&dialog, &window, &main] { pushDialog(dialog, window, main); },
            .keydown = {}};
}

} // namespace

BridgedWindow marginTable(FrmPadrao& form, MargensDialog& dialog, DialogWindow& window,
                          WorkbenchWindow& main) {
    WindowBinder binder(window);
    binder.add(margin_bindings, dialog, form, dialog);
    BridgedWindow table = bridged(dialog, window, main, binder);
    tellMillimetres(table.rows, "Label6", "text");
    return table;
}

BridgedWindow parameterTable(FrmPadrao& form, DialogWindow& window, WorkbenchWindow& main) {
    ParametroDialog& dialog = form.FrmParametroImpressora;
    WindowBinder binder(window);
    binder.add(parameter_bindings, dialog, form);
    BridgedWindow table = bridged(dialog, window, main, binder);
    tellMillimetres(table.rows, "Frame5", "title");
    return table;
}

} // namespace etiquetas
