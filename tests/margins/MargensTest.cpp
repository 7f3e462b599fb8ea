#include "margins/Margens.h"

#include "barcodes/Code39.h"
#include "support/Golden.h"
#include "support/ItemFields.h"
#include "support/Messages.h"
#include "support/PrintWorkbench.h"
#include "support/ProgramGolden.h"
#include "support/SettingsText.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// What the operator types. The carton dialog does not show its second field.
struct MarginTexts {
    TextView txtmargem1, txtmargem2, txtmargemsuperior;
};

constexpr MarginTexts ones{u"1", u"1", u"1"};
constexpr MarginTexts typed_margins{u"3,5", u"46", u"5"};

/// A box item whose first size with a quantity and a barcode is 36, and a carton item.
class MargensTest : public testing::Test, protected PrintWorkbench {
  protected:
    MargensTest() {
        load(tipo::corrugado);
        form.txtean.text = u"never"; // a test prints the pre-pack code all the same
        takeOrder(u"FRENTE", {u"LUMIRA", lineOf({.barcode = u" "}), lineOf({.size = u"35"}),
                              lineOf({.size = u"36"}), lineOf({.size = u"37"})});
        load(tipo::oculta);
        form.txtnumero[1].text = u" ";
        form.txtdescricao.text = u" TENIS CASUAL ";
    }

    static void type(MargensDialog& dialog, const MarginTexts& margins) {
        dialog.txtmargem1.text = margins.txtmargem1;
        dialog.txtmargem2.text = margins.txtmargem2;
        dialog.txtmargemsuperior.text = margins.txtmargemsuperior;
    }

    void tellMargins(const MargensDialog& dialog) {
        tellField(machine, "txtmargem1", dialog.txtmargem1);
        tellField(machine, "txtmargem2", dialog.txtmargem2);
        tellField(machine, "txtmargemsuperior", dialog.txtmargemsuperior);
    }

    void loadAndTell(MargensDialog& dialog) {
        margens_load(form, dialog);
        machine.tell("-- loaded");
        tellMargins(dialog);
    }

    void storeAndTell(MargensDialog& dialog, const MarginTexts& margins) {
        type(dialog, margins);
        dialog.open = true;
        cmd_gravar_click(form, dialog);
        EXPECT_FALSE(dialog.open);
        machine.tell("-- stored");
        tellMargins(dialog);
        for (const std::string& line : programLines(machine.files.bytes[settings_file])) {
            machine.tell(line);
        }
    }

    void test(MargensDialog& dialog, const MarginTexts& margins) {
        type(dialog, margins);
        form.coluna_etiqueta = 2;
        machine.forget();
        cmd_teste_click(form, dialog);
    }

    MargensDialog& oculta = form.FrmMargensOcultaZPL2;
    MargensDialog& caixa = form.FrmMargensCxZPL45;
    MargensDialog& pack = form.FrmMargensPackZPL;
};

TEST_F(MargensTest, MarginsAreStoredAsTypedAndDefaultsWhereTheyAreBlank) {
    for (MargensDialog* const dialog : {&oculta, &caixa, &pack}) {
        machine.files.bytes.erase(settings_file);
        machine.tell("==", utf8(dialog->Caption));
        loadAndTell(*dialog);
        storeAndTell(*dialog, {u"1,2,3", u"-4,5", u"6"});
        loadAndTell(*dialog);
        storeAndTell(*dialog, {u" ", u"", u" "});
    }
    EXPECT_TRUE(matchesGolden(machine.transcript, "margens"));
    for (const float margin : {form.PackX, form.Mx4045, form.Margem_oculta2}) {
        EXPECT_EQ(margin, 0); // until a test or a job
    }
}

TEST_F(MargensTest, HiddenFieldTakesTheCodeOfTheItem) {
    margens_load(form, oculta);
    EXPECT_EQ(oculta.txtcodigo->text, u"3104527");
    form.txtcodigo.text = u" ";
    margens_load(form, oculta);
    EXPECT_EQ(oculta.txtcodigo->text, u"50100779");
}

TEST_F(MargensTest, FieldsSelectTheirTextAndTakeDecimals) {
    caixa.txtmargem1.text = u"3 ";
    margem_enter(caixa.txtmargem1);
    EXPECT_EQ(caixa.txtmargem1.selection, (Selection{.start = 0, .length = 1}));
    EXPECT_EQ(margem_key(u'.'), u',');
    EXPECT_EQ(margem_key(u'x'), key::none);
}

TEST_F(MargensTest, ExitClosesTheDialogAndStoresNothing) {
    caixa.open = true;
    cmd_exit_click(form, caixa);
    EXPECT_FALSE(caixa.open);
    EXPECT_FALSE(machine.files.bytes.contains(settings_file));
}

