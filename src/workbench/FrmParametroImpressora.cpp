#include "workbench/FrmParametroImpressora.h"

#include "base/Numbers.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "platform/MessageBoxes.h"
#include "support/Mod_Browse.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace etiquetas {

namespace {

// An option and the value that is stored for it.
struct Choice {
    Option ParametroDialog::*option;
    TextView value;
};

constexpr std::array<Choice, 2> languages{{
    {&ParametroDialog::optzpl, u"ZPL"},
    {&ParametroDialog::optppla, u"PPLA"},
}};
constexpr std::array<Choice, 3> ports{{
    {&ParametroDialog::optParalela, u"Paralela"},
    {&ParametroDialog::optSerial, u"Serial"},
    {&ParametroDialog::optUsb, u"USB"},
}};
constexpr std::array<Choice, 4> hidden_formats{{
    {&ParametroDialog::optoculta1, u"3"},
    {&ParametroDialog::optoculta2, u"7"},
    {&ParametroDialog::optoculta3, u"8"},
    {&ParametroDialog::optoculta4, u"2"},
}};
constexpr std::array<Choice, 2> box_front_formats{{
    {&ParametroDialog::optfrentecaixa1, u"40_45_2"},
    {&ParametroDialog::optfrentecaixa2, u"45_40_2"},
}};

// The panel of each port.
struct PortPanel {
    Option ParametroDialog::*option;
    Panel ParametroDialog::*panel;
};
constexpr std::array<PortPanel, 3> port_panels{{
    {&ParametroDialog::optParalela, &ParametroDialog::FrameParalela},
    {&ParametroDialog::optUsb, &ParametroDialog::FrameUSB},
    {&ParametroDialog::optSerial, &ParametroDialog::FrameSerial},
}};

// Selects the option that stands for the value; where none does, `other`, which may be null.
void selectOption(ParametroDialog& dialog, std::span<const Choice> group, TextView value,
                  Option ParametroDialog::*other) {
    const auto row = std::find_if(group.begin(), group.end(),
                                  [&](const Choice& choice) { return choice.value == value; });
    const auto selected = row == group.end() ? other : row->option;
    for (const Choice& choice : group) {
        (dialog.*choice.option).selected = choice.option == selected;
    }
}

std::optional<TextView> selectedValue(const ParametroDialog& dialog,
                                      std::span<const Choice> group) {
    const auto row = std::find_if(group.begin(), group.end(), [&](const Choice& choice) {
        return (dialog.*choice.option).selected;
    });
    return row == group.end() ? std::nullopt : std::optional(row->value);
}

void showOnly(ParametroDialog& dialog, Panel ParametroDialog::*shown) {
    for (const PortPanel& row : port_panels) {
        (dialog.*row.panel).visible = row.panel == shown;
    }
}

void fill(ListField& list, TextView port, int count) {
    list.clear();
    for (int number = 1; number <= count; ++number) {
        list.entries.push_back(Text(port).append(numberText(number)));
    }
    list.choose(0);
}

// Without a row of exactly that text the chosen row stays.
void chooseRow(ListField& list, TextView value) {
    const auto row = std::find(list.entries.begin(), list.entries.end(), value);
    if (row != list.entries.end()) {
        list.choose(static_cast<int>(row - list.entries.begin()));
    }
}

void store(FrmPadrao& form, TextView key, TextView value) {
    Files& files = form.platform.files;
    GravaIni(files, ini_section::impressora, key, value, settingsPath(files));
}

void replaceMissingFolder(FrmPadrao& form) {
    const Files& files = form.platform.files;
    Text& folder = form.FrmParametroImpressora.TXTPATH.text;
    if (!isBlank(folder) && !files.folderExists(folder)) {
        folder = files.programFolder();
    }
}

void storeLanguage(FrmPadrao& form) {
    const auto language = selectedValue(form.FrmParametroImpressora, languages);
    form.lbllinguagem.caption = language.value_or(u"PPLA");
    store(form, printer_key::language, form.lbllinguagem.caption);
}

void storePort(FrmPadrao& form) {
    const TextView port = selectedValue(form.FrmParametroImpressora, ports).value_or(u"USB");
    store(form, printer_key::port, port);
    form.lblporta.caption = upperCase(port);
}

// Whichever port is selected.
void storePortSettings(FrmPadrao& form) {
    const ParametroDialog& dialog = form.FrmParametroImpressora;
    store(form, printer_key::serial_port, dialog.cmbserial.text);
    store(form, printer_key::serial_settings, dialog.txtserialconfiguracao.text);
    store(form, printer_key::parallel_port, dialog.cmbparalela1.text);
    form.LBLPORTAPARELELA.caption = dialog.cmbparalela1.text;
    store(form, printer_key::usb_port, dialog.cmbparalela2.text);
    store(form, printer_key::share, dialog.txtnomecompartilhamento.text);
}

void storeFolder(FrmPadrao& form) {
    const Files& files = form.platform.files;
    Text& folder = form.FrmParametroImpressora.TXTPATH.text;
    if (files.folderExists(folder)) {
        form.lblpath.caption = folder;
    } else {
        tellOperator(form.platform.messages, u"O Local Padrão de busca do Arquivo é Inválido...");
        folder.clear();
        form.lblpath.caption = files.programFolder();
    }
    store(form, printer_key::order_folder, folder);
}

// A format that is not chosen stays as it is stored.
void storeFormat(FrmPadrao& form, TextView key, std::span<const Choice> group, Label& shown) {
    if (const auto format = selectedValue(form.FrmParametroImpressora, group)) {
        store(form, key, *format);
        shown.caption = *format;
    }
}

} // namespace

