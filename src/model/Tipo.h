#pragma once

#include "base/Text.h"

namespace etiquetas {

/// The kinds of label that a rule asks for by name. What sets each kind apart stands in the table
/// of workbench/LabelKinds.
namespace tipo {
inline constexpr TextView frente_de_caixa = u"Frente de Caixa";
inline constexpr TextView corrugado = u"Corrugado";
inline constexpr TextView acessorio = u"Acessório";
inline constexpr TextView oculta = u"Oculta";
inline constexpr TextView frente_de_caixa_100x40 = u"Frente de Caixa100x40";
} // namespace tipo

/// Captions of the two item panels. They are switches too: that of `Frame1` tells which loader
/// takes its items.
namespace panel_caption {
inline constexpr TextView caixa_oculta = u"Caixa / Oculta";
inline constexpr TextView acessorio = tipo::acessorio;
inline constexpr TextView corrugado = tipo::corrugado;
} // namespace panel_caption

} // namespace etiquetas
