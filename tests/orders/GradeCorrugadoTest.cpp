#include "orders/GradeCorrugado.h"

#include "support/Cases.h"
#include "support/ItemFields.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct Packs : LoadedWorkbench {
    void load(std::vector<Text> lines, TextView key = u"6|5|4") {
        form.List1.entries = std::move(lines);
        form.cmb_referencia1.type(Text(key));
        carrega_corrugado(form);
    }
};

class GradeCorrugadoTest : public testing::Test, protected Packs {};

/// The fields whose place depends on the width of a line.
struct PackReading {
    std::string name;
    NumberedLine line;
    Text key = u"6 | 5|4";
    Text prepack, grade1, grade2, total, week, destination, volume, ean;
};

class GradeCorrugadoFields : public testing::TestWithParam<PackReading>, protected Packs {};

TEST_P(GradeCorrugadoFields, AreThoseOfTheFirstLine) {
    const PackReading& reading = GetParam();
    NumberedLine later = reading.line;
    later.others[0] = u"second";
    const bool has_ean = !reading.ean.empty();
    form.txtean.visible = form.lblean.visible = !has_ean;
    load({lineOf(reading.line), lineOf(later)}, reading.key);
    expectPack(form, {.txtqte1 = u" 0",
                      .txtcodigo1 = u" 2",
                      .txtfornecedor1 = u" 3",
                      .txtcor1 = u" 4",
                      .txtdescricao1 = u" 5",
                      .txtprepack = reading.prepack,
                      .txtgrade1 = reading.grade1,
                      .txtgrade2 = reading.grade2,
                      .txttotgrade = reading.total,
                      .txtsemana1 = reading.week,
                      .txtdestino1 = reading.destination,
                      .txtvolume = reading.volume,
                      .txtean = reading.ean});
    EXPECT_EQ(form.txtean.visible, has_ean);
    EXPECT_EQ(form.lblean.visible, has_ean);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Widths, GradeCorrugadoFields, testing::Values(
    PackReading{.name = "Width13", .line = {.width = 13},
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10", .destination = u" 11", .volume = u" 12"},
    PackReading{.name = "Width14", .line = {.width = 14}, .key = u"7 | 5|4",
                .prepack = u" 7", .grade1 = u" 8", .grade2 = u" 9", .total = u" 9",
                .week = u" 11", .destination = u" 12", .volume = u" 13", .ean = u" 6"},
    PackReading{.name = "Width15", .line = {.width = 15}, .key = u"7 | 5|4",
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10/ 13", .destination = u" 11", .volume = u" 12", .ean = u" 6"},
    PackReading{.name = "Width15WithoutSuffix",
                .line = {.width = 15, .others = {{11, u" "}}}, .key = u"7|5|4",
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10", .destination = u" ", .volume = u" 12", .ean = u" 6"},
    PackReading{.name = "Width15WithEmptySuffix",
                .line = {.width = 15, .others = {{13, u""}}}, .key = u"7|5|4",
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10/", .destination = u" 11", .volume = u" 12", .ean = u" 6"},
    PackReading{.name = "Width16", .line = {.width = 16},
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10/ 13", .destination = u" 11", .volume = u" 12", .ean = u" 6"},
    PackReading{.name = "Width16WithoutSuffix", .line = {.width = 16, .others = {{13, u" "}}},
                .prepack = u" 6", .grade1 = u" 7", .grade2 = u" 8", .total = u" 9",
                .week = u" 10", .destination = u" 11", .volume = u" 12", .ean = u" 6"},
    PackReading{.name = "Width17", .line = {.width = 17},
                .prepack = u" 6", .grade1 = u" 8", .grade2 = u" 9", .total = u" 10",
                .week = u" 11/ 14", .destination = u" 12", .volume = u" 13", .ean = u" 6"},
    PackReading{.name = "Width17WithoutSuffix", .line = {.width = 17, .others = {{14, u" "}}},
                .prepack = u" 6", .grade1 = u" 8", .grade2 = u" 9", .total = u" 10",
                .week = u" 11", .destination = u" 12", .volume = u" 13", .ean = u" 6"}),
    CaseName());
// clang-format on

TEST_F(GradeCorrugadoTest, WhatIsNotFoundLeavesNothing) {
    struct Search {
        std::size_t width;
        TextView key;
    };
    for (const Search& search :
         {Search{.width = 12, .key = u"6|5|4"}, Search{.width = 18, .key = u"6|5|4"},
          Search{.width = 14, .key = u"6|5|4"}, Search{.width = 16, .key = u"6|4|4"},
          Search{.width = 17, .key = u"6|5|5"}, Search{.width = 16, .key = u" "}}) {
        SCOPED_TRACE(std::to_string(search.width) + " fields, " + utf8(search.key));
        load({lineOf(NumberedLine{.width = 16})});
        load({lineOf(NumberedLine{.width = search.width})}, search.key);
        expectPack(form, {});
        EXPECT_FALSE(form.txtean.visible);
        EXPECT_FALSE(form.lblean.visible);
    }
}

TEST_F(GradeCorrugadoTest, AfterALineOfWidth13ThatWasPassedOverNoneIsFound) {
    struct Widths {
        std::size_t passed_over, wanted;
        TextView quantity;
    };
    for (const Widths& widths : {Widths{.passed_over = 13, .wanted = 13, .quantity = u""},
                                 Widths{.passed_over = 13, .wanted = 16, .quantity = u""},
                                 Widths{.passed_over = 14, .wanted = 13, .quantity = u" 0"},
                                 Widths{.passed_over = 16, .wanted = 16, .quantity = u" 0"},
                                 Widths{.passed_over = 12, .wanted = 13, .quantity = u" 0"}}) {
        load({lineOf(NumberedLine{.width = widths.passed_over, .others = {{4, u"other"}}}),
              lineOf(NumberedLine{.width = widths.wanted})});
        EXPECT_EQ(form.txtqte1.text, widths.quantity)
            << widths.passed_over << " before " << widths.wanted;
    }
}

struct CartonRange {
    std::string name;
    Text volume;
    std::vector<Text> numbers;
    Text first, last;
};

class CartonNumbersTest : public testing::TestWithParam<CartonRange>, protected Packs {};

TEST_P(CartonNumbersTest, StandInBothLists) {
    load({lineOf(NumberedLine{.width = 16, .others = {{12, GetParam().volume}}})});
    EXPECT_EQ(form.cmb_vol1.entries, GetParam().numbers);
    EXPECT_EQ(form.cmb_vol2.entries, GetParam().numbers);
    EXPECT_EQ(form.cmb_vol1.text, GetParam().first);
    EXPECT_EQ(form.cmb_vol2.text, GetParam().last);
    EXPECT_EQ(form.lblmax.caption, GetParam().last);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Volumes, CartonNumbersTest, testing::Values(
    CartonRange{.name = "Three", .volume = u"5/7", .numbers = {u"5", u"6", u"7"},
                .first = u"5", .last = u"7"},
    CartonRange{.name = "ZerosAndBlanks", .volume = u" 09/10 ", .numbers = {u"9", u"10"},
                .first = u"9", .last = u"10"},
    CartonRange{.name = "One", .volume = u"1/1", .numbers = {u"1"}, .first = u"1", .last = u"1"},
    CartonRange{.name = "Reversed", .volume = u"7/5"},
    CartonRange{.name = "WithoutSlash", .volume = u"7"},
    CartonRange{.name = "Empty", .volume = u""}), CaseName());
// clang-format on

TEST_F(GradeCorrugadoTest, VolumesThatAreNoNumbersFail) {
    const auto loadVolume = [&](TextView volume) {
        load({lineOf(NumberedLine{.width = 16, .others = {{12, Text(volume)}}})});
    };
    EXPECT_EQ(failureOf([&] { loadVolume(u"1/x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([&] { loadVolume(u"1/40000"); }), failure_number::overflow);
}

} // namespace etiquetas::test
