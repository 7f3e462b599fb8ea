#include "workbench/LabelKinds.h"

#include "orders/OrderFamily.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr std::array<LabelKind, 5> kinds{{
    {.name = tipo::frente_de_caixa,
     .offered = true,
     .family = family_name::box,
     .stock = &stock_40x45,
     .print = printBoxFronts},
    {.name = tipo::corrugado,
     .offered = true,
     .family = family_name::corrugated,
     .stock = &stock_carton,
     .print = printCartons},
    {.name = tipo::acessorio,
     .offered = true,
     .family = family_name::accessory,
     .stock = &stock_40x20,
     .print = printAccessories},
    {.name = tipo::oculta,
     .offered = true,
     .family = family_name::box,
     .stock = &stock_40x20,
     .print = printHiddenLabels},
    {.name = tipo::frente_de_caixa_100x40,
     .offered = false,
     .family = {},
     .stock = &stock_100x40,
     .print = printBoxFronts100x40},
}};

} // namespace

std::span<const LabelKind> labelKinds() {
    return kinds;
}

const LabelKind* labelKind(TextView name) {
    const auto* const found = std::find_if(
        kinds.begin(), kinds.end(), [&](const LabelKind& kind) { return kind.name == name; });
    return found == kinds.end() ? nullptr : found;
}

} // namespace etiquetas
