#include "margins/Margens.h"

#include "orders/GradeCorrugado.h"
#include "support/Cases.h"
#include "support/FakePlatform.h"
#include "support/Messages.h"
#include "support/SettingsText.h"
#include "workbench/Impressao.h"
#include "workbench/Pedido.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// The entry fields of a dialog. The carton dialog has no second column.
struct MarginTexts {
    Text txtmargem1, txtmargem2, txtmargemsuperior;
};

const MarginTexts ones{.txtmargem1 = u"1", .txtmargem2 = u"1", .txtmargemsuperior = u"1"};
const MarginTexts typed_margins{
    .txtmargem1 = u"3,5", .txtmargem2 = u"46", .txtmargemsuperior = u"5"};

/// Top-left corner of a text, millimetres.
struct Place {
    double x, y;

    friend bool operator==(const Place&, const Place&) = default;
};

inline void PrintTo(const Place& place, std::ostream* out) {
    *out << "at " << place.x << ", " << place.y;
}

/// A box item whose first size with a quantity and a barcode is 36, and a carton item.
struct Calibration : LoadedWorkbench {
    Calibration() {
        machine.files.bytes[u"/programa/77 FRENTE.TXT"] =
            fileOf({u"LUMIRA", lineOf({.barcode = u" "}), lineOf({.size = u"35"}),
                    lineOf({.size = u"36"}), lineOf({.size = u"37"})});
        form.cmbtipo.choose(3);
        form.CMBPRINTER.choose(1);
        form.txtarquivo.text = u"77";
        carrega_pedido(form);
        form.txtnumero[1].text = u" ";
        form.LogoBrisakoOk = form.LogoLumiraOk = true;
        form.List1.entries.emplace_back(u";;527;b;c;d;e;f;g;h;i;a;2/9");
        form.cmb_referencia1.text = u"e | d | c";
        carrega_corrugado(form);
        form.txtean = {.text = u"never"}; // a test prints the pre-pack code all the same
        ini().clear();
    }

    std::string& ini() { return machine.files.bytes[settings_file]; }

    static void type(MargensDialog& dialog, const MarginTexts& margins) {
        dialog.txtmargem1.text = margins.txtmargem1;
        dialog.txtmargem2.text = margins.txtmargem2;
        dialog.txtmargemsuperior.text = margins.txtmargemsuperior;
    }

    static void expectShown(const MargensDialog& dialog, const MarginTexts& margins) {
        EXPECT_EQ(dialog.txtmargem1.text, margins.txtmargem1);
        EXPECT_EQ(dialog.txtmargem2.text, margins.txtmargem2);
        EXPECT_EQ(dialog.txtmargemsuperior.text, margins.txtmargemsuperior);
    }

    void test(MargensDialog& dialog, const MarginTexts& margins) {
        type(dialog, margins);
        form.coluna_etiqueta = 2;
        machine.forget();
        cmd_teste_click(form, dialog);
    }

    // What the last test did but its drawings.
    [[nodiscard]] Log steps() const {
        return machine.logged({"message", "printer", "paper", "width", "height", "page", "end"});
    }

    // The texts of the last test, in their order.
    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (const std::string& line : machine.told("text ")) {
            const auto quote = line.find('"') + 1;
            texts.push_back(line.substr(quote, line.size() - quote - 1));
        }
        return texts;
    }

    // Where the last test printed a text.
    [[nodiscard]] std::vector<Place> placesOf(const std::string& text) const {
        std::vector<Place> places;
        for (std::string line : machine.told("\"" + text + "\"")) {
            std::replace(line.begin(), line.end(), ',', '.');
            Place place{};
            std::istringstream(line.substr(line.find(' '))) >> place.x >> place.y;
            places.push_back(place);
        }
        return places;
    }

    MargensDialog& oculta = form.FrmMargensOcultaZPL2;
    MargensDialog& caixa = form.FrmMargensCxZPL45;
    MargensDialog& pack = form.FrmMargensPackZPL;
};

