#include "desktop/windows/DialogTable.h"

#include "desktop/machine/QtText.h"
#include "desktop/windows/DialogWindow.h"
#include "desktop/windows/NamedWidgets.h"
#include "margins/Margens.h"
#include "model/FrmPadrao.h"
#include "workbench/FrmParametroImpressora.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace etiquetas {

namespace {

template <typename Dialog, typename Field>
struct Binding {
    const char* name;
    Field Dialog::*field;
};

template <typename Dialog>
struct CommandBinding {
    const char* name;
    Command Dialog::*field;
    void (*click)(FrmPadrao&, Dialog&);
};

constexpr Binding<MargensDialog, Label> margin_labels[] = {
    {"Label1", &MargensDialog::Label1}, {"Label2", &MargensDialog::Label2},
    {"Label3", &MargensDialog::Label3}, {"Label5", &MargensDialog::Label5},
    {"Label6", &MargensDialog::Label6},
};
constexpr Binding<MargensDialog, TextField> margin_fields[] = {
    {"txtmargem1", &MargensDialog::txtmargem1},
    {"txtmargem2", &MargensDialog::txtmargem2},
    {"txtmargemsuperior", &MargensDialog::txtmargemsuperior},
};
constexpr CommandBinding<MargensDialog> margin_commands[] = {
    {"cmd_gravar", &MargensDialog::cmd_gravar, cmd_gravar_click},
    {"cmd_teste", &MargensDialog::cmd_teste, cmd_teste_click},
    {"cmd_exit", &MargensDialog::cmd_exit, cmd_exit_click},
};

constexpr Binding<ParametroDialog, Label> parameter_labels[] = {
    {"Label6", &ParametroDialog::Label6},   {"Label7", &ParametroDialog::Label7},
    {"Label8", &ParametroDialog::Label8},   {"Label9", &ParametroDialog::Label9},
    {"Label10", &ParametroDialog::Label10},
};
constexpr CommandBinding<ParametroDialog> parameter_commands[] = {
    {"CMD_GETPATH", &ParametroDialog::CMD_GETPATH,
     [](FrmPadrao& form, ParametroDialog&) { CMD_GETPATH_click(form); }},
    {"cmd_grava", &ParametroDialog::cmd_grava,
     [](FrmPadrao& form, ParametroDialog&) { cmd_grava_click(form); }},
    {"cmd_sair", &ParametroDialog::cmd_sair,
     [](FrmPadrao& form, ParametroDialog&) { FrmParametroImpressora_cmd_sair_click(form); }},
};

// Finds widgets by name and gathers the rows.
template <typename Dialog>
class Table {
  public:
    Table(FrmPadrao& form, Dialog& dialog, const QWidget& window)
        : form_(form), dialog_(dialog), window_(window) {}

    template <typename Widget, typename Field, std::size_t count>
    void add(const Binding<Dialog, Field> (&bindings)[count]) {
        for (const auto& binding : bindings) {
            rows_.push_back(mirrored(widget<Widget>(binding.name), dialog_.*binding.field));
        }
    }

    template <std::size_t count>
    void add(const CommandBinding<Dialog> (&bindings)[count]) {
        for (const auto& binding : bindings) {
            FieldRow row = mirrored(widget<QPushButton>(binding.name), dialog_.*binding.field);
            row.click = [&form = form_, &dialog = dialog_, click = binding.click] {
                click(form, dialog);
            };
            rows_.push_back(std::move(row));
        }
    }

    // A field with its caption, which may be missing.
    FieldRow& addField(const char* name, TextField& field) {
        QLabel* const caption = captionOf(QString::fromLatin1(name), window_);
        rows_.push_back(mirrored(widget<QLineEdit>(name), caption, field));
        return rows_.back();
    }

    void add(const char* name, Panel& panel) {
        rows_.push_back(mirrored(widget<QGroupBox>(name), panel));
    }

    // The window shows the dialog's caption, and stands over the main window while it is open.
    BridgedWindow taken(DialogWindow& window, QWidget& main) {
        return {.window = &window,
                .rows = std::move(rows_),
                .push = [&dialog = dialog_, &window, &main] { show(dialog, window, main); },
                .keydown = {}};
    }

  private:
    template <typename Widget>
    Widget& widget(const char* name) const {
        return widgetNamed<Widget>(QString::fromLatin1(name), window_);
    }

    static void show(Dialog& dialog, DialogWindow& window, QWidget& main) {
        window.setWindowTitle(toQString(dialog.Caption));
        if (dialog.open && (window.isHidden() || dialog.to_front)) {
            window.openOver(main);
        } else if (!dialog.open && !window.isHidden()) {
            window.closeOver(main);
        }
        dialog.to_front = false;
    }

    FrmPadrao& form_;
    Dialog& dialog_;
    const QWidget& window_;
    std::vector<FieldRow> rows_;
};

} // namespace

BridgedWindow marginTable(FrmPadrao& form, MargensDialog& dialog, DialogWindow& window,
                          QWidget& main) {
    Table table(form, dialog, window);
    table.add("Frame1", dialog.Frame1);
    table.template add<QLabel>(margin_labels);
    for (const auto& binding : margin_fields) {
        TextField& field = dialog.*binding.field;
        FieldRow& row = table.addField(binding.name, field);
        row.enter = [&field] { margem_enter(field); };
        row.key = margem_key;
    }
    table.add(margin_commands);
    return table.taken(window, main);
}

BridgedWindow parameterTable(FrmPadrao& form, DialogWindow& window, QWidget& main) {
    ParametroDialog& dialog = form.FrmParametroImpressora;
    Table table(form, dialog, window);
    table.template add<QLabel>(parameter_labels);
    table.addField("TXTPATH", dialog.TXTPATH);
    table.add("Frame5", dialog.Frame5);
    table.add(parameter_commands);
    return table.taken(window, main);
}

} // namespace etiquetas
