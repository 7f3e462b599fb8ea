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

/// Tells the size slots that are filled or shown, sizes before quantities.
inline void tellSlots(Journal& journal, const FrmPadrao& form) {
    for (std::size_t i = 0; i < total_slots; ++i) {
        const Label& size = form.Label7[i];
        tellField(journal, "Label7 " + std::to_string(i), size.caption,
                  size.visible ? " shown" : "");
    }
    for (std::size_t i = 0; i < total_slots; ++i) {
        const TextField& quantity = form.txtnumero[i];
        tellField(journal, "txtnumero " + std::to_string(i), quantity.text,
                  quantity.visible ? " shown" : "");
    }
}

/// Tells the totals and the size slots of an item.
inline void tellQuantities(Journal& journal, const FrmPadrao& form) {
    tellField(journal, "TXTPARES", form.TXTPARES);
    tellField(journal, "TXTOCULTAS", form.TXTOCULTAS);
    tellSlots(journal, form);
}

/// Tells the fields of a box or accessory item.
inline void tellItem(Journal& journal, const FrmPadrao& form) {
    tellField(journal, "txtcodigo", form.txtcodigo);
    tellField(journal, "txtcor", form.txtcor);
    tellField(journal, "txtdescricao", form.txtdescricao);
    tellField(journal, "txtpreco", form.txtpreco);
    tellField(journal, "txtsemana", form.txtsemana);
    tellField(journal, "txtbandeira", form.txtbandeira);
    tellField(journal, "txtpromocao", form.txtpromocao);
    tellQuantities(journal, form);
}

/// Tells the fields of a pack of cartons.
inline void tellPack(Journal& journal, const FrmPadrao& form) {
    tellField(journal, "txtqte1", form.txtqte1);
    tellField(journal, "txtcodigo1", form.txtcodigo1);
    tellField(journal, "txtfornecedor1", form.txtfornecedor1);
    tellField(journal, "txtcor1", form.txtcor1);
    tellField(journal, "txtdescricao1", form.txtdescricao1);
    tellField(journal, "txtprepack", form.txtprepack);
    tellField(journal, "txtgrade1", form.txtgrade1);
    tellField(journal, "txtgrade2", form.txtgrade2);
    tellField(journal, "txttotgrade", form.txttotgrade);
    tellField(journal, "txtsemana1", form.txtsemana1);
    tellField(journal, "txtdestino1", form.txtdestino1);
    tellField(journal, "txtvolume", form.txtvolume);
    tellField(journal, "txtean", form.txtean);
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