class MargensTest : public testing::Test, protected Calibration {};

/// Where a dialog stores its margins, and its defaults; that of the top margin is 3.
struct StoredMargins {
    std::string name;
    MargensDialog FrmPadrao::*dialog;
    std::string key1, key2, key_top;
    Text default1, default2;
};

class StoredMarginsTest : public testing::TestWithParam<StoredMargins>, protected Calibration {
  protected:
    void expectStored(const MarginTexts& margins) {
        std::string file = "[MargemOcultaZebra]\r\n";
        file += GetParam().key1 + "=" + utf8(margins.txtmargem1) + "\r\n";
        if (has_second) {
            file += GetParam().key2 + "=" + utf8(margins.txtmargem2) + "\r\n";
        }
        EXPECT_EQ(ini(),
                  file + GetParam().key_top + "=" + utf8(margins.txtmargemsuperior) + "\r\n");
    }

    MargensDialog& dialog = form.*GetParam().dialog;
    const bool has_second = !GetParam().key2.empty();
    const MarginTexts defaults{GetParam().default1, GetParam().default2, u"3"};
};

TEST_P(StoredMarginsTest, AreTheDefaultsWithoutSettings) {
    machine.files.bytes.erase(settings_file);
    margens_load(form, dialog);
    expectShown(dialog, defaults);
}

TEST_P(StoredMarginsTest, AreStoredAsTypedAndShownAgain) {
    const MarginTexts typed{.txtmargem1 = u"1,2,3",
                            .txtmargem2 = has_second ? u"-4,5" : u"",
                            .txtmargemsuperior = u"6"};
    margens_load(form, dialog);
    type(dialog, typed);
    dialog.open = true;
    cmd_gravar_click(form, dialog);
    expectStored(typed);
    EXPECT_FALSE(dialog.open);
    margens_load(form, dialog);
    expectShown(dialog, typed);
    for (const float margin : {form.PackX, form.Mx4045, form.Margem_oculta2}) {
        EXPECT_EQ(margin, 0); // until a test or a job
    }
}

TEST_P(StoredMarginsTest, AreTheDefaultsWhereAFieldIsBlank) {
    margens_load(form, dialog);
    type(dialog, {.txtmargem1 = u" ", .txtmargem2 = u"", .txtmargemsuperior = u" "});
    cmd_gravar_click(form, dialog);
    expectStored(defaults);
    expectShown(dialog, {.txtmargem1 = u" ", .txtmargem2 = u"", .txtmargemsuperior = u"3"});
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Dialogs, StoredMarginsTest, testing::Values(
    StoredMargins{.name = "HiddenAndAccessory", .dialog = &FrmPadrao::FrmMargensOcultaZPL2,
                  .key1 = "Margem_oculta1", .key2 = "Margem_oculta11",
                  .key_top = "Margem_oculta2", .default1 = u"3", .default2 = u"45"},
    StoredMargins{.name = "BoxFront", .dialog = &FrmPadrao::FrmMargensCxZPL45,
                  .key1 = "Mx4045_1", .key2 = "Mx4045_2",
                  .key_top = "Mx4045", .default1 = u"0", .default2 = u"40"},
    StoredMargins{.name = "Carton", .dialog = &FrmPadrao::FrmMargensPackZPL,
                  .key1 = "PackX", .key_top = "PackY", .default1 = u"3"}), CaseName());
// clang-format on

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
    EXPECT_EQ(ini(), "");
}

/// A test print with the margins 3,5, 46 and 5: its page, and on each of its labels the texts and
/// the place of the item code.
struct TestPrint {
    std::string name;
    MargensDialog FrmPadrao::*dialog;
    TextView kind;
    std::string height;
    std::vector<Place> places_of_code;
    std::vector<std::string> texts_of_label;
};

