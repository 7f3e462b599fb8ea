#include "orders/GradeCorrugado.h"

#include "base/Numbers.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"

#include <array>
#include <optional>

namespace etiquetas {

namespace {

// Fields whose place depends on the width of the corrugated line. Some fields feed two places: in
// width 14 the second row of the size run is its total too, and from width 15 on the pre-pack code
// is the EAN. The suffix of the week counts when the field that tests it is not blank.
struct CorrugatedLayout {
    std::size_t width;
    std::size_t compared; // with the first part of the item key
    std::size_t prepack;
    std::size_t grade1;
    std::size_t grade2;
    std::size_t total;
    std::size_t week;
    std::optional<std::size_t> suffix_test;
    std::optional<std::size_t> suffix;
    std::size_t destination;
    std::size_t volume;
    std::optional<std::size_t> ean;
};

constexpr std::size_t narrow = 13;
constexpr LineIndex::Hash narrow_lines = short_lines + 1; // the key of those lines in an index
// clang-format off
constexpr std::array<CorrugatedLayout, 5> layouts{{
    // width, compared, prepack, grades, total, week, suffix_test, suffix, destination, volume, ean
    {narrow,  6,        6,       7, 8,   9,     10,   {},          {},     11,          12,     {}},
    {14,      7,        7,       8, 9,   9,     11,   {},          {},     12,          13,     6},
    {15,      7,        6,       7, 8,   9,     10,   11,          13,     11,          12,     6},
    {16,      6,        6,       7, 8,   9,     10,   13,          13,     11,          12,     6},
    {17,      6,        6,       8, 9,   10,    11,   14,          14,     12,          13,     6},
}};
// clang-format on

bool belongsTo(const OrderLine& line, const CorrugatedLayout& layout, const ItemKey& item) {
    return trimmed(line[layout.compared]) == item.code &&
           trimmed(line[corrugated_field::description]) == item.description &&
           trimmed(line[corrugated_field::colour]) == item.colour;
}

void showEan(FrmPadrao& form, bool visible) {
    form.txtean.visible = visible;
    form.lblean.visible = visible;
}

void clearFields(FrmPadrao& form) {
    for (TextField* const field :
         {&form.txtqte1, &form.txtcodigo1, &form.txtdescricao1, &form.txtcor1, &form.txtsemana1,
          &form.txtprepack, &form.txtgrade1, &form.txtgrade2, &form.txttotgrade,
          &form.txtfornecedor1, &form.txtdestino1, &form.txtvolume, &form.txtean}) {
        field->text.clear();
    }
    showEan(form, false);
    form.lblmax.caption.clear();
}

Text weekOf(const OrderLine& line, const CorrugatedLayout& layout) {
    Text week(line[layout.week]);
    if (layout.suffix_test && !isBlank(line[*layout.suffix_test])) {
        week.append(u"/").append(line[*layout.suffix]);
    }
    return week;
}

void fillFields(FrmPadrao& form, const OrderLine& line, const CorrugatedLayout& layout) {
    form.txtqte1.text = line[corrugated_field::quantity];
    form.txtcodigo1.text = line[corrugated_field::master];
    form.txtfornecedor1.text = line[corrugated_field::supplier];
    form.txtcor1.text = line[corrugated_field::colour];
    form.txtdescricao1.text = line[corrugated_field::description];
    form.txtprepack.text = line[layout.prepack];
    form.txtgrade1.text = line[layout.grade1];
    form.txtgrade2.text = line[layout.grade2];
    form.txttotgrade.text = line[layout.total];
    form.txtsemana1.text = weekOf(line, layout);
    form.txtdestino1.text = line[layout.destination];
    form.txtvolume.text = line[layout.volume];
    form.txtean.text = layout.ean ? line[*layout.ean] : TextView{};
    showEan(form, layout.ean.has_value());
}

// Takes the first line of the pack. A line of width 13 that is another pack's ends the search.
void fillFromLines(FrmPadrao& form, const ItemKey& item) {
    const auto look = [&](TextView text) {
        const OrderLine line(text);
        const CorrugatedLayout* const layout = layoutOf(line, layouts);
        if (layout == nullptr) {
            return true;
        }
        const bool found = belongsTo(line, *layout, item);
        if (found) {
            fillFields(form, line, *layout);
        }
        return !found && layout->width != narrow;
    };
    form.List1.entries.visit(cutAndIndex<indexCorrugatedLine>, itemHash(item), narrow_lines, look);
}

// Fills both lists with the carton numbers of "first/last". They are 16-bit numbers, as on the
// labels, so that no text makes the lists endless.
void listVolumes(FrmPadrao& form) {
    form.cmb_vol1.clear();
    form.cmb_vol2.clear();
    const TextView volume = form.txtvolume.text;
    const std::size_t slash = volume.find(u'/');
    if (slash == TextView::npos) {
        return;
    }
    const std::int32_t first = toInteger16(volume.substr(0, slash));
    const std::int32_t last = toInteger16(volume.substr(slash + 1));
    for (std::int32_t number = first; number <= last; ++number) {
        form.cmb_vol1.entries.push_back(numberText(number));
    }
    form.cmb_vol2.entries = form.cmb_vol1.entries;
}

// The whole range, until the operator narrows it.
void chooseAllVolumes(FrmPadrao& form) {
    if (form.cmb_vol1.entries.empty()) {
        return;
    }
    form.cmb_vol1.choose(0);
    form.cmb_vol2.choose(static_cast<int>(form.cmb_vol2.entries.size()) - 1);
    form.lblmax.caption = form.cmb_vol2.text;
}

} // namespace

LineIndex::Line indexCorrugatedLine(LineIndex& index, LineIndex::Line number,
                                    const OrderBytes& line) {
    const CorrugatedLayout* const layout = layoutOf(line, layouts);
    const LineIndex::Line first = indexByItem(index, number, line, corrugated_key);
    if (first != LineIndex::none && layout != nullptr) {
        indexByCode(index, number, line, corrugated_key, trimmed(line[layout->compared]));
        if (layout->width == narrow) {
            index.add(narrow_lines, number);
        }
    }
    return first;
}

void carrega_corrugado(FrmPadrao& form) {
    clearFields(form);
    if (isBlank(form.cmb_referencia1.text)) {
        return;
    }
    fillFromLines(form, ItemKey(form.cmb_referencia1.text));
    listVolumes(form);
    chooseAllVolumes(form);
}

bool hasCorrugatedLayout(const OrderLine& line) {
    return layoutOf(line, layouts) != nullptr;
}

} // namespace etiquetas
