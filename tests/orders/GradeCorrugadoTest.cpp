#include "orders/GradeCorrugado.h"

#include "support/Golden.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class GradeCorrugadoTest : public testing::Test, protected LoadedWorkbench {
  protected:
    void load(const std::vector<Text>& lines, TextView key = u"6 | 5|4") {
        form.List1.entries = lines;
        form.cmb_referencia1.type(Text(key));
        carrega_corrugado(form);
    }

    void loadAndTell(const NumberedLine& line, TextView key = u"6 | 5|4") {
        NumberedLine later = line;
        later.others[0] = u"second";
        load({lineOf(line), lineOf(later)}, key);
        machine.tell("==", utf8(lineOf(line)));
        tellPack(machine, form);
    }
};

TEST_F(GradeCorrugadoTest, FieldsAreThoseOfTheFirstLine) {
    for (const NumberedLine& line :
         std::vector<NumberedLine>{{13}, {16}, {16, {{13, u" "}}}, {17}, {17, {{14, u" "}}}}) {
        loadAndTell(line);
    }
    for (const NumberedLine& line :
         std::vector<NumberedLine>{{14}, {15}, {15, {{11, u" "}}}, {15, {{13, u""}}}}) {
        loadAndTell(line, u"7 | 5|4");
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "item-de-corrugado"));
}

TEST_F(GradeCorrugadoTest, WhatIsNotFoundLeavesNothing) {
    struct Search {
        std::size_t width;
        TextView key;
    };
    for (const Search& search : {Search{12, u"6|5|4"}, Search{18, u"6|5|4"}, Search{14, u"6|5|4"},
                                 Search{16, u"6|4|4"}, Search{17, u"6|5|5"}, Search{16, u" "}}) {
        load({lineOf(NumberedLine{16})});
        load({lineOf(NumberedLine{search.width})}, search.key);
        machine.forget();
        tellPack(machine, form);
        EXPECT_EQ(machine.transcript, (Log{R"(txtean "" hidden)", R"(lblean "Código EAN" hidden)"}))
            << search.width << " fields, " << utf8(search.key);
    }
}

TEST_F(GradeCorrugadoTest, AfterALineOfWidth13ThatWasPassedOverNoneIsFound) {
    struct Widths {
        std::size_t passed_over, wanted;
        TextView quantity;
    };
    for (const Widths& widths : {Widths{13, 13, u""}, Widths{13, 16, u""}, Widths{14, 13, u" 0"},
                                 Widths{16, 16, u" 0"}, Widths{12, 13, u" 0"}}) {
        load({lineOf({.width = widths.passed_over, .others = {{4, u"other"}}}),
              lineOf(NumberedLine{widths.wanted})});
        EXPECT_EQ(form.txtqte1.text, widths.quantity)
            << widths.passed_over << " before " << widths.wanted;
    }
}

TEST_F(GradeCorrugadoTest, CartonNumbersStandInBothLists) {
    const auto load_volume = [&](TextView volume) {
        load({lineOf({.width = 16, .others = {{12, Text(volume)}}})});
    };
    for (const TextView volume : {u"5/7", u" 09/10 ", u"1/1", u"7/5", u"7", u""}) {
        load_volume(volume);
        machine.tell("==", inQuotes(volume));
        tellVolumes(machine, form);
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "volumes-de-corrugado"));
    EXPECT_EQ(failureOf([&] { load_volume(u"1/x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([&] { load_volume(u"1/40000"); }), failure_number::overflow);
}

} // namespace etiquetas::test
