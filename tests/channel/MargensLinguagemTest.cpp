#include "channel/MargensLinguagem.h"

#include "channel/FontesMargem.h"
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

    friend void PrintTo(const DialogCase& that, std::ostream* out) { *out << that.name; }
};

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
    // No number at all: it comes and goes as it is.
    std::vector<Text> typed;
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

INSTANTIATE_TEST_SUITE_P(
    , MarginDialogTest,
    testing::Values(DialogCase{.name = "Hidden3Zpl",
                               .make = FrmMargensOcultaZPL,
                               .caption = u"Calibrar Margens - Etiqueta Oculta - ZPL",
                               .frame = u"Etiqueta 30x10x3",
                               .language = u"ZPL",
                               .source = pega_margemoculta,
                               .top_without_file = u"30",
                               .top_of_blank_key = u"30"},
                    DialogCase{.name = "Hidden7Zpl",
                               .make = FrmMargensOculta7ZPL,
                               .caption = u"Calibrar Margens - Etiqueta Oculta - ZPL",
                               .frame = u"Etiqueta 10x30x7",
                               .language = u"ZPL",
                               .source = pega_margemoculta7,
                               .top_without_file = u"70",
                               .top_of_blank_key = u"70"},
                    DialogCase{.name = "Hidden8Zpl",
                               .make = FrmMargensOculta8ZPL,
                               .caption = u"Calibrar Margens - Etiqueta Oculta - ZPL",
                               .frame = u"Etiqueta 10x30x8",
                               .language = u"ZPL",
                               .source = pega_margemoculta8,
                               .top_without_file = u"70",
                               .top_of_blank_key = u"70"},
                    DialogCase{.name = "Hidden3Ppla",
                               .make = FrmMargensOcultaPPLa,
                               .caption = u"Calibrar Margens - Etiqueta Oculta - PPLA",
                               .frame = u"Etiqueta 30x10x3",
                               .language = u"PPLA",
                               .source = pega_margemoculta},
                    DialogCase{.name = "BoxFrontZpl",
                               .make = FrmMargensCxZPL,
                               .caption = u"Calibrar Margens - Etiqueta Frente de Caixa - ZPL",
                               .frame = u"Etiqueta 40x45x2",
                               .language = u"ZPL",
                               .source = pega_margemfc,
                               .top_without_file = u"70",
                               .top_of_blank_key = u"3"}),
    [](const auto& tested) { return tested.param.name; });

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

TEST_F(MargensLinguagemTest, LeavingStoresNothing) {
    MargensLinguagem dialog = FrmMargensOcultaPPLa();
    MargensLinguagem_load(form, dialog);
    MargensLinguagem_cmd_exit(dialog);
    EXPECT_FALSE(dialog.open);
    EXPECT_FALSE(machine.files.fileExists(settings));
}

TEST_F(MargensLinguagemTest, MarginFieldsSelectTheirTextAndTakeDecimals) {
    MargensLinguagem dialog = FrmMargensOcultaZPL();
    MargensLinguagem_load(form, dialog);
    txtmargem1_enter(dialog, 1);
    EXPECT_EQ(dialog.txtmargem1[1].selection.length, TextView(u"305").size());
    EXPECT_EQ(dialog.txtmargem1[0].selection.length, 0U);
    EXPECT_EQ(txtmargem1_key(dialog, 1, u'.'), u',');
    txtmargemsuperior_enter(dialog);
    EXPECT_EQ(dialog.txtmargemsuperior->selection.length, TextView(u"30").size());
    EXPECT_EQ(txtmargemsuperior_key(dialog, u'.'), u',');
}

} // namespace etiquetas::test
