#include "orders/GradeFc.h"

#include "orders/Complemento.h"
#include "orders/ItemSlots.h"
#include "orders/OrderFormat.h"
#include "platform/MessageBoxes.h"
#include "workbench/FrmPadrao.h"

#include <algorithm>
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

const BoxLayout* layoutOf(const OrderLine& line) {
    const auto* const found =
        std::find_if(layouts.begin(), layouts.end(),
                     [&](const BoxLayout& layout) { return layout.width == line.width(); });
    return found == layouts.end() ? nullptr : found;
}

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

// Gives the line the first free slot; false when all are taken. A blank size leaves its slot free.
bool fillSlot(FrmPadrao& form, const OrderLine& line) {
    auto* const free = std::find_if(form.Label7.begin(), form.Label7.end(),
                                    [](const Label& size) { return isBlank(size.caption); });
    if (free == form.Label7.end()) {
        return false;
    }
    free->caption = line[box_field::size];
    form.txtnumero[static_cast<std::size_t>(free - form.Label7.begin())].text =
        line[box_field::quantity];
    return true;
}

void reportFullSlots(FrmPadrao& form) {
    form.platform.messages.show(
        {.text = u"Erro ao Preencher Dados.. Contate a Varesko e comunique o Erro no Pedido " +
                 form.txtarquivo.text,
         .symbol = Symbol::exclamation});
}

void fillFromLines(FrmPadrao& form, const ItemKey& item) {
    std::size_t count = 0;
    for (const Text& text : form.List1.entries) {
        const OrderLine line(text);
        const BoxLayout* const layout = layoutOf(line);
        if (layout == nullptr || !belongsTo(line, item)) {
            continue;
        }
        if (count == 0) {
            fillItemFields(form, line, *layout);
        }
        const bool achou = fillSlot(form, line);
        if (!achou) {
            reportFullSlots(form);
        }
        ++count;
    }
}

} // namespace

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

} // namespace etiquetas
