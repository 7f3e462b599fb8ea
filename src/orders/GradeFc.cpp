#include "orders/GradeFc.h"

#include "model/FrmPadrao.h"
#include "orders/Complemento.h"
#include "orders/ItemSlots.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"

#include <array>
#include <optional>

namespace etiquetas {

namespace {

// Fields whose place depends on the width of the box line. In width 10 one field is both the
// promotion and the suffix of the week.
struct BoxLayout {
    std::size_t width;
    std::optional<std::size_t> price;
    std::size_t week;
    std::size_t week_suffix;
    std::size_t banner;
    std::size_t promotion;
};

constexpr std::array<BoxLayout, 4> layouts{{
    {.width = 10, .price = {}, .week = 7, .week_suffix = 9, .banner = 8, .promotion = 9},
    {.width = 11, .price = {}, .week = 7, .week_suffix = 10, .banner = 8, .promotion = 9},
    {.width = 12, .price = {}, .week = 7, .week_suffix = 10, .banner = 8, .promotion = 9},
    {.width = 13, .price = 7, .week = 8, .week_suffix = 10, .banner = 9, .promotion = 11},
}};

bool belongsTo(const OrderLine& line, const ItemKey& item) {
    return left(trimmed(line[box_field::master]), product_code_length) == item.code &&
           trimmed(line[box_field::description]) == item.description &&
           trimmed(line[box_field::colour]) == item.colour;
}

Text weekOf(const OrderLine& line, const BoxLayout& layout) {
    Text week(line[layout.week]);
    const TextView suffix = trimmed(line[layout.week_suffix]);
    if (!suffix.empty()) {
        week.append(u"/").append(suffix);
    }
    return week;
}

void fillItemFields(FrmPadrao& form, const OrderLine& line, const BoxLayout& layout) {
    form.txtcodigo.text = left(line[box_field::master], product_code_length);
    form.txtcor.text = line[box_field::colour];
    form.txtdescricao.text = line[box_field::description];
    form.txtpreco.text = layout.price ? line[*layout.price] : TextView{};
    form.txtsemana.text = weekOf(line, layout);
    form.txtbandeira.text = line[layout.banner];
    form.txtpromocao.text = line[layout.promotion];
}

void fillFromLines(FrmPadrao& form, const ItemKey& item) {
    std::size_t count = 0;
    visitItem(form.List1.entries, cutAndIndex<indexBoxLine>, item, [&](const OrderLine& line) {
        const BoxLayout* const layout = layoutOf(line, layouts);
        if (layout == nullptr || !belongsTo(line, item)) {
            return;
        }
        if (count == 0) {
            fillItemFields(form, line, *layout);
        }
        if (!fillSlot(form, line[box_field::size], line[box_field::quantity])) {
            tellSlotsAreFull(form);
        }
        ++count;
    });
}

} // namespace

LineIndex::Line indexBoxLine(LineIndex& index, LineIndex::Line number, const OrderBytes& line) {
    const LineIndex::Line first = indexByItem(index, number, line, box_key);
    if (first != LineIndex::none) {
        indexByCode(index, number, line, box_key,
                    trimmed(line[box_field::master]).substr(0, product_code_length));
    }
    return first;
}

void carrega_gradeFc(FrmPadrao& form) {
    form.tem_imagem = false;
    OCULTA_ITENS(form);
    form.TXTPARES.text.clear();
    form.TXTOCULTAS.text.clear();
    if (isBlank(form.cmb_referencia.text)) {
        return;
    }
    form.pctimage.picture.reset();
    fillFromLines(form, ItemKey(form.cmb_referencia.text));
    EXIBE_ITENS(form);
    pega_imagem(form);
}

bool hasBoxLayout(const OrderLine& line) {
    return layoutOf(line, layouts) != nullptr;
}

} // namespace etiquetas
