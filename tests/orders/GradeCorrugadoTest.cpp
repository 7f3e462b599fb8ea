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

/// The fields that depend on the width of a line, and whether the EAN is shown.
struct PackLineReading {
    std::string name;
    NumberedLine line;
    Text key = u"6 | 5|4";
    PackFields fields;
    bool ean_shown = true;
};

class GradeCorrugadoFields : public testing::TestWithParam<PackLineReading>, protected Packs {};

TEST_P(GradeCorrugadoFields, AreThoseOfTheFirstLine) {
    NumberedLine later = GetParam().line;
    later.others[0] = u"second";
    form.txtean.visible = form.lblean.visible = !GetParam().ean_shown;
    load({lineOf(GetParam().line), lineOf(later)}, GetParam().key);
    expectPack(form, GetParam().fields);
    EXPECT_EQ(form.txtean.visible, GetParam().ean_shown);
    EXPECT_EQ(form.lblean.visible, GetParam().ean_shown);
}

// The fields of a line whose numbers start at the pre-pack code.
static PackFields packOf(PackFields fields) {
    fields.txtqte1 = u" 0";
    fields.txtcodigo1 = u" 2";
    fields.txtfornecedor1 = u" 3";
    fields.txtcor1 = u" 4";
    fields.txtdescricao1 = u" 5";
    return fields;
}

// Widths 15 and 16 differ in the field that tells whether the week has a suffix.
static PackFields packWithWeek(TextView week, TextView destination = u" 11") {
    return packOf({.txtprepack = u" 6",
                   .txtgrade1 = u" 7",
                   .txtgrade2 = u" 8",
                   .txttotgrade = u" 9",
                   .txtsemana1 = Text(week),
                   .txtdestino1 = Text(destination),
                   .txtvolume = u" 12",
                   .txtean = u" 6"});
}

static PackFields packOfWidth17(TextView week) {
    return packOf({.txtprepack = u" 6",
                   .txtgrade1 = u" 8",
                   .txtgrade2 = u" 9",
                   .txttotgrade = u" 10",
                   .txtsemana1 = Text(week),
                   .txtdestino1 = u" 12",
                   .txtvolume = u" 13",
                   .txtean = u" 6"});
}

INSTANTIATE_TEST_SUITE_P(
    Widths, GradeCorrugadoFields,
    testing::Values(PackLineReading{.name = "Width13",
                                    .line = {.width = 13},
                                    .fields = packOf({.txtprepack = u" 6",
                                                      .txtgrade1 = u" 7",
                                                      .txtgrade2 = u" 8",
                                                      .txttotgrade = u" 9",
                                                      .txtsemana1 = u" 10",
                                                      .txtdestino1 = u" 11",
                                                      .txtvolume = u" 12"}),
                                    .ean_shown = false},
                    PackLineReading{.name = "Width14",
                                    .line = {.width = 14},
                                    .key = u"7 | 5|4",
                                    .fields = packOf({.txtprepack = u" 7",
                                                      .txtgrade1 = u" 8",
                                                      .txtgrade2 = u" 9",
                                                      .txttotgrade = u" 9",
                                                      .txtsemana1 = u" 11",
                                                      .txtdestino1 = u" 12",
                                                      .txtvolume = u" 13",
                                                      .txtean = u" 6"})},
                    PackLineReading{.name = "Width15",
                                    .line = {.width = 15},
                                    .key = u"7 | 5|4",
                                    .fields = packWithWeek(u" 10/ 13")},
                    PackLineReading{.name = "Width15WithoutSuffix",
                                    .line = {.width = 15, .others = {{11, u" "}}},
                                    .key = u"7|5|4",
                                    .fields = packWithWeek(u" 10", u" ")},
                    PackLineReading{.name = "Width15WithEmptySuffix",
                                    .line = {.width = 15, .others = {{13, u""}}},
                                    .key = u"7|5|4",
                                    .fields = packWithWeek(u" 10/")},
                    PackLineReading{.name = "Width16",
                                    .line = {.width = 16},
                                    .fields = packWithWeek(u" 10/ 13")},
                    PackLineReading{.name = "Width16WithoutSuffix",
                                    .line = {.width = 16, .others = {{13, u" "}}},
                                    .fields = packWithWeek(u" 10")},
                    PackLineReading{.name = "Width17",
                                    .line = {.width = 17},
                                    .fields = packOfWidth17(u" 11/ 14")},
                    PackLineReading{.name = "Width17WithoutSuffix",
                                    .line = {.width = 17, .others = {{14, u" "}}},
                                    .fields = packOfWidth17(u" 11")}),
    CaseName());

INSTANTIATE_TEST_SUITE_P(
    NotFound, GradeCorrugadoFields,
    testing::Values(
        PackLineReading{.name = "Width12", .line = {.width = 12}, .ean_shown = false},
        PackLineReading{.name = "Width18", .line = {.width = 18}, .ean_shown = false},
        PackLineReading{.name = "CodeOfWidth14", .line = {.width = 14}, .ean_shown = false},
        PackLineReading{
            .name = "Description", .line = {.width = 16}, .key = u"6|4|4", .ean_shown = false},
        PackLineReading{
            .name = "Colour", .line = {.width = 17}, .key = u"6|5|5", .ean_shown = false},
        PackLineReading{
            .name = "BlankKey", .line = {.width = 16}, .key = u" ", .ean_shown = false}),
    CaseName());

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

INSTANTIATE_TEST_SUITE_P(Volumes, CartonNumbersTest,
                         testing::Values(CartonRange{.name = "Three",
                                                     .volume = u"5/7",
                                                     .numbers = {u"5", u"6", u"7"},
                                                     .first = u"5",
                                                     .last = u"7"},
                                         CartonRange{.name = "ZerosAndBlanks",
                                                     .volume = u" 09/10 ",
                                                     .numbers = {u"9", u"10"},
                                                     .first = u"9",
                                                     .last = u"10"},
                                         CartonRange{.name = "One",
                                                     .volume = u"1/1",
                                                     .numbers = {u"1"},
                                                     .first = u"1",
                                                     .last = u"1"},
                                         CartonRange{.name = "Reversed", .volume = u"7/5"},
                                         CartonRange{.name = "WithoutSlash", .volume = u"7"},
                                         CartonRange{.name = "Empty", .volume = u""}),
                         CaseName());

TEST_F(GradeCorrugadoTest, VolumesThatAreNoNumbersFail) {
    const auto loadVolume = [&](TextView volume) {
        load({lineOf(NumberedLine{.width = 16, .others = {{12, Text(volume)}}})});
    };
    EXPECT_EQ(failureOf([&] { loadVolume(u"1/x"); }), failure_number::type_mismatch);
    EXPECT_EQ(failureOf([&] { loadVolume(u"1/40000"); }), failure_number::overflow);
}

} // namespace etiquetas::test
