#include "labels/Corrugado.h"

#include "barcodes/Code39.h"
#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct CartonLabel {
    TextView code = u"2044556677", flag = u"B";
    Text description = u"TENIS CASUAL";
    std::int16_t first = 1, last = 1;
};

class CorrugadoTest : public testing::Test, protected Workbench {
  protected:
    CorrugadoTest() {
        takeLogos();
        form.PackX = 4.7F;
        form.PackY = 10;
        form.txtgrade1.text = u"34 35 36";
        form.txtgrade2.text = u"2 4 2";
        form.lblmax.caption = u"3";
    }

    void draw(const CartonLabel& label) {
        machine.forget();
        EtiPack(form, label.flag, u"CD 12", u"77", u"31045", u"VARESKO", label.description, u"AZUL",
                label.code, u"no", u"no", u"24", label.first, label.last, u"S26");
    }

    void knowCode39Bars(Text code) {
        PictureBox box(machine.pictures);
        DesenhaCode39(box, 1, code, false, false);
        knowBars(box.Picture(), code);
    }
};

TEST_F(CorrugadoTest, ShortPrePackCode) {
    knowCode39Bars(u"2044556677");
    draw({.flag = u"L"});
    EXPECT_TRUE(matchesGolden(machine.transcript, "corrugado-pre-pack"));
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677");
}

TEST_F(CorrugadoTest, EanWithShrunkTextsAndALongVolume) {
    knowCode39Bars(u"2044556677888");
    form.txtean.visible = true;
    form.txtgrade1.text = u"33/34 35 36 37 38 39/40";
    form.txtgrade2.text = u"2 4 2 4 2 4 2 4 2 4 2 4 2";
    form.lblmax.caption = u"120";
    draw({.code = u"2044556677888",
          .description = u"TENIS CASUAL DE COURO LISO COM CADARCO E ZIPER 01",
          .first = 7,
          .last = 7});
    EXPECT_TRUE(matchesGolden(machine.transcript, "corrugado-ean"));
}

TEST_F(CorrugadoTest, BarsHoldTwelveCharactersWhileTheEanIsHidden) {
    knowCode39Bars(u"204455667788");
    draw({.code = u"204455667788_"});
    EXPECT_EQ(machine.told("bars"), Log{R"(bars 20,7 84,0 60,0 40,0 "204455667788")"});
    EXPECT_EQ(machine.told("\"204455667788_\""),
              Log{R"(text 69,2 91,0 Franklin Gothic Medium 11 bold "204455667788_")"});
}

TEST_F(CorrugadoTest, CodeOfElevenCharactersIsSmall) {
    draw({.code = u"20445566778"});
    EXPECT_EQ(machine.told("\"20445566778\""),
              Log{R"(text 69,2 91,0 Franklin Gothic Medium 11 bold "20445566778")"});
}

TEST_F(CorrugadoTest, RefusedCodeEndsTheDrawingBeforeItsBars) {
    EXPECT_EQ(failureTextOf([&] { draw({.code = u"20_"}); }),
              "80040201 Bar 39: An Invalid Character Found in Bar Text");
    EXPECT_EQ(machine.transcript.back(), "rule 4,0 56,7 101,0 57,0");
}

TEST_F(CorrugadoTest, NoLabelForAnEmptyRange) {
    draw({.first = 3, .last = 2});
    EXPECT_EQ(machine.transcript, Log{"unit millimetres"});
}

struct Shrinking {
    std::string name;
    float size_step; // of the surface, in points
    std::size_t description_length, sizes_length;
    std::string description_starts, sizes_start, pairs_start; // the lines, up to their texts
};

class CorrugadoShrinkTest : public CorrugadoTest, public testing::WithParamInterface<Shrinking> {};