TEST_F(MargensTest, TestPrintIsOneStripOfTheItem) {
    struct TestPrint {
        MargensDialog& dialog;
        TextView kind;
        const char* golden;
    };
    storeMargins("Margem_oculta1=7\r\n");
    const std::string settings = machine.files.bytes[settings_file];
    form.lblbarra.caption = u"2044556677888"; // an accessory's comes with the item
    form.txtpreco.text = u"0,00";
    PictureBox box(machine.pictures);
    Text code = u"20";
    DesenhaCode39(box, 1, code, false, false);
    knowBars(box.Picture(), code);
    // A kind that the dialog is not for is taken as an accessory by the first one, as it is by the
    // last one.
    for (const TestPrint& print : {TestPrint{oculta, tipo::corrugado, "teste-acessorio"},
                                   TestPrint{oculta, tipo::oculta, "teste-oculta"},
                                   TestPrint{caixa, tipo::frente_de_caixa, "teste-frente"},
                                   TestPrint{pack, tipo::oculta, "teste-corrugado"}}) {
        form.cmbtipo.type(Text(print.kind));
        form.marca_logo.clear();
        test(print.dialog, typed_margins);
        EXPECT_TRUE(matchesGolden(machine.transcript, print.golden));
        EXPECT_EQ(form.marca_logo, u"L");
        EXPECT_EQ(machine.files.bytes[settings_file], settings);
    }
}

TEST_F(MargensTest, TestTakesItsMarginsInMemoryUntilTheNextJob) {
    storeMargins("Margem_oculta1=7\r\n");
    test(oculta, typed_margins);
    test(pack, typed_margins);
    form.cmbtipo.choose(0);
    test(caixa, typed_margins);
    EXPECT_EQ(form.Margem_oculta1, 3.5F);
    EXPECT_EQ(form.Margem_oculta11, 46);
    EXPECT_EQ(form.Margem_oculta2, 5);
    EXPECT_EQ(form.Mx4045_1, 3.5F);
    EXPECT_EQ(form.Mx4045_2, 46);
    EXPECT_EQ(form.Mx4045, 5);
    EXPECT_EQ(form.PackX, 3.5F);
    EXPECT_EQ(form.PackY, 5);
    form.cmbtipo.choose(3);
    print();
    EXPECT_EQ(form.Margem_oculta1, 7);
}

TEST_F(MargensTest, BoxFrontTakesAPriceAndATrimmedPromotion) {
    form.cmbtipo.choose(0);
    form.txtpromocao.text = u" A ";
    test(caixa, typed_margins);
    EXPECT_EQ(form.txtpreco.text, u"0,00");
    EXPECT_EQ(machine.told("\"A\""), (Log{R"(text 33,5 32,0 Calibri 16 bold "A")",
                                          R"(text 76,0 32,0 Calibri 16 bold "A")"}));
}

TEST_F(MargensTest, MarginThatIsNoNumberAndStepsThatFailArePassedOver) {
    form.Margem_oculta1 = form.Margem_oculta2 = 3;
    machine.failing = {"printers", "paper", "width", "height", "end"};
    test(oculta, {u"1,2,3", u"46", u"-,-"});
    EXPECT_EQ(machine.told("\"527\""), (Log{R"(text 33,3 2,0 Calibri 20 bold "527")",
                                            R"(text 79,0 2,0 Calibri 20 bold "527")"}));
    EXPECT_EQ(machine.transcript.front(), "unit millimetres");
    EXPECT_EQ(machine.transcript.back(), "page");
}

TEST_F(MargensTest, CartonWithoutAVolumeNumberIsNotPrinted) {
    form.PackX = form.PackY = 3;
    form.PackLinhaX = 0;
    form.cmb_vol1.text = u"x";
    test(pack, {u"x", u"", u"5"});
    EXPECT_EQ(machine.told("text "), Log());
    EXPECT_EQ(form.PackX, 3);
    EXPECT_EQ(form.PackY, 5);
    EXPECT_EQ(form.PackLinhaX, 0);
    EXPECT_EQ(form.PackLinhaY, 5);
}

TEST_F(MargensTest, FirstBlankMarginIsToldAndGetsTheFocus) {
    struct Blank {
        MargensDialog& dialog;
        MarginTexts typed;
        TextField& focused;
    };
    for (const Blank& blank : {Blank{oculta, {u" ", u"", u" "}, oculta.txtmargem1},
                               Blank{caixa, {u"1", u"", u" "}, caixa.txtmargem2},
                               Blank{pack, {u"1", u"", u" "}, pack.txtmargemsuperior}}) {
        test(blank.dialog, blank.typed);
        EXPECT_EQ(machine.log, Log{messageBox("Informe a Margem...")});
        EXPECT_EQ(machine.focused, &blank.focused) << utf8(blank.dialog.Caption);
    }
}

TEST_F(MargensTest, BoxFrontIsNotTestedForAnotherKind) {
    test(caixa, ones);
    EXPECT_EQ(machine.log, Log());
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(MargensTest, BlankItemIsToldAndTestedAllTheSame) {
    form.cmbtipo.choose(0);
    form.txtdescricao.text = u" "; // no size has it
    test(caixa, ones);
    EXPECT_EQ(machine.transcript,
              (Log{R"(message none ok "Selecione o Item que deseja Imprimir")", "printer Etiquetas",
                   "unit millimetres", "paper 256", "page width 9000 twips",
                   "page height 2660 twips", "end of job", "printer Papel"}));
    EXPECT_EQ(form.txtpreco.text, u"");
}

TEST_F(MargensTest, BothLogosAreNeeded) {
    form.cmbtipo.choose(0);
    for (bool FrmPadrao::*const logo : {&FrmPadrao::LogoLumiraOk, &FrmPadrao::LogoBrisakoOk}) {
        form.*logo = false;
        test(caixa, ones);
        EXPECT_EQ(machine.log, Log{messageBox("O Arquivo do Logotipo não foi localizado")});
        form.*logo = true;
    }
}

} // namespace etiquetas::test
