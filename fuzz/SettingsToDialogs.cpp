// Any bytes as the settings file: every dialog opens over them, stores, and shows again what it has
// stored; the start-up and the exit go on; what the program does not know stays.
//
// Input: the settings file.

#include "Machine.h"
#include "channel/FontesMargem.h"
#include "channel/MargensLinguagem.h"
#include "config/Profile.h"
#include "labels/JobSetup.h"
#include "margins/Margens.h"
#include "workbench/Dialogos.h"
#include "workbench/FrmParametroImpressora.h"
#include "workbench/Inicio.h"
#include "workbench/LabelKinds.h"
#include "workbench/Saida.h"

#include <cmath>

namespace etiquetas::fuzz {

namespace {

// Keys that no part of the program knows, in sections that it does.
constexpr std::array<std::string_view, 3> known_sections{"Config", "Impressora",
                                                         "MargemOcultaZebra"};

struct Shop {
    explicit Shop(std::string_view settings) {
        furnish(machine, "LUMIRA");
        machine.bytes[settings_path] = settings;
    }

    [[nodiscard]] const std::string& settings() { return machine.bytes[settings_path]; }

    [[nodiscard]] std::vector<std::optional<std::string>> strangeValues() {
        std::vector<std::optional<std::string>> values{profileValue(settings(), "Alheio", "x")};
        for (const std::string_view section : known_sections) {
            values.push_back(profileValue(settings(), section, "x"));
        }
        return values;
    }

    // A text as it comes back once it has been stored: blanks and tabs around it are lost, one pair
    // of quotes, and what code page 1252 lacks. Nothing is written into a file of UTF-16: what it
    // showed, a default, it shows again.
    [[nodiscard]] Text afterStoring(TextView text) {
        if (isUtf16(settings())) {
            return Text(text);
        }
        const std::string file = withProfileValue("", "s", "k", toCodePage1252(text));
        return fromCodePage1252(profileValue(file, "s", "k").value());
    }

