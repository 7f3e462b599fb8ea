#include "channel/FontesMargem.h"

#include "channel/ChavesMargem.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"

#include <array>
#include <optional>
#include <span>

namespace etiquetas {

namespace {

constexpr std::array<ChaveMargem, 8> colunas_oculta8_ppla{{
    {u"Margem_oculta_ppla_71", u"22"},
    {u"Margem_oculta_ppla_72", u"150"},
    {u"Margem_oculta_ppla_73", u"275"},
    {u"Margem_oculta_ppla_74", u"275"},
    {u"Margem_oculta_ppla_75", u"275"},
    {u"Margem_oculta_ppla_76", u"275"},
    {u"Margem_oculta_ppla_77", u"275"},
    {u"Margem_oculta_ppla_77", u"275"}, // the eighth stands on the seventh
}};
constexpr std::array<ChaveMargem, 2> colunas_frente_ppla{{
    {u"Margem_frente_ppla_1", u"4"},
    {u"Margem_frente_ppla_2", u"160"},
}};
constexpr std::array<ChaveMargem, 2> colunas_frente2_zpl{{
    {u"Margem_frente_zpl_A1", u"260"},
    {u"Margem_frente_zpl_A2", u"610"},
}};
constexpr std::array<ChaveMargem, 2> colunas_frente2_ppla{{
    {u"Margem_frente_ppla_A1", u"4"},
    {u"Margem_frente_ppla_A2", u"160"},
}};
constexpr ChaveMargem superior_frente2_zpl{u"Margem_frente_zpl_A2_superior", u"25"};
constexpr std::array<ChaveMargem, 1> coluna_corrugada_zpl{{{u"Margem_Corrugada_zpl", u"25"}}};
constexpr std::array<ChaveMargem, 1> coluna_corrugada_ppla{{{u"Margem_Corrugada_ppla", u"19"}}};
constexpr ChaveMargem superior_corrugada_zpl{u"Margem_Corrugada_ZPL_Superior", u"70"};
constexpr ChaveMargem superior_corrugada_ppla{u"Margem_Corrugada_PPLA_Superior", u"58"};

// The keys of one label in one language.
struct Keys {
    std::span<const ChaveMargem> colunas;
    std::optional<ChaveMargem> superior;
};

// The value of the key, its default where it is blank or where there is no settings file.
Text readMargin(const Files& files, const ChaveMargem& margem) {
    const Text ini = settingsPath(files);
    Text value;
    if (files.fileExists(ini)) {
        value = LeIni(files, ini, ini_section::margens, margem.chave, {});
    }
    return isBlank(value) ? Text(margem.padrao) : value;
}

MargensDeEtiqueta take(const FrmPadrao& form, const Keys& zpl, const Keys& ppla) {
    const Files& files = form.platform.files;
    const Keys& keys = form.lbllinguagem.caption == u"ZPL" ? zpl : ppla;
    MargensDeEtiqueta margens;
    for (const ChaveMargem& coluna : keys.colunas) {
        margens.colunas.push_back(readMargin(files, coluna));
    }
    if (keys.superior) {
        margens.superior = readMargin(files, *keys.superior);
    }
    return margens;
}

} // namespace

MargensDeEtiqueta pega_margemoculta(const FrmPadrao& form) {
    return take(form, {colunas_oculta_zpl, superior_oculta_zpl}, {colunas_oculta_ppla, {}});
}

MargensDeEtiqueta pega_margemoculta7(const FrmPadrao& form) {
    return take(form, {std::span(colunas_oculta8_zpl).first<7>(), superior_oculta7_zpl},
                {std::span(colunas_oculta8_ppla).first<7>(), {}});
}

MargensDeEtiqueta pega_margemoculta8(const FrmPadrao& form) {
    return take(form, {colunas_oculta8_zpl, superior_oculta8_zpl}, {colunas_oculta8_ppla, {}});
}

MargensDeEtiqueta pega_margemfc(const FrmPadrao& form) {
    return take(form, {colunas_frente_zpl, superior_frente_zpl}, {colunas_frente_ppla, {}});
}

MargensDeEtiqueta pega_margemfc2(const FrmPadrao& form) {
    return take(form, {colunas_frente2_zpl, superior_frente2_zpl},
                {colunas_frente2_ppla, superior_frente2_zpl});
}

MargensDeEtiqueta pega_margemcorrugado(const FrmPadrao& form) {
    return take(form, {coluna_corrugada_zpl, superior_corrugada_zpl},
                {coluna_corrugada_ppla, superior_corrugada_ppla});
}

} // namespace etiquetas
