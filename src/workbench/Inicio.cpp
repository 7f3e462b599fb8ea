#include "workbench/Inicio.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "base/Version.h"
#include "config/Settings.h"
#include "orders/ItemSlots.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Printers.h"
#include "support/ModAddFonte.h"
#include "workbench/FrmPadrao.h"

namespace etiquetas {

namespace {

void lista_impressoras(FrmPadrao& form) {
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

void garante_pasta_de_imagens(FrmPadrao& form) {
    Files& files = form.platform.files;
    skip([&] {
        const Text folder = joined(files, files.programFolder(), u"imagens");
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
    {u"brisako.jpg", u" Brisako.jpg", &FrmPadrao::pctlogo1, &FrmPadrao::LogoBrisakoOk},
    {u"lumira.jpg", u" Lumira.jpg", &FrmPadrao::pctlogo2, &FrmPadrao::LogoLumiraOk},
}};

// False when the logo is not there; one that is no picture is left empty without a word.
bool carrega_logo(FrmPadrao& form, const Logo& logo) {
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

void carrega_logos(FrmPadrao& form) {
    Text missing;
    for (const Logo& logo : logos) {
        form.*logo.loaded = false;
    }
    for (const Logo& logo : logos) {
        if (!carrega_logo(form, logo)) {
            missing.append(u"\n").append(logo.name);
        }
    }
    if (!missing.empty()) {
        avisa(form.platform.messages,
              u"O(s) arquivo(s): " + missing + u"\nNão foi(ram) localizado(s)!", Symbol::stop);
    }
}

void preenche_tipos(FrmPadrao& form) {
    form.cmbtipo.clear();
    for (const TextView kind :
         {tipo::frente_de_caixa, tipo::corrugado, tipo::acessorio, tipo::oculta}) {
        form.cmbtipo.entries.emplace_back(kind);
    }
    form.cmbtipo.choose(0);
}

void garante_ajustes(FrmPadrao& form) {
    Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    if (!files.fileExists(file)) {
        gera_ini_base(files, file);
    }
}

void le_ajustes(FrmPadrao& form) {
    const Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    if (!files.fileExists(file)) {
        return;
    }
    const auto le = [&](TextView section, TextView key) {
        return LeIni(files, file, section, key, {});
    };
    form.txtcliente.text = le(secao::config, u"Referencia");
    form.txtlote.text = le(secao::config, u"Lote");
    form.txtarquivo.text = le(secao::config, u"arquivo");
    form.lbloculta.caption = le(secao::impressora, u"TipoOculta");
    if (isBlank(form.lbloculta.caption)) {
        form.lbloculta.caption = u"3";
    }
    form.lblcompartilhamento.caption = le(secao::impressora, u"NomeCompartilhamento");
    form.lblpath.caption = le(secao::impressora, u"Path");
}

Text versao() {
    return u" [Versão: " + numberText(version_major) + u"." + numberText(version_minor) + u"." +
           numberText(version_patch) + u"]";
}

} // namespace

void FrmPadrao_load(FrmPadrao& form) {
    lista_impressoras(form);
    garante_pasta_de_imagens(form);
    form.tem_imagem = false;
    OCULTA_ITENS(form);
    carrega_logos(form);
    // The two item panels stand one over the other; the window lays them out so.
    preenche_tipos(form);
    FrmPadrao_resize(form);
    form.lblpath.caption = form.platform.files.programFolder();
    skip([&] { garante_ajustes(form); });
    OCULTA_ITENS(form);
    form.cmb_referencia.clear();
    skip([&] { le_ajustes(form); });
    form.Caption += versao();
    VerificaFontes(form.platform.surface, form.platform.pointer, form.platform.messages);
    form.NomeFonte = u"Estrangelo Edessa";
}

void FrmPadrao_resize(FrmPadrao& form) {
    constexpr int width_twips = 11250;
    constexpr int height_twips = 10065;
    form.Width = width_twips;
    form.Height = height_twips;
}

void FrmPadrao_unload(FrmPadrao& form) {
    fecha_margens(form);
}

void fecha_margens(FrmPadrao& form) {
    form.FrmMargensOcultaZPL2.open = false;
    form.FrmMargensCxZPL45.open = false;
    form.FrmMargensPackZPL.open = false;
}

} // namespace etiquetas
