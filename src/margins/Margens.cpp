#include "margins/Margens.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
#include "labels/Acessorio.h"
#include "labels/Corrugado.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
#include "labels/Oculta.h"
#include "model/FrmPadrao.h"
#include "orders/Complemento.h"
#include "platform/Focus.h"
#include "platform/MessageBoxes.h"
#include "support/Module1.h"

#include <algorithm>
#include <array>
#include <optional>

namespace etiquetas {

namespace {

// A strip, so that one test shows both columns.
constexpr std::int16_t quantidade = 2;

// The first size with a quantity and a barcode, whose codes it leaves in `lblbarra` and
// `lblmaster`.
std::optional<std::size_t> firstSize(FrmPadrao& form) {
    for (std::size_t slot = 0; slot < total_slots; ++slot) {
        if (isBlank(form.txtnumero[slot].text)) {
            continue;
        }
        skip([&] { ret_codcomplemento(form, form.Label7[slot].caption); });
        if (!isBlank(form.lblbarra.caption)) {
            return slot;
        }
    }
    return std::nullopt;
}

void drawHidden(FrmPadrao& form) {
    if (const auto slot = firstSize(form)) {
        skip([&] {
            Imprime_Oculta_40_20_2(form, form.marca_logo, trimmed(form.txtdescricao.text),
                                   endOfCode(form), form.lblmaster.caption, form.lblbarra.caption,
                                   form.Label7[*slot].caption, quantidade,
                                   trimmed(form.txtcor.text));
        });
    }
}

void drawAccessory(FrmPadrao& form) {
    skip([&] {
        Imprime_Acessorio_40_20_2(
            form, form.marca_logo, descriptionAndColour(form), endOfCode(form), form.txtcodigo.text,
            form.lblbarra.caption, form.TXTPARES.text, form.txtpreco.text, quantidade,
            form.txtbandeira.text, form.txtsemana.text, form.txtpromocao.text);
    });
}

void drawStrip40x20(FrmPadrao& form) {
    if (form.cmbtipo.text == tipo::oculta) {
        drawHidden(form);
    } else {
        drawAccessory(form);
    }
}

void drawBoxFront(FrmPadrao& form) {
    const auto slot = firstSize(form);
    if (!slot) {
        return;
    }
    fillMissingPrice(form);
    Text descricao(trimmed(form.txtdescricao.text));
    skip([&] {
        Imprime_40_45_2(form, form.marca_logo, descricao, trimmed(form.txtcor.text),
                        endOfCode(form), form.lblmaster.caption, form.lblbarra.caption,
                        form.Label7[*slot].caption, form.txtpreco.text, quantidade,
                        trimmed(form.txtpromocao.text), trimmed(form.txtsemana.text),
                        form.txtbandeira.text);
    });
}

// One carton: the first volume that the operator chose.
void drawCarton(FrmPadrao& form) {
    skip([&] {
        const std::int16_t volume = toInteger16(form.cmb_vol1.text);
        EtiPack(form, form.marca_logo, form.txtdestino1.text, form.txtarquivo.text,
                form.txtcodigo1.text, form.txtfornecedor1.text, form.txtdescricao1.text,
                form.txtcor1.text, form.txtprepack.text, form.txtgrade1.text, form.txtgrade2.text,
                form.txttotgrade.text, volume, volume, form.txtsemana1.text);
    });
}

// What a test print checks once all margins are typed in. True where it goes on.

bool beginStrip40x20(FrmPadrao& form) {
    form.coluna_etiqueta = 1;
    return true;
}

// The kind may have changed since the dialog was opened.
bool beginBoxFronts(FrmPadrao& form) {
    form.coluna_etiqueta = 1;
    if (form.cmbtipo.text != tipo::frente_de_caixa) {
        return false;
    }
    if (!hasLogos(form)) {
        tellOperator(form.platform.messages, notice::no_logo);
        return false;
    }
    if (isBlank(form.txtdescricao.text)) {
        tellOperator(form.platform.messages, notice::no_item); // told only: the test goes on
    }
    return true;
}

bool beginCarton(FrmPadrao& /*form*/) {
    return true;
}

// What the dialogs differ in.
struct Calibration {
    const Stock* stock;
    MargensDialog (*design)();
    bool (*begin)(FrmPadrao&);
    void (*draw)(FrmPadrao&);
};

constexpr std::array<Calibration, 3> calibrations{{
    {&stock_40x20, designOfHiddenMargins, beginStrip40x20, drawStrip40x20},
    {&stock_40x45, designOfBoxFrontMargins, beginBoxFronts, drawBoxFront},
    {&stock_carton, designOfCartonMargins, beginCarton, drawCarton},
}};

const Calibration& calibrationOf(const FrmPadrao& form, const MargensDialog& dialog) {
    return *std::find_if(calibrations.begin(), calibrations.end(), [&](const Calibration& row) {
        return &(form.*row.stock->dialog) == &dialog;
    });
}

// The caption of the dialog that shows it, where there is one.
Text defaultOf(const MargensDialog& dialog, const Margin& margin) {
    return margin.entry.default_label == nullptr ? numberText(margin.default_value)
                                                 : (dialog.*margin.entry.default_label).caption;
}

Text& typedIn(MargensDialog& dialog, const Margin& margin) {
    return (dialog.*margin.entry.field).text;
}

void readFields(const FrmPadrao& form, MargensDialog& dialog, const Stock& stock) {
    const Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        return;
    }
    for (const Margin& margin : stock.margins) {
        typedIn(dialog, margin) = LeIni(files, file, ini_section::margens, margin.key, {});
    }
}

void fillBlankFields(MargensDialog& dialog, const Stock& stock) {
    for (const Margin& margin : stock.margins) {
        Text& typed = typedIn(dialog, margin);
        if (isBlank(typed)) {
            typed = defaultOf(dialog, margin);
        }
    }
}

void copyCode(const FrmPadrao& form, MargensDialog& dialog) {
    const Text& codigo = form.txtcodigo.text;
    if (dialog.txtcodigo) {
        dialog.txtcodigo->text = isBlank(codigo) ? sample_code : codigo;
    }
}

// Tells the operator where a margin is missing, and leads them to the first one.
bool marginsAreThere(FrmPadrao& form, const MargensDialog& dialog, const Stock& stock) {
    const auto blank =
        std::find_if(stock.margins.begin(), stock.margins.end(), [&](const Margin& margin) {
            return isBlank((dialog.*margin.entry.field).text);
        });
    if (blank == stock.margins.end()) {
        return true;
    }
    tellOperator(form.platform.messages, u"Informe a Margem...");
    skip([&] { form.platform.focus.moveTo(dialog.*blank->entry.field); });
    return false;
}

// In memory only: the next Print command reads its margins anew.
void takeMargins(FrmPadrao& form, const MargensDialog& dialog, const Stock& stock) {
    for (const Margin& margin : stock.margins) {
        skip([&] {
            const float value = toSingle((dialog.*margin.entry.field).text);
            form.*margin.variable = value;
            if (margin.rule_origin != nullptr) {
                form.*margin.rule_origin = value;
            }
        });
    }
}

} // namespace