class TestPrintTest : public testing::TestWithParam<TestPrint>, protected Calibration {};

TEST_P(TestPrintTest, IsOneStripOfTheItem) {
    ini() = "[MargemOcultaZebra]\r\nMargem_oculta1=7\r\n";
    form.cmbtipo.type(Text(GetParam().kind));
    form.lblbarra.caption = u"2044556677888"; // an accessory's comes with the item
    form.txtpreco.text = u"0,00";
    form.marca_logo.clear();
    test(form.*GetParam().dialog, typed_margins);
    EXPECT_EQ(steps(), (Log{"printer Etiquetas", "paper 256", "width 9000",
                            "height " + GetParam().height, "page", "end", "printer Papel"}));
    EXPECT_EQ(machine.told("unit ").front(), "unit millimetres");
    EXPECT_EQ(placesOf("527"), GetParam().places_of_code);
    std::vector<std::string> texts_of_strip;
    for (std::size_t label = 0; label < GetParam().places_of_code.size(); ++label) {
        texts_of_strip.insert(texts_of_strip.end(), GetParam().texts_of_label.begin(),
                              GetParam().texts_of_label.end());
    }
    EXPECT_EQ(texts(), texts_of_strip);
    EXPECT_EQ(form.marca_logo, u"L");
    EXPECT_EQ(ini(), "[MargemOcultaZebra]\r\nMargem_oculta1=7\r\n");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Dialogs, TestPrintTest, testing::Values(
    TestPrint{
        .name = "Hidden", .dialog = &FrmPadrao::FrmMargensOcultaZPL2, .kind = tipo::oculta,
        .height = "1200", .places_of_code = {{.x = 33.8, .y = 4}, {.x = 79, .y = 4}},
        .texts_of_label = {"527", "3104527001", "204455", "6677888", "36", "TENIS CASUAL", "AZUL"}},
    TestPrint{
        .name = "AccessoryForAnyOtherKind", .dialog = &FrmPadrao::FrmMargensOcultaZPL2,
        .kind = tipo::corrugado, .height = "1200",
        .places_of_code = {{.x = 32.7, .y = 18}, {.x = 78.5, .y = 18}}, // moved to the left
        .texts_of_label = {"TENIS CASUAL AZUL", "3104527", "FAIXA A", "202611/OFERTA", "204455",
                           "6677888", "OFERTA", "527"}},
    TestPrint{
        .name = "BoxFront", .dialog = &FrmPadrao::FrmMargensCxZPL45,
        .kind = tipo::frente_de_caixa, .height = "2660",
        .places_of_code = {{.x = 23.5, .y = 2.5}, {.x = 66, .y = 2.5}},
        .texts_of_label = {"202611/OFERTA", "OFERTA", "527", "FAIXA A", "3104527001",
                           "TENIS CASUAL", "AZUL", "36", "204455", "6677888"}},
    TestPrint{
        .name = "CartonForAnyKind", .dialog = &FrmPadrao::FrmMargensPackZPL,
        .kind = tipo::oculta, .height = "9000", .places_of_code = {{.x = 58.5, .y = 31.7}},
        .texts_of_label = {"CD - DESTINO", "a", "PEDIDO", "Cód. Master", "77", "527", "FORNECEDOR",
                           "b", "NOTA FISCAL:", "Descrição", "d", "COR", "c", "CÓDIGO", "e",
                           "TOTAL", "h", "f", "g", "Volume:", "2/9", "Semana:", "i"}}),
    CaseName());
// clang-format on

TEST_F(MargensTest, TestTakesItsMarginsInMemoryUntilTheNextJob) {
    ini() = "[MargemOcultaZebra]\r\nMargem_oculta1=7\r\n";
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
    cmd_printacessorio_click(form);
    EXPECT_EQ(form.Margem_oculta1, 7);
}

TEST_F(MargensTest, BlankPriceBecomesZeroInATestOfTheBoxFront) {
    form.cmbtipo.choose(0);
    test(caixa, ones);
    EXPECT_EQ(form.txtpreco.text, u"0,00");
}

