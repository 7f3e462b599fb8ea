#include "channel/MargensLinguagem.h"

#include "channel/FontesMargem.h"
#include "support/Cases.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

static const Text settings = u"/programa/Varesko.ini";

struct DialogCase {
    std::string name;
    MargensLinguagem (*make)() = nullptr;
    Text caption;
    Text frame;
    // What the labels print with that the dialog calibrates.
    Text language;
    MargensDeEtiqueta (*source)(const FrmPadrao&) = nullptr;
    // The top margin of an opened dialog, empty where it has none.
    Text top_without_file;
    Text top_of_blank_key;
};

static const Text oculta_zpl = u"Calibrar Margens - Etiqueta Oculta - ZPL";
static const Text oculta_ppla = u"Calibrar Margens - Etiqueta Oculta - PPLA";
static const Text frente_zpl = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL";

// clang-format off
static const std::vector<DialogCase> dialogs{
    // name, make, caption, frame, language, source, top without a file, top of a blank key
    {"Hidden3Zpl", FrmMargensOcultaZPL, oculta_zpl, u"Etiqueta 30x10x3", u"ZPL", pega_margemoculta, u"30", u"30"},
    {"Hidden7Zpl", FrmMargensOculta7ZPL, oculta_zpl, u"Etiqueta 10x30x7", u"ZPL", pega_margemoculta7, u"70", u"70"},
    {"Hidden8Zpl", FrmMargensOculta8ZPL, oculta_zpl, u"Etiqueta 10x30x8", u"ZPL", pega_margemoculta8, u"70", u"70"},
    {"Hidden3Ppla", FrmMargensOcultaPPLa, oculta_ppla, u"Etiqueta 30x10x3", u"PPLA", pega_margemoculta, u"", u""},
    {"BoxFrontZpl", FrmMargensCxZPL, frente_zpl, u"Etiqueta 40x45x2", u"ZPL", pega_margemfc, u"70", u"3"},
};
// clang-format on

class MarginDialogTest : public testing::TestWithParam<DialogCase>, protected Workbench {
  protected:
    MarginDialogTest() { form.lbllinguagem.caption = GetParam().language; }

    static void expectShown(const MargensLinguagem& dialog, const std::vector<Text>& columns,
                            const Text& top) {
        ASSERT_EQ(dialog.txtmargem1.size(), columns.size());
        for (std::size_t i = 0; i < columns.size(); ++i) {
            EXPECT_EQ(dialog.txtmargem1[i].text, columns[i]) << "column " << i;
        }
        ASSERT_EQ(dialog.txtmargemsuperior.has_value(), !top.empty());
        EXPECT_EQ(dialog.txtmargemsuperior.value_or(TextField()).text, top);
    }
};

TEST_P(MarginDialogTest, OpensWithItsTextsAndDefaults) {
    MargensLinguagem dialog = GetParam().make();
    const std::vector<Text> defaults = GetParam().source(form).colunas;
    EXPECT_EQ(dialog.Caption, GetParam().caption);
    EXPECT_EQ(dialog.Frame1.caption, GetParam().frame);
    MargensLinguagem_load(form, dialog);
    EXPECT_TRUE(dialog.open);
    expectShown(dialog, defaults, GetParam().top_without_file);
    machine.files.bytes[settings] = "";
    MargensLinguagem_load(form, dialog);
    expectShown(dialog, defaults, GetParam().top_of_blank_key);
}

TEST_P(MarginDialogTest, StoresWhatIsTypedWhereItsLabelsTakeIt) {
    MargensLinguagem dialog = GetParam().make();
    std::vector<Text> typed; // which is no number at all, and comes and goes as it is
    for (TextField& column : dialog.txtmargem1) {
        column.text = typed.emplace_back(Text(typed.size() + 1, u'x'));
    }
    const Text top = dialog.txtmargemsuperior ? u"top" : u"";
    if (dialog.txtmargemsuperior) {
        dialog.txtmargemsuperior->text = top;
    }
    dialog.open = true;
    MargensLinguagem_cmd_gravar(form, dialog);
    EXPECT_FALSE(dialog.open);
    EXPECT_EQ(GetParam().source(form).colunas, typed);
    EXPECT_EQ(GetParam().source(form).superior, top);
    MargensLinguagem opened_again = GetParam().make();
    MargensLinguagem_load(form, opened_again);
    expectShown(opened_again, typed, top);
}

INSTANTIATE_TEST_SUITE_P(, MarginDialogTest, testing::ValuesIn(dialogs), CaseName());

class MargensLinguagemTest : public testing::Test, protected Workbench {};

TEST_F(MargensLinguagemTest, BlankFieldsAreStoredAsDefaults) {
    MargensLinguagem dialog = FrmMargensCxZPL();
    dialog.txtmargem1[0].text = u"";
    dialog.txtmargem1[1].text = u"  ";
    dialog.txtmargemsuperior->text = u" ";
    MargensLinguagem_cmd_gravar(form, dialog);
    EXPECT_EQ(machine.files.bytes[settings],
              fileOf({u"[MargemOcultaZebra]", u"Margem_frente_zpl_1=25", u"Margem_frente_zpl_2=340",
                      u"Margem_frente_zpl_2_superior=10"}));
}

TEST_F(MargensLinguagemTest, MarginFieldsSelectTheirTextAndTakeDecimalsThatLeavingDoesNotStore) {
    MargensLinguagem dialog = FrmMargensOcultaZPL();
    MargensLinguagem_load(form, dialog);
    txtmargem1_enter(dialog, 1);
    EXPECT_EQ(dialog.txtmargem1[1].selection.length, TextView(u"305").size());
    EXPECT_EQ(dialog.txtmargem1[0].selection.length, 0U);
    EXPECT_EQ(txtmargem1_key(dialog, 1, u'.'), u',');
    txtmargemsuperior_enter(dialog);
    EXPECT_EQ(dialog.txtmargemsuperior->selection.length, TextView(u"30").size());
    EXPECT_EQ(txtmargemsuperior_key(dialog, u'.'), u',');
    MargensLinguagem_cmd_exit(dialog);
    EXPECT_FALSE(dialog.open);
    EXPECT_FALSE(machine.files.fileExists(settings));
}

} // namespace etiquetas::test
