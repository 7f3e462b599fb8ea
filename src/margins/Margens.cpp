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
#include <span>

namespace etiquetas {

namespace {

// A strip, so that one test shows both columns.
constexpr std::int16_t quantidade = 2;

// An entry field. Its default is a caption of the dialog, or a text where it has no caption.
struct Entry {
    TextField MargensDialog::*field;
    Label MargensDialog::*default_label;
    Margin margin;
    float FrmPadrao::*rule_origin = nullptr; // takes the margin too
};

constexpr TextView default_top = u"3";

constexpr std::array<Entry, 3> stripEntries(const std::array<Margin, 3>& margens) {
    return {{{&MargensDialog::txtmargem1, &MargensDialog::Label2, margens[0]},
             {&MargensDialog::txtmargem2, &MargensDialog::Label3, margens[1]},
             {&MargensDialog::txtmargemsuperior, nullptr, margens[2]}}};
}

constexpr auto entries_oculta = stripEntries(margens_oculta);
constexpr auto entries_caixa = stripEntries(margens_caixa);
constexpr std::array<Entry, 2> entries_pack{{
    {&MargensDialog::txtmargem1, &MargensDialog::Label2, margens_pack[0], &FrmPadrao::PackLinhaX},
    {&MargensDialog::txtmargemsuperior, nullptr, margens_pack[1], &FrmPadrao::PackLinhaY},
}};

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
                                   ref3(form), form.lblmaster.caption, form.lblbarra.caption,
                                   form.Label7[*slot].caption, quantidade,
                                   trimmed(form.txtcor.text));
        });
    }
}

void drawAccessory(FrmPadrao& form) {
    skip([&] {
        Imprime_Acessorio_40_20_2(form, form.marca_logo, descricao_cor(form), ref3(form),
                                  form.txtcodigo.text, form.lblbarra.caption, form.TXTPARES.text,
                                  form.txtpreco.text, quantidade, form.txtbandeira.text,
                                  form.txtsemana.text, form.txtpromocao.text);
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
        Imprime_40_45_2(form, form.marca_logo, descricao, trimmed(form.txtcor.text), ref3(form),
                        form.lblmaster.caption, form.lblbarra.caption, form.Label7[*slot].caption,
                        form.txtpreco.text, quantidade, trimmed(form.txtpromocao.text),
                        trimmed(form.txtsemana.text), form.txtbandeira.text);
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

// What is looked at once all margins are there. True where the test goes on.

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
        tellOperator(form.platform.messages, notice::sem_logotipo);
        return false;
    }
    if (isBlank(form.txtdescricao.text)) {
        tellOperator(form.platform.messages, notice::sem_item); // told only: the test goes on
    }
    return true;
}

bool beginCarton(FrmPadrao& /*form*/) {
    return true;
}

// What the dialogs differ in.
struct Calibration {
    MargensDialog FrmPadrao::*dialog;
    MargensDialog (*design)();
    std::span<const Entry> entries;
    PageSize page;
    bool (*begin)(FrmPadrao&);
    void (*draw)(FrmPadrao&);
};

constexpr std::array<Calibration, 3> calibrations{{
    {&FrmPadrao::FrmMargensOcultaZPL2, FrmMargensOcultaZPL2_design, entries_oculta, pagina_oculta,
     beginStrip40x20, drawStrip40x20},
    {&FrmPadrao::FrmMargensCxZPL45, FrmMargensCxZPL45_design, entries_caixa, pagina_caixa,
     beginBoxFronts, drawBoxFront},
    {&FrmPadrao::FrmMargensPackZPL, FrmMargensPackZPL_design, entries_pack, pagina_pack,
     beginCarton, drawCarton},
}};

const Calibration& calibrationOf(const FrmPadrao& form, const MargensDialog& dialog) {
    return *std::find_if(calibrations.begin(), calibrations.end(),
                         [&](const Calibration& row) { return &(form.*row.dialog) == &dialog; });
}

TextView defaultOf(const MargensDialog& dialog, const Entry& entry) {
    return entry.default_label == nullptr ? default_top : (dialog.*entry.default_label).caption;
}

TextView typedOrDefault(const MargensDialog& dialog, const Entry& entry) {
    const Text& typed = (dialog.*entry.field).text;
    return isBlank(typed) ? defaultOf(dialog, entry) : typed;
}

void readFields(const FrmPadrao& form, MargensDialog& dialog, std::span<const Entry> entries) {
    const Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        return;
    }
    for (const Entry& entry : entries) {
        (dialog.*entry.field).text = LeIni(files, file, ini_section::margens, entry.margin.key, {});
    }
}

void fillBlankFields(MargensDialog& dialog, std::span<const Entry> entries) {
    for (const Entry& entry : entries) {
        Text& typed = (dialog.*entry.field).text;
        if (isBlank(typed)) {
            typed = defaultOf(dialog, entry);
        }
    }
}

void copyCode(const FrmPadrao& form, MargensDialog& dialog) {
    const Text& codigo = form.txtcodigo.text;
    if (dialog.txtcodigo) {
        dialog.txtcodigo->text = isBlank(codigo) ? sample_code : codigo;
    }
}

// Tells the operator where a margin is missing, and leads him to the first one.
bool marginsAreThere(FrmPadrao& form, const MargensDialog& dialog, std::span<const Entry> entries) {
    const auto blank = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return isBlank((dialog.*entry.field).text);
    });
    if (blank == entries.end()) {
        return true;
    }
    tellOperator(form.platform.messages, u"Informe a Margem...");
    skip([&] { form.platform.focus.moveTo(dialog.*blank->field); });
    return false;
}

// In memory only: the next Print command reads its margins anew.
void takeMargins(FrmPadrao& form, const MargensDialog& dialog, std::span<const Entry> entries) {
    for (const Entry& entry : entries) {
        skip([&] {
            const float margin = toSingle((dialog.*entry.field).text);
            form.*entry.margin.variable = margin;
            if (entry.rule_origin != nullptr) {
                form.*entry.rule_origin = margin;
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
    readFields(form, dialog, calibration.entries);
    fillBlankFields(dialog, calibration.entries);
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
    for (const Entry& entry : calibrationOf(form, dialog).entries) {
        const Text margin(typedOrDefault(dialog, entry));
        if (entry.default_label == nullptr) {
            (dialog.*entry.field).text = margin; // a default without a caption is shown here
        }
        GravaIni(files, ini_section::margens, entry.margin.key, margin, file);
    }
    dialog.open = false;
}

void cmd_teste_click(FrmPadrao& form, MargensDialog& dialog) {
    const Calibration& calibration = calibrationOf(form, dialog);
    if (!marginsAreThere(form, dialog, calibration.entries) || !calibration.begin(form)) {
        return;
    }
    selectChosenPrinter(form);
    useMillimetres(form);
    takeMargins(form, dialog, calibration.entries);
    setPage(form, calibration.page);
    useLabelFont(form);
    chooseBanner(form);
    calibration.draw(form);
    endJob(form);
}

void cmd_exit_click(FrmPadrao& /*form*/, MargensDialog& dialog) {
    dialog.open = false;
}

} // namespace etiquetas
