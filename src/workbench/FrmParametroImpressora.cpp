#include "workbench/FrmParametroImpressora.h"

#include "base/Numbers.h"
#include "config/Settings.h"
#include "labels/LabelJob.h"
#include "support/Mod_Browse.h"
#include "workbench/FrmPadrao.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace etiquetas {

namespace {

// An option and the value that is stored for it.
struct Escolha {
    Option ParametroDialog::*option;
    TextView value;
};

constexpr std::array<Escolha, 2> linguagens{{
    {&ParametroDialog::optzpl, u"ZPL"},
    {&ParametroDialog::optppla, u"PPLA"},
}};
constexpr std::array<Escolha, 3> portas{{
    {&ParametroDialog::optParalela, u"Paralela"},
    {&ParametroDialog::optSerial, u"Serial"},
    {&ParametroDialog::optUsb, u"USB"},
}};
constexpr std::array<Escolha, 4> ocultas{{
    {&ParametroDialog::optoculta1, u"3"},
    {&ParametroDialog::optoculta2, u"7"},
    {&ParametroDialog::optoculta3, u"8"},
    {&ParametroDialog::optoculta4, u"2"},
}};
constexpr std::array<Escolha, 2> frentes{{
    {&ParametroDialog::optfrentecaixa1, u"40_45_2"},
    {&ParametroDialog::optfrentecaixa2, u"45_40_2"},
}};

// The panel of each port.
struct Painel {
    Option ParametroDialog::*option;
    Panel ParametroDialog::*panel;
};
constexpr std::array<Painel, 3> paineis{{
    {&ParametroDialog::optParalela, &ParametroDialog::FrameParalela},
    {&ParametroDialog::optUsb, &ParametroDialog::FrameUSB},
    {&ParametroDialog::optSerial, &ParametroDialog::FrameSerial},
}};

// Selects the option of the value; where no option has it the other one, or none at all.
void seleciona_opcao(ParametroDialog& dialog, std::span<const Escolha> group, TextView value,
                     Option ParametroDialog::*other) {
    const auto row = std::find_if(group.begin(), group.end(),
                                  [&](const Escolha& choice) { return choice.value == value; });
    const auto selected = row == group.end() ? other : row->option;
    for (const Escolha& choice : group) {
        (dialog.*choice.option).selected = choice.option == selected;
    }
}

std::optional<TextView> valor_selecionado(const ParametroDialog& dialog,
                                          std::span<const Escolha> group) {
    const auto row = std::find_if(group.begin(), group.end(), [&](const Escolha& choice) {
        return (dialog.*choice.option).selected;
    });
    return row == group.end() ? std::nullopt : std::optional(row->value);
}

void mostra_somente(ParametroDialog& dialog, Panel ParametroDialog::*shown) {
    for (const Painel& painel : paineis) {
        (dialog.*painel.panel).visible = painel.panel == shown;
    }
}

void preenche(ListField& list, TextView port, int count) {
    list.clear();
    for (int number = 1; number <= count; ++number) {
        list.entries.push_back(Text(port).append(numberText(number)));
    }
    list.choose(0);
}

// The row stays where no row is just like the value.
void escolhe_linha(ListField& list, TextView value) {
    const auto row = std::find(list.entries.begin(), list.entries.end(), value);
    if (row != list.entries.end()) {
        list.choose(static_cast<int>(row - list.entries.begin()));
    }
}

void grava(FrmPadrao& form, TextView key, TextView value) {
    Files& files = form.platform.files;
    GravaIni(files, secao::impressora, key, value, caminho_ini(files));
}

void substitui_pasta_inexistente(FrmPadrao& form) {
    const Files& files = form.platform.files;
    Text& folder = form.FrmParametroImpressora.TXTPATH.text;
    if (!isBlank(folder) && !files.folderExists(folder)) {
        folder = files.programFolder();
    }
}

void grava_linguagem(FrmPadrao& form) {
    const auto linguagem = valor_selecionado(form.FrmParametroImpressora, linguagens);
    form.lbllinguagem.caption = linguagem.value_or(u"PPLA");
    grava(form, u"Linguagem", form.lbllinguagem.caption);
}

void grava_porta(FrmPadrao& form) {
    const TextView porta = valor_selecionado(form.FrmParametroImpressora, portas).value_or(u"USB");
    grava(form, u"Porta", porta);
    form.lblporta.caption = upperCase(porta);
}

// Whichever port is selected.
void grava_ajustes_das_portas(FrmPadrao& form) {
    const ParametroDialog& dialog = form.FrmParametroImpressora;
    grava(form, u"PortaSerial", dialog.cmbserial.text);
    grava(form, u"ConfiguracaoPortaSerial", dialog.txtserialconfiguracao.text);
    grava(form, u"PortaParalela", dialog.cmbparalela1.text);
    form.LBLPORTAPARELELA.caption = dialog.cmbparalela1.text;
    grava(form, u"PortaParalelaUSB", dialog.cmbparalela2.text);
    grava(form, u"NomeCompartilhamento", dialog.txtnomecompartilhamento.text);
}

void grava_pasta(FrmPadrao& form) {
    const Files& files = form.platform.files;
    Text& folder = form.FrmParametroImpressora.TXTPATH.text;
    if (files.folderExists(folder)) {
        form.lblpath.caption = folder;
    } else {
        avisa(form, u"O Local Padrão de busca do Arquivo é Inválido...");
        folder.clear();
        form.lblpath.caption = files.programFolder();
    }
    grava(form, u"Path", folder);
}

// A format that is not chosen stays as it is stored.
void grava_formato(FrmPadrao& form, TextView key, std::span<const Escolha> group, Label& shown) {
    if (const auto format = valor_selecionado(form.FrmParametroImpressora, group)) {
        grava(form, key, *format);
        shown.caption = *format;
    }
}

} // namespace