TEST_P(CorrugadoShrinkTest, WideTextsShrinkFromWhatTheSurfaceHolds) {
    const auto line = [](const std::string& start, TextView text) {
        return Log{start + inQuotes(text)};
    };
    const Text description(GetParam().description_length, u'A');
    const Text sizes(GetParam().sizes_length, u'6'), pairs(20, u'4');
    machine.printers.size_step = GetParam().size_step;
    form.txtgrade1.text = sizes;
    form.txtgrade2.text = pairs;
    draw({.description = description});
    EXPECT_EQ(machine.told(inQuotes(description)),
              line(GetParam().description_starts, description));
    EXPECT_EQ(machine.told(inQuotes(sizes)), line(GetParam().sizes_start, sizes));
    EXPECT_EQ(machine.told(inQuotes(pairs)), line(GetParam().pairs_start, pairs));
}

// 46 characters are 92 mm wide at 14 points; 48 are 91,9 at 13,4, and 18 are 59,4 at 23,1. Where
// the surface holds quarters, 48 are 90,9 at 13,25; 20 are 60 at 21, where the own count is at
// 20,4.
INSTANTIATE_TEST_SUITE_P(
    , CorrugadoShrinkTest,
    testing::Values(Shrinking{"Fits", 0, 46, 17, "text 6,2 78,4 Franklin Gothic Medium 14 bold ",
                              "text 10,56 118,0 Franklin Gothic Medium 24 bold ",
                              "text 5,41 127,0 Franklin Gothic Medium 24 bold "},
                    Shrinking{"StepsOfThreeTenths", 0, 48, 18,
                              "text 6,2 78,4 Franklin Gothic Medium 13,4 bold ",
                              "text 10,0 118,0 Franklin Gothic Medium 23,1 bold ",
                              "text 6,7 127,0 Franklin Gothic Medium 23,1 bold "},
                    Shrinking{"SurfaceThatHoldsQuarters", 0.25F, 48, 20,
                              "text 6,2 78,4 Franklin Gothic Medium 13,25 bold ",
                              "text 10,41 118,0 Franklin Gothic Medium 20,5 bold ",
                              "text 10,41 127,0 Franklin Gothic Medium 20,5 bold "}),
    [](const auto& row) { return row.param.name; });

TEST_F(CorrugadoTest, ShrinkingEndsWhereThereIsNoSmallerSize) {
    machine.printers.size_step = 0.25F;
    const Text description(9999, u'A');
    draw({.description = description});
    EXPECT_EQ(machine.told(inQuotes(description)),
              Log{"text 6,2 78,4 Franklin Gothic Medium 0,25 bold " + inQuotes(description)});
}

struct Volume {
    std::string name;
    TextView last_of_order;
    std::int16_t first, last;
    Log lines; // one a page
};

class CorrugadoVolumeTest : public CorrugadoTest, public testing::WithParamInterface<Volume> {};

TEST_P(CorrugadoVolumeTest, NumberIsPaddedToTheLengthOfTheLastOne) {
    form.lblmax.caption = GetParam().last_of_order;
    draw({.description = u"TENIS", .first = GetParam().first, .last = GetParam().last});
    EXPECT_EQ(machine.told("/"), GetParam().lines);
    EXPECT_EQ(machine.told("page").size(), GetParam().lines.size());
}

const std::string short_volume = "text 34,7 140,0 Franklin Gothic Medium 16 bold ";
const std::string long_volume = "text 29,9 141,7 Franklin Gothic Medium 12 bold ";

INSTANTIATE_TEST_SUITE_P(
    , CorrugadoVolumeTest,
    testing::Values(
        Volume{"OneDigit", u"3", 2, 3, {short_volume + R"("2/3")", short_volume + R"("3/3")"}},
        Volume{"TwoDigits", u"12", 7, 7, {short_volume + R"("07/12")"}},
        Volume{"ThreeDigits", u"120", 7, 7, {long_volume + R"("007/120")"}},
        Volume{"FourDigits", u"1234", 7, 7, {long_volume + R"("007/1234")"}},
        Volume{"BeyondTheLastOne", u"9", 1000, 1000, {long_volume + R"("1000/9")"}},
        Volume{"NoLastOne", u"", 6, 7, {short_volume + R"("6/7")", short_volume + R"("7/7")"}},
        Volume{"FiveDigits", u"12345", 7, 7, {short_volume + R"("7/7")"}}),
    [](const auto& row) { return row.param.name; });

} // namespace etiquetas::test