void FrmParametroImpressora_load(FrmPadrao& form) {
    constexpr int parallel_ports = 5;
    constexpr int serial_ports = 9;
    ParametroDialog& dialog = form.FrmParametroImpressora;
    dialog = {};
    fill(dialog.cmbparalela1, u"Lpt", parallel_ports);
    fill(dialog.cmbparalela2, u"Lpt", parallel_ports);
    fill(dialog.cmbserial, u"Com", serial_ports);
}

void FrmParametroImpressora_activate(FrmPadrao& form) {
    if (!form.ParametrosCarregados) {
        form.ParametrosCarregados = true;
        load_parametros(form);
    }
}

void load_parametros(FrmPadrao& form) {
    const Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        return;
    }
    ParametroDialog& dialog = form.FrmParametroImpressora;
    const auto read = [&](TextView key) {
        return LeIni(files, file, ini_section::impressora, key, {});
    };
    selectOption(dialog, languages, read(printer_key::language), &ParametroDialog::optzpl);
    dialog.TXTPATH.text = read(printer_key::order_folder);
    chooseRow(dialog.cmbserial, read(printer_key::serial_port));
    dialog.txtserialconfiguracao.text = read(printer_key::serial_settings);
    chooseRow(dialog.cmbparalela2, read(printer_key::usb_port));
    dialog.txtnomecompartilhamento.text = read(printer_key::share);
    chooseRow(dialog.cmbparalela1, read(printer_key::parallel_port));
    selectOption(dialog, ports, read(printer_key::port), &ParametroDialog::optUsb);
    Oculta_Frame(form);
    selectOption(dialog, hidden_formats, read(printer_key::hidden_format), nullptr);
    selectOption(dialog, box_front_formats, read(printer_key::box_front_format),
                 &ParametroDialog::optfrentecaixa1);
    dialog.TXTPATH.tooltip = dialog.TXTPATH.text;
}

void Oculta_Frame(FrmPadrao& form) {
    ParametroDialog& dialog = form.FrmParametroImpressora;
    for (const PortPanel& row : port_panels) {
        if ((dialog.*row.option).selected) {
            showOnly(dialog, row.panel);
        }
    }
}

void CMD_GETPATH_click(FrmPadrao& form) {
    const Text folder =
        BrowseFolder(form.platform.folders, u"Selecione o Local Padrão para Busca dos Arquivos");
    if (!form.platform.files.folderExists(folder)) {
        tellOperator(form.platform.messages, u"O Local Selecionado é Inválido...");
        return;
    }
    TextField& field = form.FrmParametroImpressora.TXTPATH;
    field.text = folder;
    field.tooltip = folder;
}

void cmd_grava_click(FrmPadrao& form) {
    replaceMissingFolder(form);
    storeLanguage(form);
    storePort(form);
    storePortSettings(form);
    storeFolder(form);
    storeFormat(form, printer_key::hidden_format, hidden_formats, form.lbloculta);
    storeFormat(form, printer_key::box_front_format, box_front_formats, form.frentecaixa);
    ParametroDialog& dialog = form.FrmParametroImpressora;
    form.lblcompartilhamento.caption = dialog.txtnomecompartilhamento.text;
    deleteCommandFile(form.platform.files);
    dialog.open = false;
}

void FrmParametroImpressora_cmd_sair_click(FrmPadrao& form) {
    form.FrmParametroImpressora.open = false;
}

} // namespace etiquetas
