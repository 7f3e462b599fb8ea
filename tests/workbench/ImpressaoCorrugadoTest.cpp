#include "barcodes/Code39.h"
#include "support/Golden.h"
#include "support/PrintWorkbench.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

namespace {

// Volumes 5 to 7, and a second item of volumes 8 and 9.
class ImpressaoCorrugadoTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoCorrugadoTest() { load(tipo::corrugado); }
};

TEST_F(ImpressaoCorrugadoTest, JobOfARangeOfVolumes) {
    PictureBox box(machine.pictures);
    Text code = u"20";
    DesenhaCode39(box, 1, code, false, false);
    knowBars(box.Picture(), code);
    form.txtprepack.text = u"30"; // not printed while the EAN is visible
    form.cmb_vol1.type(u"6");
    form.marca_logo.clear();
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-corrugado"));
    EXPECT_EQ(form.marca_logo, u"L");
}

TEST_F(ImpressaoCorrugadoTest, FirstVolumeAloneWhereTheLastIsBelowIt) {
    form.cmb_vol1.type(u"6");
    form.cmb_vol2.type(u"3");
    print();
    EXPECT_EQ(machine.told("\"6/7\"").size(), 1U);
    EXPECT_EQ(machine.told("Volume:").size(), 1U);
}

TEST_F(ImpressaoCorrugadoTest, PrePackCodeWhileTheEanIsHidden) {
    form.txtprepack.text = u"30";
    form.txtean.visible = false;
    form.cmb_vol1.type(u"7");
    print();
    EXPECT_EQ(machine.told(" 84,0 Franklin"),
              Log{R"(text 67,5 84,0 Franklin Gothic Medium 14 bold "30")"});
}

TEST_F(ImpressaoCorrugadoTest, NextItemOnYes) {
    print(Answer::yes);
    EXPECT_EQ(form.txtcodigo1.text, u"M2");
    EXPECT_EQ(form.cmb_vol1.text, u"8");
    EXPECT_EQ(form.cmb_vol2.text, u"9");
    print(Answer::yes);
    EXPECT_EQ(form.cmb_referencia1.entries.size(), 0U);
    EXPECT_EQ(form.List1.entries.size(), 0U);
}

TEST_F(ImpressaoCorrugadoTest, NoVolumesAreAnEmptyJob) {
    storeMargins("PackY=5");
    form.PackX = 9; // 3 mm where the settings have none
    form.cmb_vol1.clear();
    form.cmb_vol2.clear();
    print();
    EXPECT_EQ(machine.transcript,
              (Log{"printer Etiquetas", "unit millimetres", "paper 256", "page width 9000 twips",
                   "page height 9000 twips", "end of job", "printer Papel", closing_question}));
    EXPECT_EQ(machine.printers.face, "Estrangelo Edessa");
    EXPECT_EQ(form.PackX, 3);
    EXPECT_EQ(form.PackY, 5);
}

} // namespace

} // namespace etiquetas::test
