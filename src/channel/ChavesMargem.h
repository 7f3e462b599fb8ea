#pragma once

#include "base/Text.h"

#include <array>

namespace etiquetas {

// The margins of the printer languages: positions in the language's own units (dots in ZPL), whole
// numbers. They stand in the settings file beside the millimetres of the drawn labels.

/// A key of the section of the margins, and what stands for a blank value.
struct ChaveMargem {
    TextView chave;
    TextView padrao;
};

// Columns, from left to right

inline constexpr std::array<ChaveMargem, 3> colunas_oculta_zpl{{
    {u"Margem_oculta_zpl_1", u"55"},
    {u"Margem_oculta_zpl_2", u"305"},
    {u"Margem_oculta_zpl_3", u"570"},
}};
/// Labels turned by a quarter; a strip of seven has the first seven.
inline constexpr std::array<ChaveMargem, 8> colunas_oculta8_zpl{{
    {u"Margem_oculta_zpl_71", u"40"},
    {u"Margem_oculta_zpl_72", u"160"},
    {u"Margem_oculta_zpl_73", u"280"},
    {u"Margem_oculta_zpl_74", u"400"},
    {u"Margem_oculta_zpl_75", u"520"},
    {u"Margem_oculta_zpl_76", u"640"},
    {u"Margem_oculta_zpl_77", u"760"},
    {u"Margem_oculta_zpl_78", u"880"},
}};
inline constexpr std::array<ChaveMargem, 2> colunas_frente_zpl{{
    {u"Margem_frente_zpl_1", u"25"},
    {u"Margem_frente_zpl_2", u"340"},
}};
inline constexpr std::array<ChaveMargem, 3> colunas_oculta_ppla{{
    {u"Margem_oculta_ppla_1", u"22"},
    {u"Margem_oculta_ppla_2", u"150"},
    {u"Margem_oculta_ppla_3", u"275"},
}};

// Top margins

inline constexpr ChaveMargem superior_oculta_zpl{u"Margem_oculta_zpl_3_superior", u"30"};
inline constexpr ChaveMargem superior_oculta7_zpl{u"Margem_oculta_zpl_7_superior", u"70"};
inline constexpr ChaveMargem superior_oculta8_zpl{u"Margem_oculta_zpl_8_superior", u"70"};
inline constexpr ChaveMargem superior_frente_zpl{u"Margem_frente_zpl_2_superior", u"10"};

} // namespace etiquetas