    Machine machine;
    FrmPadrao form{machine.platform()};
};

std::vector<TextView> textsOf(const MargensDialog& dialog, const Stock& stock) {
    std::vector<TextView> texts;
    for (const Margin& margin : stock.margins) {
        texts.emplace_back((dialog.*margin.entry.field).text);
    }
    return texts;
}

// Opened, stored and opened again, a dialog shows the same margins.
void checkMarginDialog(Shop& shop, const Stock& stock) {
    FrmPadrao& form = shop.form;
    MargensDialog& dialog = form.*stock.dialog;
    margens_load(form, dialog);
    for (const TextView text : textsOf(dialog, stock)) {
        require(!isBlank(text), "A margin that is not there has its default");
    }
    cmd_teste_click(form, dialog);
    margem_enter(dialog.txtmargem1);
    std::vector<Text> stored;
    for (const TextView text : textsOf(dialog, stock)) {
        stored.push_back(shop.afterStoring(text));
    }
    cmd_gravar_click(form, dialog);
    require(!dialog.open, "Storing closes the dialog");
    margens_load(form, dialog);
    const auto shown = textsOf(dialog, stock);
    for (std::size_t i = 0; i < stored.size(); ++i) {
        if (!isBlank(stored[i])) {
            requireEqual(shown[i], stored[i], "A stored margin is shown again");
        }
    }
    cmd_exit_click(form, dialog);
}

std::vector<Text> textsOf(const MargensLinguagem& dialog) {
    std::vector<Text> texts;
    for (const TextField& column : dialog.txtmargem1) {
        texts.push_back(column.text);
    }
    texts.push_back(dialog.txtmargemsuperior.value_or(TextField()).text);
    return texts;
}

void checkLanguageDialog(Shop& shop, MargensLinguagem dialog) {
    FrmPadrao& form = shop.form;
    MargensLinguagem_load(form, dialog);
    const auto opened = textsOf(dialog);
    MargensLinguagem_cmd_gravar(form, dialog);
    MargensLinguagem_load(form, dialog);
    const auto shown = textsOf(dialog);
    for (std::size_t i = 0; i < opened.size(); ++i) {
        const Text stored = shop.afterStoring(opened[i]);
        if (!isBlank(stored)) {
            requireEqual(shown[i], stored, "A stored margin of a language is shown again");
        }
    }
    MargensLinguagem_cmd_teste(form, dialog);
    require(shop.machine.bytes.contains(u"/programa/epltemp.prn"), "A test label is a job");
    txtmargem1_enter(dialog, 0);
    txtmargemsuperior_enter(dialog);
    require(txtmargem1_key(dialog, 0, u'.') == u',', "The keypad writes decimals");
    require(txtmargemsuperior_key(dialog, u'x') == key::none, "A letter is no part of a margin");
    MargensLinguagem_cmd_exit(dialog);
}

void checkLanguages(Shop& shop) {
    for (const TextView language : {u"ZPL", u"PPLA"}) {
        shop.form.lbllinguagem.caption = language;
        for (const auto& margins : {pega_margemoculta, pega_margemoculta7, pega_margemoculta8,
                                    pega_margemfc, pega_margemfc2, pega_margemcorrugado}) {
            for (const Text& column : margins(shop.form).colunas) {
                require(!isBlank(column), "Each column of a language has a margin");
            }
        }
    }
    for (const auto& make : {FrmMargensOcultaZPL, FrmMargensOculta7ZPL, FrmMargensOculta8ZPL,
                             FrmMargensOcultaPPLa, FrmMargensCxZPL}) {
        checkLanguageDialog(shop, make());
    }
}

// Both groups that always have a choice have one, and one panel shows.
void checkChoices(const ParametroDialog& dialog) {
    require(dialog.optzpl.selected != dialog.optppla.selected, "One language is chosen");
    require(dialog.optParalela.selected + dialog.optSerial.selected + dialog.optUsb.selected == 1,
            "One port is chosen");
    require(dialog.FrameParalela.visible + dialog.FrameSerial.visible + dialog.FrameUSB.visible ==
                1,
            "The panel of one port shows");
}

void checkParameters(Shop& shop) {
    FrmPadrao& form = shop.form;
    cmd_parametro_click(form);
    cmd_parametro_click(form);
    require(form.FrmParametroImpressora.to_front, "An open dialog comes to the front");
    checkChoices(form.FrmParametroImpressora);
    const ParametroDialog before = form.FrmParametroImpressora;
    cmd_grava_click(form);
    require(!form.FrmParametroImpressora.open, "Storing closes the dialog");
    load_parametros(form);
    const ParametroDialog& after = form.FrmParametroImpressora;
    checkChoices(after);
    require(before.optzpl.selected == after.optzpl.selected &&
                before.optSerial.selected == after.optSerial.selected &&
                before.optUsb.selected == after.optUsb.selected,
            "A stored choice is shown again");
    require(before.cmbserial.position == after.cmbserial.position &&
                before.cmbparalela1.position == after.cmbparalela1.position &&
                before.cmbparalela2.position == after.cmbparalela2.position,
            "A stored port is shown again");
    requireEqual(after.txtnomecompartilhamento.text,
                 shop.afterStoring(before.txtnomecompartilhamento.text),
                 "The share is shown again");
    shop.machine.picked = after.TXTPATH.text;
    CMD_GETPATH_click(form);
    FrmParametroImpressora_cmd_sair_click(form);
}

void checkJobSetup(Shop& shop) {
    for (const LabelKind& kind : labelKinds()) {
        readMargins(shop.form, *kind.stock);
        for (const Margin& margin : kind.stock->margins) {
            require(std::isfinite(shop.form.*margin.variable), "A margin is a number");
        }
    }
}

void checkDialogs(Shop& shop) {
    for (const LabelKind& kind : labelKinds()) {
        shop.form.cmbtipo.type(Text(kind.name));
        shop.form.cmb_referencia.type(u"x");
        cmd_calibra_click(shop.form);
        if (kind.stock->dialog != nullptr) {
            checkMarginDialog(shop, *kind.stock);
        }
    }
}

// What the operator leaves is there at the next start.
void checkNextStart(Shop& shop) {
    FrmPadrao& form = shop.form;
    cmd_sair_click(form);
    require(shop.machine.ended, "The exit ends the program");
    FrmPadrao next(shop.machine.platform());
    FrmPadrao_load(next);
    requireEqual(next.txtarquivo.text, shop.afterStoring(form.txtarquivo.text),
                 "The order is kept");
    requireEqual(next.txtcliente.text, shop.afterStoring(form.txtcliente.text),
                 "The company is kept");
    requireEqual(next.txtlote.text, shop.afterStoring(form.txtlote.text), "The addition is kept");
    require(!isBlank(next.lbloculta.caption), "There is a hidden format");
    FrmPadrao_unload(next);
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    fuzz::Shop shop(fuzz::bytesOf(data, size));
    const auto strange = shop.strangeValues();
    FrmPadrao_load(shop.form);
    fuzz::checkJobSetup(shop);
    fuzz::checkDialogs(shop);
    fuzz::checkParameters(shop);
    fuzz::checkLanguages(shop);
    fuzz::checkNextStart(shop);
    fuzz::require(shop.strangeValues() == strange, "What the program does not know stays");
    return 0;
}
