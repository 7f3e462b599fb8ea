#include "labels/Corrugado.h"

#include "barcodes/Code39.h"
#include "support/FakePlatform.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

struct CartonLabel {
    TextView code = u"2044556677", flag = u"B";
    Text description = u"TENIS CASUAL DE COURO LISO COM CADARCO E ZIPER"; // just fits
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

// 48 characters are 90,9 mm wide at 13,25 points, the first held size that fits. 20 are 60 at 21,
// where the own count of the size run is at 20,4.
TEST_F(CorrugadoTest, WideTextsShrinkFromWhatTheSurfaceHolds) {
    const Text description(48, u'A');
    machine.printers.size_step = 0.25F;
    form.txtgrade1.text = Text(20, u'6');
    draw({.description = description});
    EXPECT_EQ(machine.told("text 6,2 78,4 "),
              Log{"text 6,2 78,4 Franklin Gothic Medium 13,25 bold " + inQuotes(description)});
    EXPECT_EQ(machine.told("666"),
              Log{R"(text 10,41 118,0 Franklin Gothic Medium 20,5 bold "66666666666666666666")"});
}

TEST_F(CorrugadoTest, ShrinkingEndsWhereThereIsNoSmallerSize) {
    const Text description(9999, u'A');
    machine.printers.size_step = 0.25F;
    draw({.description = description});
    EXPECT_EQ(machine.told("text 6,2 78,4 "),
              Log{"text 6,2 78,4 Franklin Gothic Medium 0,25 bold " + inQuotes(description)});
}

struct Volume {
    TextView last_of_order;
    std::int16_t first, last;
    Log lines; // one a page
};

TEST_F(CorrugadoTest, VolumeIsPaddedToTheLengthOfTheLastOne) {
    const std::string large = "text 34,7 140,0 Franklin Gothic Medium 16 bold ";
    const std::string small = "text 29,9 141,7 Franklin Gothic Medium 12 bold ";
    for (const auto& [last_of_order, first, last, lines] :
         {Volume{u"3", 2, 3, {large + R"("2/3")", large + R"("3/3")"}},
          Volume{u"12", 7, 7, {large + R"("07/12")"}},
          Volume{u"120", 7, 7, {small + R"("007/120")"}},
          Volume{u"1234", 7, 7, {small + R"("007/1234")"}},
          Volume{u"9", 1000, 1000, {small + R"("1000/9")"}},
          Volume{u"", 6, 7, {large + R"("6/7")", large + R"("7/7")"}},
          Volume{u"12345", 7, 7, {large + R"("7/7")"}}}) {
        form.lblmax.caption = last_of_order;
        draw({.first = first, .last = last});
        EXPECT_EQ(machine.told("/"), lines);
        EXPECT_EQ(machine.told("page").size(), lines.size());
    }
}

} // namespace

} // namespace etiquetas::test
