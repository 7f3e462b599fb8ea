#include "channel/MargensLinguagem.h"
#include "support/FakePlatform.h"
#include "support/ProgramGolden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// The test labels as the test command of each dialog prints them.
class EtiquetasDeTesteTest : public testing::Test, protected Workbench {
  protected:
    EtiquetasDeTesteTest() {
        form.cmbintensidade.text = u" 25 ";
        form.cmbvelocidade.text = u" 3";
        form.txtcodigo.text = u"31.4527 ";
    }

    using Texts = std::vector<Text>;

    /// Prints the test label with these left margins typed, and tells those that show then.
    Texts test(MargensLinguagem& dialog, const Texts& typed) {
        for (std::size_t i = 0; i < typed.size(); ++i) {
            dialog.txtmargem1.at(i).text = typed[i];
        }
        MargensLinguagem_cmd_teste(form, dialog);
        Texts shown;
        for (const TextField& column : dialog.txtmargem1) {
            shown.push_back(column.text);
        }
        return shown;
    }

    MargensLinguagem opened(MargensLinguagem dialog) const {
        MargensLinguagem_load(form, dialog);
        return dialog;
    }

    std::string& job = machine.files.bytes[u"/programa/epltemp.prn"];
    const Text command = u"/programa/IMPRIMIR.BAT";
};

TEST_F(EtiquetasDeTesteTest, HiddenLabelInThreeColumnsInZpl) {
    MargensLinguagem dialog = opened(FrmMargensOcultaZPL());
    dialog.txtmargemsuperior->text = u" ";
    EXPECT_EQ(test(dialog, {u" 5", u"", u"x.y"}), (Texts{u" 5", u"305", u"x.y"}));
    EXPECT_EQ(dialog.txtmargemsuperior->text, u"30");
    EXPECT_TRUE(holdsProgram(job, "zpl_hidden_3_columns"));
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\r\n"));
    dialog.txtmargemsuperior->text = u" 30 ";
    test(dialog, {u" 5 ", u"305", u"x.y"});
    EXPECT_TRUE(holdsProgram(job, "zpl_hidden_3_columns"));
    EXPECT_FALSE(machine.files.fileExists(u"/programa/Varesko.ini")) << "a test stores nothing";
}

TEST_F(EtiquetasDeTesteTest, HiddenLabelInPplaHasASampleCodeAndLeavesColumnsOfNoNumberOut) {
    form.txtcodigo.text = u" ";
    MargensLinguagem sample = opened(FrmMargensOcultaPPLa());
    test(sample, {u"1,5", u"", u"12345"});
    EXPECT_TRUE(holdsProgram(job, "ppla_hidden_3_columns"));
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\r\n"));
    form.txtcodigo.text = u"31.4527";
    MargensLinguagem dialog = opened(FrmMargensOcultaPPLa());
    test(dialog, {u"", u"x", u""});
    EXPECT_TRUE(holdsProgram(job, "ppla_hidden_unreadable_column"));
}

TEST_F(EtiquetasDeTesteTest, TurnedColumnsOnlyGrowToTheRight) {
    MargensLinguagem seven = opened(FrmMargensOculta7ZPL());
    seven.txtmargemsuperior->text = u"";
    EXPECT_EQ(test(seven, {u"40", u"30", u"", u" 500", u"400", u"x", u"7"}),
              (Texts{u"40", u"160", u"280", u" 500", u"520", u"x", u"7"}));
    EXPECT_EQ(seven.txtmargemsuperior->text, u"70");
    EXPECT_TRUE(holdsProgram(job, "zpl_hidden_7_columns"));
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\r\n"));

    MargensLinguagem eight = opened(FrmMargensOculta8ZPL());
    eight.txtmargemsuperior->text = u"";
    EXPECT_EQ(test(eight, {u"", u"160,4", u"160", u"99", u"90", u"", u"", u"1"}),
              (Texts{u"40", u"160,4", u"160", u"400", u"520", u"640", u"760", u"880"}));
    EXPECT_EQ(eight.txtmargemsuperior->text, u"70");
    EXPECT_TRUE(holdsProgram(job, "zpl_hidden_8_columns"));
}

TEST_F(EtiquetasDeTesteTest, BoxFrontSampleInBothColumnsWithoutLinesBeyondSixteenBits) {
    MargensLinguagem dialog = opened(FrmMargensCxZPL());
    dialog.txtmargemsuperior->text = u"";
    EXPECT_EQ(test(dialog, {u"", u"3.40"}), (Texts{u"25", u"3.40"}));
    EXPECT_EQ(dialog.txtmargemsuperior->text, u"10");
    EXPECT_TRUE(holdsProgram(job, "zpl_box_front"));
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\n\r\n"));
    dialog.txtmargemsuperior->text = u"9";
    test(dialog, {u"32765", u"x"});
    EXPECT_TRUE(holdsProgram(job, "zpl_box_front_unreadable"));
}

} // namespace etiquetas::test