void FrmParametroImpressora_load(FrmPadrao& form) {
    constexpr int parallel_ports = 5;
    constexpr int serial_ports = 9;
    ParametroDialog& dialog = form.FrmParametroImpressora;
    dialog = {};
    preenche(dialog.cmbparalela1, u"Lpt", parallel_ports);
    preenche(dialog.cmbparalela2, u"Lpt", parallel_ports);
    preenche(dialog.cmbserial, u"Com", serial_ports);
}

void FrmParametroImpressora_activate(FrmPadrao& form) {
    if (!form.ParametrosCarregados) {
        form.ParametrosCarregados = true;
        load_parametros(form);
    }
}

void load_parametros(FrmPadrao& form) {
    const Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    if (!files.fileExists(file)) {
        return;
    }
    ParametroDialog& dialog = form.FrmParametroImpressora;
    const auto le = [&](TextView key) { return LeIni(files, file, secao::impressora, key, {}); };
    seleciona_opcao(dialog, linguagens, le(u"Linguagem"), &ParametroDialog::optzpl);
    dialog.TXTPATH.text = le(u"Path");
    escolhe_linha(dialog.cmbserial, le(u"PortaSerial"));
    dialog.txtserialconfiguracao.text = le(u"ConfiguracaoPortaSerial");
    escolhe_linha(dialog.cmbparalela2, le(u"PortaParalelaUSB"));
    dialog.txtnomecompartilhamento.text = le(u"NomeCompartilhamento");
    escolhe_linha(dialog.cmbparalela1, le(u"PortaParalela"));
    seleciona_opcao(dialog, portas, le(u"Porta"), &ParametroDialog::optUsb);
    Oculta_Frame(form);
    seleciona_opcao(dialog, ocultas, le(u"TipoOculta"), nullptr);
    seleciona_opcao(dialog, frentes, le(u"TipoFrenteCaixa"), &ParametroDialog::optfrentecaixa1);
    dialog.TXTPATH.tooltip = dialog.TXTPATH.text;
}

void Oculta_Frame(FrmPadrao& form) {
    ParametroDialog& dialog = form.FrmParametroImpressora;
    for (const Painel& painel : paineis) {
        if ((dialog.*painel.option).selected) {
            mostra_somente(dialog, painel.panel);
        }
    }
}

void CMD_GETPATH_click(FrmPadrao& form) {
    const Text folder =
        BrowseFolder(form.platform.folders, u"Selecione o Local Padrão para Busca dos Arquivos");
    if (!form.platform.files.folderExists(folder)) {
        avisa(form, u"O Local Selecionado é Inválido...");
        return;
    }
    TextField& field = form.FrmParametroImpressora.TXTPATH;
    field.text = folder;
    field.tooltip = folder;
}

void cmd_grava_click(FrmPadrao& form) {
    substitui_pasta_inexistente(form);
    grava_linguagem(form);
    grava_porta(form);
    grava_ajustes_das_portas(form);
    grava_pasta(form);
    grava_formato(form, u"TipoOculta", ocultas, form.lbloculta);
    grava_formato(form, u"TipoFrenteCaixa", frentes, form.frentecaixa);
    ParametroDialog& dialog = form.FrmParametroImpressora;
    form.lblcompartilhamento.caption = dialog.txtnomecompartilhamento.text;
    apaga_comando(form.platform.files);
    dialog.open = false;
}

void FrmParametroImpressora_cmd_sair_click(FrmPadrao& form) {
    form.FrmParametroImpressora.open = false;
}

} // namespace etiquetas