TEST_F(MargensTest, PromotionLosesItsBlanksBeforeItsLengthIsLookedAt) {
    form.cmbtipo.choose(0);
    form.txtpromocao.text = u" A ";
    test(caixa, typed_margins);
    EXPECT_EQ(machine.told("text 33,5 32,0 Calibri 16 bold \"A\"").size(), 1U);
}

TEST_F(MargensTest, MarginThatIsNoNumberAndStepsThatFailArePassedOver) {
    form.Margem_oculta1 = form.Margem_oculta2 = 3;
    machine.failing = {"printers", "paper", "width", "height", "end"};
    test(oculta, {.txtmargem1 = u"1,2,3", .txtmargem2 = u"46", .txtmargemsuperior = u"-,-"});
    EXPECT_EQ(steps(), (Log{"page"}));
    EXPECT_EQ(placesOf("527"), (std::vector<Place>{{.x = 33.3, .y = 2}, {.x = 79, .y = 2}}));
}

TEST_F(MargensTest, CartonWithoutAVolumeNumberIsNotPrinted) {
    form.PackX = form.PackY = 3;
    form.cmb_vol1.text = u"x";
    test(pack, {.txtmargem1 = u"x", .txtmargemsuperior = u"5"});
    EXPECT_EQ(texts(), std::vector<std::string>());
    EXPECT_EQ(form.PackX, 3);
    EXPECT_EQ(form.PackY, 5);
    EXPECT_EQ(form.PackLinhaX, 0);
    EXPECT_EQ(form.PackLinhaY, 5);
}

TEST_F(MargensTest, FirstBlankMarginIsToldAndGetsTheFocus) {
    struct Blank {
        MargensDialog& dialog;
        TextView txtmargem1;
        TextField& focused;
    };
    for (const Blank& blank :
         {Blank{.dialog = oculta, .txtmargem1 = u" ", .focused = oculta.txtmargem1},
          Blank{.dialog = caixa, .txtmargem1 = u"1", .focused = caixa.txtmargem2},
          Blank{.dialog = pack, .txtmargem1 = u"1", .focused = pack.txtmargemsuperior}}) {
        test(blank.dialog,
             {.txtmargem1 = Text(blank.txtmargem1), .txtmargem2 = u"", .txtmargemsuperior = u" "});
        EXPECT_EQ(machine.log, Log{messageBox("Informe a Margem...")});
        EXPECT_EQ(machine.focused, &blank.focused) << utf8(blank.dialog.Frame1.caption);
    }
}

TEST_F(MargensTest, NothingIsPrintedForAnotherKind) {
    test(caixa, ones);
    EXPECT_EQ(machine.log, Log());
    EXPECT_EQ(form.coluna_etiqueta, 1);
}

TEST_F(MargensTest, BlankItemIsToldAndTestedAllTheSame) {
    form.cmbtipo.choose(0);
    form.txtdescricao.text = u" "; // no size has it
    test(caixa, ones);
    EXPECT_EQ(steps(), (Log{messageBox("Selecione o Item que deseja Imprimir"), "printer Etiquetas",
                            "paper 256", "width 9000", "height 2660", "end", "printer Papel"}));
    EXPECT_EQ(form.txtpreco.text, u"");
}

TEST_F(MargensTest, BothLogosAreNeeded) {
    form.cmbtipo.choose(0);
    form.LogoLumiraOk = false;
    test(caixa, ones);
    EXPECT_EQ(machine.log, Log{messageBox("O Arquivo do Logotipo não foi localizado")});
    form.LogoLumiraOk = true;
    form.LogoBrisakoOk = false;
    test(caixa, ones);
    EXPECT_EQ(machine.log, Log{messageBox("O Arquivo do Logotipo não foi localizado")});
}

} // namespace etiquetas::test
