#pragma once

#include "model/FrmPadrao.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <map>

namespace etiquetas::test {

/// The fields of a box or accessory item.
struct ItemFields {
    Text txtcodigo, txtcor, txtdescricao, txtpreco, txtsemana, txtbandeira, txtpromocao;
};

inline void expectItem(const FrmPadrao& form, const ItemFields& expected) {
    EXPECT_EQ(form.txtcodigo.text, expected.txtcodigo);
    EXPECT_EQ(form.txtcor.text, expected.txtcor);
    EXPECT_EQ(form.txtdescricao.text, expected.txtdescricao);
    EXPECT_EQ(form.txtpreco.text, expected.txtpreco);
    EXPECT_EQ(form.txtsemana.text, expected.txtsemana);
    EXPECT_EQ(form.txtbandeira.text, expected.txtbandeira);
    EXPECT_EQ(form.txtpromocao.text, expected.txtpromocao);
}

/// The fields of a pack of cartons.
struct PackFields {
    Text txtqte1, txtcodigo1, txtfornecedor1, txtcor1, txtdescricao1, txtprepack, txtgrade1,
        txtgrade2, txttotgrade, txtsemana1, txtdestino1, txtvolume, txtean;
};

inline void expectPack(const FrmPadrao& form, const PackFields& expected) {
    EXPECT_EQ(form.txtqte1.text, expected.txtqte1);
    EXPECT_EQ(form.txtcodigo1.text, expected.txtcodigo1);
    EXPECT_EQ(form.txtfornecedor1.text, expected.txtfornecedor1);
    EXPECT_EQ(form.txtcor1.text, expected.txtcor1);
    EXPECT_EQ(form.txtdescricao1.text, expected.txtdescricao1);
    EXPECT_EQ(form.txtprepack.text, expected.txtprepack);
    EXPECT_EQ(form.txtgrade1.text, expected.txtgrade1);
    EXPECT_EQ(form.txtgrade2.text, expected.txtgrade2);
    EXPECT_EQ(form.txttotgrade.text, expected.txttotgrade);
    EXPECT_EQ(form.txtsemana1.text, expected.txtsemana1);
    EXPECT_EQ(form.txtdestino1.text, expected.txtdestino1);
    EXPECT_EQ(form.txtvolume.text, expected.txtvolume);
    EXPECT_EQ(form.txtean.text, expected.txtean);
}

/// A size slot; `size_shown` is that of `Label7`, `quantity_shown` that of `txtnumero`.
struct Slot {
    Text size, quantity;
    bool size_shown = true;
    bool quantity_shown = true;

    friend bool operator==(const Slot&, const Slot&) = default;
};

inline void PrintTo(const Slot& slot, std::ostream* out) {
    *out << "size '" << utf8(slot.size) << (slot.size_shown ? "'" : "' hidden") << ", quantity '"
         << utf8(slot.quantity) << (slot.quantity_shown ? "'" : "' hidden");
}

/// The slots from the first one to the last one that is not empty and hidden.
inline std::vector<Slot> slotsOf(const FrmPadrao& form) {
    std::vector<Slot> slots;
    for (std::size_t i = 0; i < total_slots; ++i) {
        slots.push_back({form.Label7[i].caption, form.txtnumero[i].text, form.Label7[i].visible,
                         form.txtnumero[i].visible});
    }
    while (!slots.empty() && slots.back() == Slot{u"", u"", false, false}) {
        slots.pop_back();
    }
    return slots;
}

inline void expectTotals(const FrmPadrao& form, TextView pairs, TextView hidden_labels) {
    EXPECT_EQ(form.TXTPARES.text, pairs);
    EXPECT_EQ(form.TXTOCULTAS.text, hidden_labels);
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
        const std::string number = std::to_string(i);
        const auto other = line.others.find(i);
        text += i > 0 ? u";" : u"";
        text +=
            other == line.others.end() ? u" " + Text(number.begin(), number.end()) : other->second;
    }
    return text;
}

} // namespace etiquetas::test
