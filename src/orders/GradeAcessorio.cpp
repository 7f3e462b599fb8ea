#include "orders/GradeAcessorio.h"

#include "model/FrmPadrao.h"
#include "orders/ItemSlots.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"

#include <array>
#include <optional>

namespace etiquetas {

namespace {

// What an accessory line has and where, by its width. Width 8 has no barcode for the Workbench: the
// colour stands in for it until the codes are looked up.
struct AccessoryLayout {
    std::size_t width;
    std::size_t code_length; // characters of the master code that are compared
    std::size_t barcode;
    std::optional<std::size_t> price;
    std::optional<std::size_t> week_suffix;
    std::optional<std::size_t> promotion;
    bool fills_slots; // each line is a size; the other widths unlock the quantity instead
};

constexpr std::array<AccessoryLayout, 4> layouts{{
    {8, product_code_length, accessory_field::colour, {}, {}, {}, false},
    {11, TextView::npos, accessory_field::barcode, 8, 9, 10, true},
    {12, product_code_length, accessory_field::barcode, 8, 9, 10, false},
    {13, product_code_length, accessory_field::barcode, 8, 9, 10, false},
}};

bool belongsTo(const OrderLine& line, const AccessoryLayout& layout, const ItemKey& item) {
    return trimmed(line[accessory_field::description]) == item.description &&
           trimmed(line[accessory_field::colour]) == item.colour &&
           left(trimmed(line[accessory_field::master]), layout.code_length) == item.code;
}

// The week as it stands, or trimmed with its suffix after it.
Text weekOf(const OrderLine& line, const AccessoryLayout& layout) {
    const TextView week = line[accessory_field::week];
    const TextView suffix = layout.week_suffix ? trimmed(line[*layout.week_suffix]) : TextView{};
    if (suffix.empty()) {
        return Text(week);
    }
    return Text(trimmed(week)).append(u"/").append(suffix);
}

void fillItemFields(FrmPadrao& form, const OrderLine& line, const AccessoryLayout& layout) {
    form.txtcodigo.text = left(line[accessory_field::master], product_code_length);
    form.txtcor.text = line[accessory_field::colour];
    form.txtdescricao.text = line[accessory_field::description];
    form.txtpreco.text = layout.price ? line[*layout.price] : TextView{};
    form.txtsemana.text = weekOf(line, layout);
    form.txtbandeira.text = line[accessory_field::banner];
    form.TXTPARES.text = line[accessory_field::quantity];
    if (layout.promotion) {
        form.txtpromocao.text = line[*layout.promotion];
    }
    form.lblbarra.caption = line[layout.barcode];
}

// Fills the Workbench line by line.
class Filler {
  public:
    explicit Filler(FrmPadrao& form) : form_(form) {}

    void take(const OrderLine& line, const AccessoryLayout& layout) {
        if (count_ == 0) {
            fillItemFields(form_, line, layout);
            if (!layout.fills_slots) {
                form_.TXTPARES.locked = false;
                placed_ = true;
            }
        }
        if (layout.fills_slots) {
            placed_ = fillSlot(form_, line[accessory_field::size], line[accessory_field::quantity]);
        }
        if (!placed_) {
            tellSlotsAreFull(form_);
        }
        ++count_;
    }

  private:
    FrmPadrao& form_;
    std::size_t count_ = 0;
    bool placed_ = false;
};

} // namespace

LineIndex::Line indexAccessoryLine(LineIndex& index, LineIndex::Line number,
                                   const OrderBytes& line) {
    const AccessoryLayout* const layout = layoutOf(line, layouts);
    const LineIndex::Line first = indexByItem(index, number, line, accessory_key);
    if (first != LineIndex::none && layout != nullptr) {
        indexByCode(index, number, line, accessory_key,
                    trimmed(line[accessory_field::master]).substr(0, layout->code_length));
    }
    return first;
}

void carrega_grade_Acessorio(FrmPadrao& form) {
    OCULTA_ITENS(form);
    form.TXTPARES.text.clear();
    form.TXTOCULTAS.text.clear();
    if (isBlank(form.cmb_referencia.text)) {
        return;
    }
    const ItemKey item(form.cmb_referencia.text);
    Filler filler(form);
    visitItem(form.List1.entries, cutAndIndex<indexAccessoryLine>, item,
              [&](const OrderLine& line) {
                  const AccessoryLayout* const layout = layoutOf(line, layouts);
                  if (layout != nullptr && belongsTo(line, *layout, item)) {
                      filler.take(line, *layout);
                  }
              });
}

bool hasAccessoryLayout(const OrderLine& line) {
    return layoutOf(line, layouts) != nullptr;
}

} // namespace etiquetas
