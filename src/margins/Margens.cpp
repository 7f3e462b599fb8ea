#include "margins/Margens.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
#include "labels/Acessorio.h"
#include "labels/Corrugado.h"
#include "labels/FrenteCaixa.h"
#include "labels/LabelJob.h"
#include "labels/Oculta.h"
#include "orders/Complemento.h"
#include "platform/Focus.h"
#include "support/Module1.h"
#include "workbench/FrmPadrao.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace etiquetas {

namespace {

// A strip, so that one test shows both columns.
constexpr std::int16_t quantidade = 2;

// An entry field. Its default is a caption of the dialog, or a text where it has no caption.
struct Entrada {
    TextField MargensDialog::*campo;
    Label MargensDialog::*padrao;
    Margin margem;
    float FrmPadrao::*linha = nullptr; // takes the margin too
};

constexpr TextView superior_padrao = u"3";

constexpr std::array<Entrada, 3> entradas_da_faixa(const std::array<Margin, 3>& margens) {
    return {{{&MargensDialog::txtmargem1, &MargensDialog::Label2, margens[0]},
             {&MargensDialog::txtmargem2, &MargensDialog::Label3, margens[1]},
             {&MargensDialog::txtmargemsuperior, nullptr, margens[2]}}};
}

constexpr auto entradas_oculta = entradas_da_faixa(margens_oculta);
constexpr auto entradas_caixa = entradas_da_faixa(margens_caixa);
constexpr std::array<Entrada, 2> entradas_pack{{
    {&MargensDialog::txtmargem1, &MargensDialog::Label2, margens_pack[0], &FrmPadrao::PackLinhaX},
    {&MargensDialog::txtmargemsuperior, nullptr, margens_pack[1], &FrmPadrao::PackLinhaY},
}};

// The first size with a quantity and a barcode, whose codes it leaves in `lblbarra` and
// `lblmaster`.
std::optional<std::size_t> primeiro_tamanho(FrmPadrao& form) {
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

void desenha_oculta(FrmPadrao& form) {
    if (const auto slot = primeiro_tamanho(form)) {
        skip([&] {
            Imprime_Oculta_40_20_2(form, form.marca_logo, trimmed(form.txtdescricao.text),
                                   ref3(form), form.lblmaster.caption, form.lblbarra.caption,
                                   form.Label7[*slot].caption, quantidade,
                                   trimmed(form.txtcor.text));
        });
    }
}

void desenha_acessorio(FrmPadrao& form) {
    skip([&] {
        Imprime_Acessorio_40_20_2(form, form.marca_logo, descricao_cor(form), ref3(form),
                                  form.txtcodigo.text, form.lblbarra.caption, form.TXTPARES.text,
                                  form.txtpreco.text, quantidade, form.txtbandeira.text,
                                  form.txtsemana.text, form.txtpromocao.text);
    });
}

void desenha_faixa_40x20(FrmPadrao& form) {
    if (form.cmbtipo.text == tipo::oculta) {
        desenha_oculta(form);
    } else {
        desenha_acessorio(form);
    }
}

void desenha_caixa(FrmPadrao& form) {
    const auto slot = primeiro_tamanho(form);
    if (!slot) {
        return;
    }
    completa_preco(form);
    Text descricao(trimmed(form.txtdescricao.text));
    skip([&] {
        Imprime_40_45_2(form, form.marca_logo, descricao, trimmed(form.txtcor.text), ref3(form),
                        form.lblmaster.caption, form.lblbarra.caption, form.Label7[*slot].caption,
                        form.txtpreco.text, quantidade, trimmed(form.txtpromocao.text),
                        trimmed(form.txtsemana.text), form.txtbandeira.text);
    });
}

// One carton: the first volume that the operator chose.
void desenha_pack(FrmPadrao& form) {
    skip([&] {
        const std::int16_t volume = toInteger16(form.cmb_vol1.text);
        EtiPack(form, form.marca_logo, form.txtdestino1.text, form.txtarquivo.text,
                form.txtcodigo1.text, form.txtfornecedor1.text, form.txtdescricao1.text,
                form.txtcor1.text, form.txtprepack.text, form.txtgrade1.text, form.txtgrade2.text,
                form.txttotgrade.text, volume, volume, form.txtsemana1.text);
    });
}

// What is looked at once all margins are there. True where the test goes on.

bool inicia_faixa_40x20(FrmPadrao& form) {
    form.coluna_etiqueta = 1;
    return true;
}

// The kind may have changed since the dialog was opened.
bool inicia_faixa_de_caixa(FrmPadrao& form) {
    form.coluna_etiqueta = 1;
    if (form.cmbtipo.text != tipo::frente_de_caixa) {
        return false;
    }
    if (!tem_logos(form)) {
        avisa(form, aviso::sem_logotipo);
        return false;
    }
    if (isBlank(form.txtdescricao.text)) {
        avisa(form, aviso::sem_item); // told only: the test goes on
    }
    return true;
}

bool inicia_pack(FrmPadrao& /*form*/) {
    return true;
}

// What the dialogs differ in.
struct Calibragem {
    MargensDialog FrmPadrao::*dialog;
    MargensDialog (*design)();
    std::span<const Entrada> entradas;
    PageSize pagina;
    bool (*inicia)(FrmPadrao&);
    void (*desenha)(FrmPadrao&);
};

constexpr std::array<Calibragem, 3> calibragens{{
    {&FrmPadrao::FrmMargensOcultaZPL2, FrmMargensOcultaZPL2_design, entradas_oculta, pagina_oculta,
     inicia_faixa_40x20, desenha_faixa_40x20},
    {&FrmPadrao::FrmMargensCxZPL45, FrmMargensCxZPL45_design, entradas_caixa, pagina_caixa,
     inicia_faixa_de_caixa, desenha_caixa},
    {&FrmPadrao::FrmMargensPackZPL, FrmMargensPackZPL_design, entradas_pack, pagina_pack,
     inicia_pack, desenha_pack},
}};

const Calibragem& calibragem_de(const FrmPadrao& form, const MargensDialog& dialog) {
    return *std::find_if(calibragens.begin(), calibragens.end(),
                         [&](const Calibragem& row) { return &(form.*row.dialog) == &dialog; });
}

TextView padrao(const MargensDialog& dialog, const Entrada& entrada) {
    return entrada.padrao == nullptr ? superior_padrao : (dialog.*entrada.padrao).caption;
}

TextView digitado_ou_padrao(const MargensDialog& dialog, const Entrada& entrada) {
    const Text& digitado = (dialog.*entrada.campo).text;
    return isBlank(digitado) ? padrao(dialog, entrada) : digitado;
}

void le_campos(const FrmPadrao& form, MargensDialog& dialog, std::span<const Entrada> entradas) {
    const Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    if (!files.fileExists(file)) {
        return;
    }
    for (const Entrada& entrada : entradas) {
        (dialog.*entrada.campo).text = LeIni(files, file, secao::margens, entrada.margem.key, {});
    }
}

void completa_campos(MargensDialog& dialog, std::span<const Entrada> entradas) {
    for (const Entrada& entrada : entradas) {
        Text& digitado = (dialog.*entrada.campo).text;
        if (isBlank(digitado)) {
            digitado = padrao(dialog, entrada);
        }
    }
}

// A copy of the item code, which nothing reads.
void copia_codigo(const FrmPadrao& form, MargensDialog& dialog) {
    const Text& codigo = form.txtcodigo.text;
    dialog.txtcodigo.text = isBlank(codigo) ? u"50100779" : codigo;
}

// Tells the operator where a margin is missing, and leads him to the first one.
bool margens_informadas(FrmPadrao& form, const MargensDialog& dialog,
                        std::span<const Entrada> entradas) {
    const auto blank = std::find_if(entradas.begin(), entradas.end(), [&](const Entrada& entrada) {
        return isBlank((dialog.*entrada.campo).text);
    });
    if (blank == entradas.end()) {
        return true;
    }
    avisa(form, u"Informe a Margem...");
    skip([&] { form.platform.focus.moveTo(dialog.*blank->campo); });
    return false;
}

// In memory only: the next Print command reads its margins anew.
void toma_margens(FrmPadrao& form, const MargensDialog& dialog, std::span<const Entrada> entradas) {
    for (const Entrada& entrada : entradas) {
        skip([&] {
            const float margem = toSingle((dialog.*entrada.campo).text);
            form.*entrada.margem.variable = margem;
            if (entrada.linha != nullptr) {
                form.*entrada.linha = margem;
            }
        });
    }
}

} // namespace

void margens_load(FrmPadrao& form, MargensDialog& dialog) {
    const Calibragem& calibragem = calibragem_de(form, dialog);
    dialog = calibragem.design();
    // The top margin keeps the text that it is designed with.
    dialog.txtmargem1.text.clear();
    dialog.txtmargem2.text.clear();
    le_campos(form, dialog, calibragem.entradas);
    completa_campos(dialog, calibragem.entradas);
    copia_codigo(form, dialog);
}

void margem_enter(TextField& field) {
    SelecionaTexto(field);
}

KeyCode margem_key(KeyCode key) {
    return SoDecimal(key);
}

void cmd_gravar_click(FrmPadrao& form, MargensDialog& dialog) {
    Files& files = form.platform.files;
    const Text file = caminho_ini(files);
    for (const Entrada& entrada : calibragem_de(form, dialog).entradas) {
        const Text margem(digitado_ou_padrao(dialog, entrada));
        if (entrada.padrao == nullptr) {
            (dialog.*entrada.campo).text = margem; // a default without a caption is shown here
        }
        GravaIni(files, secao::margens, entrada.margem.key, margem, file);
    }
    dialog.open = false;
}

void cmd_teste_click(FrmPadrao& form, MargensDialog& dialog) {
    const Calibragem& calibragem = calibragem_de(form, dialog);
    if (!margens_informadas(form, dialog, calibragem.entradas) || !calibragem.inicia(form)) {
        return;
    }
    seleciona_escolhida(form);
    usa_milimetros(form);
    toma_margens(form, dialog, calibragem.entradas);
    define_pagina(form, calibragem.pagina);
    usa_fonte(form);
    escolhe_marca(form);
    calibragem.desenha(form);
    encerra_trabalho(form);
}

void cmd_exit_click(FrmPadrao& /*form*/, MargensDialog& dialog) {
    dialog.open = false;
}

} // namespace etiquetas
