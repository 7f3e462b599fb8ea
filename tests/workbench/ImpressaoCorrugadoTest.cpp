#include "support/Golden.h"
#include "support/PrintWorkbench.h"

namespace etiquetas::test {

// Volumes 5 to 7, and a second item of volumes 8 and 9.
class ImpressaoCorrugadoTest : public testing::Test, protected PrintWorkbench {
  protected:
    ImpressaoCorrugadoTest() { load(tipo::corrugado); }
};

TEST_F(ImpressaoCorrugadoTest, JobOfARangeOfVolumes) {
    knowCode39Bars(u"20");
    form.txtprepack.text = u"30"; // not printed while the EAN is visible
    form.cmb_vol1.type(u"6");
    form.marca_logo.clear();
    print();
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-corrugado"));
    EXPECT_EQ(form.marca_logo, u"L");
}

TEST_F(ImpressaoCorrugadoTest, FirstVolumeAloneWhereTheLastIsBelowItAndPrePackCodeWithoutEan) {
    form.txtprepack.text = u"30";
    form.txtean.visible = false;
    form.cmb_vol1.type(u"6");
    form.cmb_vol2.type(u"3");
    print();
    EXPECT_EQ(machine.told("\"6/7\"", "page", " 84,0 Franklin"),
              (Log{"page width 9000 twips", "page height 9000 twips",
                   R"(text 67,5 84,0 Franklin Gothic Medium 14 bold "30")",
                   R"(text 33,0 133,0 Franklin Gothic Medium 16 bold "6/7")", "page"}));
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
    EXPECT_TRUE(matchesGolden(machine.transcript, "impressao-corrugado-vazia"));
    EXPECT_EQ(machine.printers.face, "Estrangelo Edessa");
    EXPECT_EQ(form.PackX, 3);
    EXPECT_EQ(form.PackY, 5);
}

} // namespace etiquetas::test
