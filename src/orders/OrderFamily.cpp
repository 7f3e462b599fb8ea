#include "orders/OrderFamily.h"

#include "orders/GradeAcessorio.h"
#include "orders/GradeCorrugado.h"
#include "orders/GradeFc.h"
#include "orders/ItemSlots.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

void loadBoxItem(FrmPadrao& form) {
    carrega_gradeFc(form);
    oculta_objetos(form);
}

void loadAccessory(FrmPadrao& form) {
    carrega_grade_Acessorio(form);
    oculta_objetos(form);
}

// The first one stands for every unknown caption.
constexpr std::array<OrderFamily, 3> families{{
    {.name = family_name::box,
     .word = u"FRENTE",
     .key = box_key,
     .index = indexBoxLine,
     .index_bytes = cutAndIndex<indexBoxLine>,
     .items = &FrmPadrao::cmb_referencia,
     .panel = &FrmPadrao::Frame1,
     .caption = panel_caption::caixa_oculta,
     .loadItem = loadBoxItem,
     .hasLayout = hasBoxLayout},
    {.name = family_name::corrugated,
     .word = u"CORRUGADO",
     .key = corrugated_key,
     .index = indexCorrugatedLine,
     .index_bytes = cutAndIndex<indexCorrugatedLine>,
     .items = &FrmPadrao::cmb_referencia1,
     .panel = &FrmPadrao::Frame3,
     .caption = panel_caption::corrugado,
     .loadItem = carrega_corrugado,
     .hasLayout = hasCorrugatedLayout,
     .loads_blank_item = true},
    {.name = family_name::accessory,
     .word = u"ACESSORIO",
     .key = accessory_key,
     .index = indexAccessoryLine,
     .index_bytes = cutAndIndex<indexAccessoryLine>,
     .items = &FrmPadrao::cmb_referencia,
     .panel = &FrmPadrao::Frame1,
     .caption = panel_caption::acessorio,
     .loadItem = loadAccessory,
     .hasLayout = hasAccessoryLayout},
}};

} // namespace

const OrderFamily* orderFamily(TextView name) {
    const auto* const found =
        std::find_if(families.begin(), families.end(),
                     [&](const OrderFamily& family) { return family.name == name; });
    return found == families.end() ? nullptr : found;
}

const OrderFamily& familyOfCaption(TextView caption) {
    const auto* const found =
        std::find_if(families.begin(), families.end(),
                     [&](const OrderFamily& family) { return family.caption == caption; });
    return found == families.end() ? families.front() : *found;
}

} // namespace etiquetas
