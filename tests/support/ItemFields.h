#pragma once

#include "support/FakePlatform.h"

#include <map>

namespace etiquetas::test {

/// Tells a field: its name, its text, and words on how it stands. An empty field without such
/// words leaves no line.
inline void tellField(Journal& journal, const std::string& name, TextView text,
                      const std::string& words = "") {
    if (!text.empty() || !words.empty()) {
        journal.tell(name, inQuotes(text) + words);
    }
}

inline void tellField(Journal& journal, const std::string& name, const TextField& field) {
    const std::string visible = field.visible ? "" : " hidden";
    tellField(journal, name, field.text, visible + (field.locked ? " locked" : ""));
}

/// Tells the text of a list, and its entries.
inline void tellList(Journal& journal, const std::string& name, const ListField& list) {
    tellField(journal, name, list.text);
    for (const Text& entry : list.entries) {
        tellField(journal, name + " entry", entry);
    }
}

/// Tells the totals of an item, and the size slots that are filled or shown.
inline void tellQuantities(Journal& journal, const FrmPadrao& form) {
    tellField(journal, "TXTPARES", form.TXTPARES);
    tellField(journal, "TXTOCULTAS", form.TXTOCULTAS);
    for (std::size_t i = 0; i < total_slots; ++i) {
        const std::string slot = " " + std::to_string(i);
        const Label& size = form.Label7[i];
        const TextField& quantity = form.txtnumero[i];
        tellField(journal, "Label7" + slot, size.caption, size.visible ? " shown" : "");
        tellField(journal, "txtnumero" + slot, quantity.text, quantity.visible ? " shown" : "");
    }
}

/// A text field of the Workbench and its name.
struct NamedField {
    const char* name;
    TextField FrmPadrao::*field;
};

// clang-format off
constexpr NamedField item_fields[] = {
    {"txtcodigo", &FrmPadrao::txtcodigo}, {"txtcor", &FrmPadrao::txtcor},
    {"txtdescricao", &FrmPadrao::txtdescricao}, {"txtpreco", &FrmPadrao::txtpreco},
    {"txtsemana", &FrmPadrao::txtsemana}, {"txtbandeira", &FrmPadrao::txtbandeira},
    {"txtpromocao", &FrmPadrao::txtpromocao}};

constexpr NamedField pack_fields[] = {
    {"txtqte1", &FrmPadrao::txtqte1}, {"txtcodigo1", &FrmPadrao::txtcodigo1},
    {"txtfornecedor1", &FrmPadrao::txtfornecedor1}, {"txtcor1", &FrmPadrao::txtcor1},
    {"txtdescricao1", &FrmPadrao::txtdescricao1}, {"txtprepack", &FrmPadrao::txtprepack},
    {"txtgrade1", &FrmPadrao::txtgrade1}, {"txtgrade2", &FrmPadrao::txtgrade2},
    {"txttotgrade", &FrmPadrao::txttotgrade}, {"txtsemana1", &FrmPadrao::txtsemana1},
    {"txtdestino1", &FrmPadrao::txtdestino1}, {"txtvolume", &FrmPadrao::txtvolume},
    {"txtean", &FrmPadrao::txtean}};
// clang-format on

/// Tells the fields of a box or accessory item.
inline void tellItem(Journal& journal, const FrmPadrao& form) {
    for (const NamedField& field : item_fields) {
        tellField(journal, field.name, form.*field.field);
    }
    tellQuantities(journal, form);
}

/// Tells the fields of a pack of cartons.
inline void tellPack(Journal& journal, const FrmPadrao& form) {
    for (const NamedField& field : pack_fields) {
        tellField(journal, field.name, form.*field.field);
    }
    tellField(journal, "lblean", form.lblean.caption, form.lblean.visible ? "" : " hidden");
}

/// Tells the volumes that the operator can choose from.
inline void tellVolumes(Journal& journal, const FrmPadrao& form) {
    tellList(journal, "cmb_vol1", form.cmb_vol1);
    tellList(journal, "cmb_vol2", form.cmb_vol2);
    tellField(journal, "lblmax", form.lblmax.caption);
}

/// A line of an order, so many fields wide. A field that is not among the `others` holds a blank
/// and its own number, so that a value tells the field that it came from.
struct NumberedLine {
    std::size_t width;
    std::map<std::size_t, Text> others = {};
};

inline Text lineOf(const NumberedLine& line) {
    Text text;
    for (std::size_t i = 0; i < line.width; ++i) {
        const std::string number = " " + std::to_string(i);
        const auto other = line.others.find(i);
        text += i > 0 ? u";" : u"";
        text += other == line.others.end() ? Text(number.begin(), number.end()) : other->second;
    }
    return text;
}

} // namespace etiquetas::test
