#pragma once

#include "base/Text.h"

/// The kinds of label, as `cmbtipo` offers them.
namespace etiquetas::tipo {
inline constexpr TextView frente_de_caixa = u"Frente de Caixa";
inline constexpr TextView corrugado = u"Corrugado";
inline constexpr TextView acessorio = u"Acessório";
inline constexpr TextView oculta = u"Oculta";
/// Stands ready for the Print command, but `cmbtipo` does not offer it.
inline constexpr TextView frente_de_caixa_100x40 = u"Frente de Caixa100x40";
} // namespace etiquetas::tipo
