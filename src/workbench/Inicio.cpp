#include "workbench/Inicio.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "base/Version.h"
#include "config/ProgramFiles.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "orders/ItemSlots.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Printers.h"
#include "support/ModAddFonte.h"
#include "workbench/LabelKinds.h"

namespace etiquetas {

namespace {

void listPrinters(FrmPadrao& form) {
    Printers& printers = form.platform.printers;
    form.CMBPRINTER.clear();
    int counter = 0;
    int found = 0;
    std::vector<Text> names;
    skip([&] { names = printers.names(); });
    Text default_name;
    skip([&] { default_name = printers.defaultName(); });
    for (const Text& name : names) {
        if (name == default_name) {
            found = counter;
        }
        form.CMBPRINTER.entries.push_back(name);
        ++counter;
    }
    skip([&] { form.CMBPRINTER.choose(found); });
    form.lblprinterdefault.caption = form.CMBPRINTER.text;
}

void ensurePhotographFolder(FrmPadrao& form) {
    Files& files = form.platform.files;
    skip([&] {
        const Text folder = joined(files, files.programFolder(), photograph_folder);
        if (!files.folderExists(folder)) {
            files.makeFolder(folder);
        }
    });
}

struct Logo {
    TextView file;
    TextView name; // as the message shows it
    PictureField FrmPadrao::*field;
    bool FrmPadrao::*loaded;
};

constexpr std::array<Logo, 2> logos{{
    {brisako_logo, u" Brisako.jpg", &FrmPadrao::pctlogo1, &FrmPadrao::LogoBrisakoOk},
    {lumira_logo, u" Lumira.jpg", &FrmPadrao::pctlogo2, &FrmPadrao::LogoLumiraOk},
}};

// False when the logo is not there; one that is no picture is left empty without a word.
bool loadLogo(FrmPadrao& form, const Logo& logo) {
    const Files& files = form.platform.files;
    const auto path = findFile(files, files.programFolder(), logo.file);
    if (!path) {
        return false;
    }
    skip([&] {
        (form.*logo.field).picture = form.platform.pictures.load(*path);
        form.*logo.loaded = true;
    });
    return true;
}

void loadLogos(FrmPadrao& form) {
    Text missing;
    for (const Logo& logo : logos) {
        form.*logo.loaded = false;
    }
    for (const Logo& logo : logos) {
        if (!loadLogo(form, logo)) {
            missing.append(u"\n").append(logo.name);
        }
    }
    if (!missing.empty()) {
        tellOperator(form.platform.messages,
                     u"O(s) arquivo(s): " + missing + u"\nNão foi(ram) localizado(s)!",
                     Symbol::stop);
    }
}

void fillKinds(FrmPadrao& form) {
    form.cmbtipo.clear();
    for (const LabelKind& kind : labelKinds()) {
        if (kind.offered) {
            form.cmbtipo.entries.emplace_back(kind.name);
        }
    }
    form.cmbtipo.choose(0);
}

void ensureSettings(FrmPadrao& form) {
    Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        gera_ini_base(files, file);
    }
}

void readSettings(FrmPadrao& form) {
    const Files& files = form.platform.files;
    const Text file = settingsPath(files);
    if (!files.fileExists(file)) {
        return;
    }
    const auto read = [&](TextView section, TextView key) {
        return LeIni(files, file, section, key, {});
    };
    form.txtcliente.text = read(ini_section::config, config_key::company);
    form.txtlote.text = read(ini_section::config, config_key::addition);
    form.txtarquivo.text = read(ini_section::config, config_key::order);
    form.lbloculta.caption = read(ini_section::impressora, printer_key::hidden_format);
    if (isBlank(form.lbloculta.caption)) {
        form.lbloculta.caption = Text(default_hidden_format);
    }
    form.lblcompartilhamento.caption = read(ini_section::impressora, printer_key::share);
    form.lblpath.caption = read(ini_section::impressora, printer_key::order_folder);
}

// Told behind all other steps, so that it comes between none of them.
void tellOfUtf16Settings(FrmPadrao& form) {
    if (!settingsAreUtf16(form.platform.files)) {
        return;
    }
    const Text text =
        u"O arquivo de configuração\n" + settingsPath(form.platform.files) +
        u"\nestá gravado em Unicode (UTF-16). Assim ele não é lido nem alterado.\n\n"
        u"Abra o arquivo no editor de textos, salve-o com a codificação ANSI (Windows-1252) e "
        u"inicie o programa de novo.";
    skip([&] {
        form.platform.messages.show(
            {.text = text, .symbol = Symbol::exclamation, .title = u"ATENÇÃO!!!"});
    });
}

Text versionText() {
    return u" [Versão: " + numberText(version_major) + u"." + numberText(version_minor) + u"." +
           numberText(version_patch) + u"]";
}

} // namespace

void FrmPadrao_load(FrmPadrao& form) {
    listPrinters(form);
    ensurePhotographFolder(form);
    form.tem_imagem = false;
    OCULTA_ITENS(form);
    loadLogos(form);
    fillKinds(form);
    FrmPadrao_resize(form);
    form.lblpath.caption = form.platform.files.programFolder();
    skip([&] { ensureSettings(form); });
    OCULTA_ITENS(form);
    form.cmb_referencia.clear();
    skip([&] { readSettings(form); });
    form.Caption += versionText();
    VerificaFontes(form.platform.surface, form.platform.pointer, form.platform.messages);
    form.NomeFonte = u"Estrangelo Edessa";
    tellOfUtf16Settings(form);
}

void FrmPadrao_resize(FrmPadrao& form) {
    constexpr int width_twips = 11250;
    constexpr int height_twips = 10065;
    form.Width = width_twips;
    form.Height = height_twips;
}

void FrmPadrao_unload(FrmPadrao& form) {
    closeMarginDialogs(form);
}

void closeMarginDialogs(FrmPadrao& form) {
    form.FrmMargensOcultaZPL2.open = false;
    form.FrmMargensCxZPL45.open = false;
    form.FrmMargensPackZPL.open = false;
}

} // namespace etiquetas
