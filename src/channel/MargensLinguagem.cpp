#include "channel/MargensLinguagem.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "channel/ChavesMargem.h"
#include "channel/EtiquetasDeTeste.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "support/Module1.h"

#include <span>

namespace etiquetas {

/// The top margin of a dialog: what the field starts with, what a blank one takes when the dialog
/// opens, and its key, whose default a blank field takes later.
struct MargemSuperior {
    TextView inicio;
    TextView padrao_ao_abrir;
    ChaveMargem margem;
};

enum class OrdemDasColunas : std::uint8_t { livre, crescente };

/// What one dialog has of its own.
struct ModeloDeMargens {
    TextView Caption;
    TextView Frame1;
    std::span<const ChaveMargem> colunas;
    OrdemDasColunas ordem = OrdemDasColunas::livre;
    std::optional<MargemSuperior> superior;
    bool tem_codigo = true;
    Programa (*teste)(const FrmPadrao&, const MargensLinguagem&);
    FimDoComando fim = FimDoComando::simples;
};

namespace {

constexpr TextView titulo_oculta_zpl = u"Calibrar Margens - Etiqueta Oculta - ZPL";

constexpr ModeloDeMargens modelo_oculta_zpl{
    .Caption = titulo_oculta_zpl,
    .Frame1 = u"Etiqueta 30x10x3",
    .colunas = colunas_oculta_zpl,
    .superior = MargemSuperior{u"30", u"30", superior_oculta_zpl},
    .teste = teste_oculta_zpl,
};
constexpr ModeloDeMargens modelo_oculta7_zpl{
    .Caption = titulo_oculta_zpl,
    .Frame1 = u"Etiqueta 10x30x7",
    .colunas = std::span(colunas_oculta8_zpl).first<7>(),
    .ordem = OrdemDasColunas::crescente,
    .superior = MargemSuperior{u"70", u"70", superior_oculta7_zpl},
    .teste = teste_oculta_virada_zpl,
};
constexpr ModeloDeMargens modelo_oculta8_zpl{
    .Caption = titulo_oculta_zpl,
    .Frame1 = u"Etiqueta 10x30x8",
    .colunas = colunas_oculta8_zpl,
    .ordem = OrdemDasColunas::crescente,
    .superior = MargemSuperior{u"70", u"70", superior_oculta8_zpl},
    .teste = teste_oculta_virada_zpl,
};
constexpr ModeloDeMargens modelo_oculta_ppla{
    .Caption = u"Calibrar Margens - Etiqueta Oculta - PPLA",
    .Frame1 = u"Etiqueta 30x10x3",
    .colunas = colunas_oculta_ppla,
    .teste = teste_oculta_ppla,
};
constexpr ModeloDeMargens modelo_frente_zpl{
    .Caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
    .Frame1 = u"Etiqueta 40x45x2",
    .colunas = colunas_frente_zpl,
    .superior = MargemSuperior{u"70", u"3", superior_frente_zpl},
    .tem_codigo = false,
    .teste = teste_frente_zpl,
    .fim = FimDoComando::com_avanco,
};

void fillBlank(TextField& field, TextView padrao) {
    if (isBlank(field.text)) {
        field.text = padrao;
    }
}

void fillBlankColumns(MargensLinguagem& dialogo) {
    for (std::size_t i = 0; i < dialogo.txtmargem1.size(); ++i) {
        fillBlank(dialogo.txtmargem1[i], dialogo.Label2[i].caption);
    }
}

void fillBlankTop(MargensLinguagem& dialogo) {
    if (dialogo.txtmargemsuperior) {
        fillBlank(*dialogo.txtmargemsuperior, dialogo.modelo.superior->margem.padrao);
    }
}

// What the fields hold before the settings file is read.
void resetFields(MargensLinguagem& dialogo) {
    for (TextField& margem : dialogo.txtmargem1) {
        margem.text.clear();
    }
    if (dialogo.txtmargemsuperior) {
        dialogo.txtmargemsuperior->text = dialogo.modelo.superior->inicio;
    }
}

void readStored(const Files& files, MargensLinguagem& dialogo) {
    const Text ini = settingsPath(files);
    if (!files.fileExists(ini)) {
        return;
    }
    const auto read = [&](const ChaveMargem& margem) {
        return LeIni(files, ini, ini_section::margens, margem.chave, {});
    };
    const ModeloDeMargens& modelo = dialogo.modelo;
    for (std::size_t i = 0; i < dialogo.txtmargem1.size(); ++i) {
        dialogo.txtmargem1[i].text = read(modelo.colunas[i]);
    }
    if (dialogo.txtmargemsuperior) {
        dialogo.txtmargemsuperior->text = read(modelo.superior->margem);
    }
}

// The columns can only grow to the right: one that stands before the column at its left takes its
// default. A column that is no number can't be compared, and stays.
void growToTheRight(MargensLinguagem& dialogo) {
    std::vector<TextField>& colunas = dialogo.txtmargem1;
    for (std::size_t i = 1; i < colunas.size(); ++i) {
        skip([&] {
            if (toInteger16(colunas[i].text) < toInteger16(colunas[i - 1].text)) {
                colunas[i].text = dialogo.Label2[i].caption;
            }
        });
    }
}

} // namespace

MargensLinguagem::MargensLinguagem(const ModeloDeMargens& seu_modelo)
    : modelo(seu_modelo), Caption(modelo.Caption), Frame1{Text(modelo.Frame1)} {
    for (const ChaveMargem& coluna : modelo.colunas) {
        txtmargem1.push_back({u"Text1"});
        Label2.push_back({Text(coluna.padrao)});
    }
    if (modelo.superior) {
        txtmargemsuperior = TextField{Text(modelo.superior->inicio)};
    }
    if (modelo.tem_codigo) {
        txtcodigo = TextField{.text = u"Text1", .visible = false};
    }
}

MargensLinguagem FrmMargensOcultaZPL() {
    return MargensLinguagem(modelo_oculta_zpl);
}

MargensLinguagem FrmMargensOculta7ZPL() {
    return MargensLinguagem(modelo_oculta7_zpl);
}

MargensLinguagem FrmMargensOculta8ZPL() {
    return MargensLinguagem(modelo_oculta8_zpl);
}

MargensLinguagem FrmMargensOcultaPPLa() {
    return MargensLinguagem(modelo_oculta_ppla);
}

MargensLinguagem FrmMargensCxZPL() {
    return MargensLinguagem(modelo_frente_zpl);
}

void MargensLinguagem_load(const FrmPadrao& form, MargensLinguagem& dialogo) {
    dialogo.open = true;
    resetFields(dialogo);
    readStored(form.platform.files, dialogo);
    fillBlankColumns(dialogo);
    if (dialogo.txtmargemsuperior) {
        fillBlank(*dialogo.txtmargemsuperior, dialogo.modelo.superior->padrao_ao_abrir);
    }
    if (dialogo.txtcodigo) {
        dialogo.txtcodigo->text = form.txtcodigo.text;
        fillBlank(*dialogo.txtcodigo, u"50100779");
    }
}

void MargensLinguagem_cmd_gravar(FrmPadrao& form, MargensLinguagem& dialogo) {
    Files& files = form.platform.files;
    const Text ini = settingsPath(files);
    const ModeloDeMargens& modelo = dialogo.modelo;
    const auto store = [&](const ChaveMargem& margem, TextView value) {
        GravaIni(files, ini_section::margens, margem.chave, value, ini);
    };
    for (std::size_t i = 0; i < modelo.colunas.size(); ++i) {
        const Text& typed = dialogo.txtmargem1[i].text;
        store(modelo.colunas[i], isBlank(typed) ? dialogo.Label2[i].caption : typed);
    }
    fillBlankTop(dialogo);
    if (dialogo.txtmargemsuperior) {
        store(modelo.superior->margem, dialogo.txtmargemsuperior->text);
    }
    dialogo.open = false;
}

void MargensLinguagem_cmd_teste(FrmPadrao& form, MargensLinguagem& dialogo) {
    const ModeloDeMargens& modelo = dialogo.modelo;
    fillBlankTop(dialogo);
    fillBlankColumns(dialogo);
    if (modelo.ordem == OrdemDasColunas::crescente) {
        growToTheRight(dialogo);
    }
    sendProgram(form, modelo.teste(form, dialogo), modelo.fim);
}

void MargensLinguagem_cmd_exit(MargensLinguagem& dialogo) {
    dialogo.open = false;
}

void txtmargem1_enter(MargensLinguagem& dialogo, std::size_t coluna) {
    SelecionaTexto(dialogo.txtmargem1.at(coluna));
}

KeyCode txtmargem1_key(MargensLinguagem& /*dialogo*/, std::size_t /*coluna*/, KeyCode key) {
    return SoDecimal(key);
}

void txtmargemsuperior_enter(MargensLinguagem& dialogo) {
    if (dialogo.txtmargemsuperior) {
        SelecionaTexto(*dialogo.txtmargemsuperior);
    }
}

KeyCode txtmargemsuperior_key(MargensLinguagem& /*dialogo*/, KeyCode key) {
    return SoDecimal(key);
}

} // namespace etiquetas
