#include "labels/Corrugado.h"

#include "labels/LabelTest.h"

namespace etiquetas::test {

struct CartonLabel {
    TextView code = u"2044556677", flag = u"B";
    Text description = u"TENIS CASUAL DE COURO LISO COM CADARCO E ZIPER"; // just fits
    std::int16_t first = 1, last = 1;
};

class CorrugadoTest : public LabelTest {
  protected:
    CorrugadoTest() {
        form.PackX = 4.7F;
        form.PackY = 10;
        form.txtgrade1.text = u"34 35 36";
        form.txtgrade2.text = u"2 4 2";
        form.lblmax.caption = u"3";
    }

    void draw(const CartonLabel& label) {
        EtiPack(form, label.flag, u"CD 12", u"77", u"31045", u"VARESKO", label.description, u"AZUL",
                label.code, u"no", u"no", u"24", label.first, label.last, u"S26");
    }
};

TEST_F(CorrugadoTest, EanWithShrunkTextsAndALongVolume) {
    knowCode39Bars(u"2044556677888");
    form.txtean.visible = true;
    form.txtgrade1.text = u"33/34 35 36 37 38 39/40";
    form.txtgrade2.text = u"2 4 2 4 2 4 2 4 2 4 2 4 2";
    form.lblmax.caption = u"120";
    const Text description = u"TENIS CASUAL DE COURO LISO COM CADARCO E ZIPER 01";
    draw({.code = u"2044556677888", .description = description, .first = 7, .last = 7});
    EXPECT_TRUE(matchesGolden(machine.transcript, "corrugado-ean"));
    EXPECT_EQ(form.NomeFonte, u"Franklin Gothic Medium");
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
}

TEST_F(CorrugadoTest, BarsHoldTwelveCharactersWhileTheEanIsHidden) {
    for (const TextView code : {u"204455667788_", u"20445566778", u"2044556677"}) {
        knowCode39Bars(Text(left(code, 12)));
        draw({.code = code});
    }
    EXPECT_TRUE(matchesGolden(machine.told("bars ", " 91,0 "), "corrugado-codigos"));
}

TEST_F(CorrugadoTest, RefusedCodeEndsTheDrawingBeforeItsBars) {
    EXPECT_THROW(draw({.code = u"20_"}), Failure);
    EXPECT_EQ(machine.transcript.back(), "rule 4,0 56,7 101,0 57,0");
}

TEST_F(CorrugadoTest, WideTextsShrinkFromWhatTheSurfaceHolds) {
    machine.printers.size_step = 0.25F;
    draw({});
    form.txtgrade1.text = Text(20, u'6');
    draw({.description = Text(48, u'A')});
    EXPECT_TRUE(matchesGolden(machine.told(" 78,4 ", " 118,0 "), "corrugado-larguras"));
    draw({.description = Text(9999, u'A')}); // too wide at any size
    EXPECT_EQ(machine.told(" 78,4 Franklin Gothic Medium 0,25 bold").size(), 1U);
}

struct Volumes {
    TextView last_of_order;
    std::int16_t first, last;
};

TEST_F(CorrugadoTest, VolumeIsPaddedToTheLengthOfTheLastOne) {
    for (const auto& [last_of_order, first, last] :
         {Volumes{u"3", 2, 3}, Volumes{u"12", 7, 7}, Volumes{u"120", 7, 7}, Volumes{u"1234", 7, 7},
          Volumes{u"9", 1000, 1000}, Volumes{u"", 6, 7}, Volumes{u"12345", 7, 7},
          Volumes{u"3", 3, 2}}) {
        form.lblmax.caption = last_of_order;
        draw({.first = first, .last = last});
    }
    EXPECT_TRUE(matchesGolden(machine.told("/", "page"), "corrugado-volumes"));
}

} // namespace etiquetas::test