void margens_load(FrmPadrao& form, MargensDialog& dialog) {
    const Calibration& calibration = calibrationOf(form, dialog);
    dialog = calibration.design();
    // The top margin keeps the text that it is designed with.
    dialog.txtmargem1.text.clear();
    dialog.txtmargem2.text.clear();
    readFields(form, dialog, *calibration.stock);
    fillBlankFields(dialog, *calibration.stock);
    copyCode(form, dialog);
}

void margem_enter(TextField& field) {
    SelecionaTexto(field);
}

KeyCode margem_key(KeyCode key) {
    return SoDecimal(key);
}

void cmd_gravar_click(FrmPadrao& form, MargensDialog& dialog) {
    Files& files = form.platform.files;
    const Text file = settingsPath(files);
    for (const Margin& margin : calibrationOf(form, dialog).stock->margins) {
        Text& typed = typedIn(dialog, margin);
        const Text stored = isBlank(typed) ? defaultOf(dialog, margin) : typed;
        if (margin.entry.default_label == nullptr) {
            typed = stored; // a default that no label shows is shown here
        }
        GravaIni(files, ini_section::margens, margin.key, stored, file);
    }
    dialog.open = false;
}

void cmd_teste_click(FrmPadrao& form, MargensDialog& dialog) {
    const Calibration& calibration = calibrationOf(form, dialog);
    const Stock& stock = *calibration.stock;
    if (!marginsAreThere(form, dialog, stock) || !calibration.begin(form)) {
        return;
    }
    selectChosenPrinter(form);
    useMillimetres(form);
    takeMargins(form, dialog, stock);
    setPage(form, stock);
    useLabelFont(form);
    chooseBanner(form);
    calibration.draw(form);
    endJob(form);
}

void cmd_exit_click(FrmPadrao& /*form*/, MargensDialog& dialog) {
    dialog.open = false;
}

} // namespace etiquetas
