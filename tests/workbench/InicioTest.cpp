#include "workbench/Inicio.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "support/Golden.h"
#include "support/ItemFields.h"
#include "support/SettingsText.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class InicioTest : public testing::Test, protected Workbench {};

TEST_F(InicioTest, FieldsStandAsDesignedBeforeTheLoad) {
    EXPECT_EQ(form.txtarquivo.text, u"1400050831");
    EXPECT_EQ(form.LBLBRISAKO.caption, u"BRISA KO");
    EXPECT_EQ(form.txtbarra.text, u"Text1");
    EXPECT_EQ(form.frentecaixa.caption, u"40_45_2");
    EXPECT_EQ(form.lbllinguagem.caption, u"Label17");
    EXPECT_EQ(form.lblporta.caption, u"Label17");
    EXPECT_EQ(form.LBLPORTAPARELELA.caption, u"LPT1");
    EXPECT_EQ(form.Label7[13].caption, u"27");
    EXPECT_TRUE(form.TXTPARES.locked);
    EXPECT_FALSE(form.Frame3.visible);
    EXPECT_FALSE(form.Frame2.visible);
    EXPECT_FALSE(form.FrmParametroImpressora.FrameUSB.visible);
}

TEST_F(InicioTest, StepsOfANewInstallation) {
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    const std::string logos = "\n Brisako.jpg\n Lumira.jpg\nNão foi(ram) localizado(s)!";
    FrmPadrao_load(form);
    Log& log = machine.log;
    log.erase(std::unique(log.begin(), log.end()), log.end()); // a write for each key
    EXPECT_EQ(log,
              (Log{"printers", "folder /programa/imagens",
                   "message stop ok [] O(s) arquivo(s): " + logos, "write /programa/Varesko.ini",
                   "delete /programa/IMPRIMIR.BAT", "pointer busy", "faces", "pointer normal"}));
    EXPECT_FALSE(form.LogoBrisakoOk);
    EXPECT_FALSE(form.LogoLumiraOk);
}

// Tells the settings file after the start, and the fields that are saved in it.
static void startAndTell(Journal& journal, const std::string& what, Workbench& workbench) {
    journal.tell("==", what);
    const FrmPadrao& form = workbench.form;
    FrmPadrao_load(workbench.form);
    tellSettings(journal, workbench.machine.files);
    tellField(journal, "txtcliente", form.txtcliente);
    tellField(journal, "txtlote", form.txtlote);
    tellField(journal, "txtarquivo", form.txtarquivo);
    tellField(journal, "lblpath", form.lblpath.caption);
    tellField(journal, "lbloculta", form.lbloculta.caption);
    tellField(journal, "lblcompartilhamento", form.lblcompartilhamento.caption);
    tellList(journal, "cmbtipo", form.cmbtipo);
    tellQuantities(journal, form);
}

TEST_F(InicioTest, SavedFieldsAreTaken) {
    Journal journal;
    startAndTell(journal, "new installation", *this);
    Workbench saved;
    saved.machine.files.bytes[settings_file] = settingsBytes(uR"([config]
Referencia=R
Lote=5
arquivo=77
Tipo=Oculta
[Impressora]
TipoOculta=7
NomeCompartilhamento=N
Path=/p
)");
    startAndTell(journal, "all saved", saved);
    Workbench not_saved;
    not_saved.machine.files.bytes[settings_file] = settingsBytes(u"[Impressora]\nTipoOculta=  \n");
    not_saved.form.txtcliente.text = not_saved.form.txtlote.text = u"old";
    not_saved.form.lblcompartilhamento.caption = u"old";
    startAndTell(journal, "none saved", not_saved);
    EXPECT_TRUE(matchesGolden(journal.transcript, "partida"));
}

TEST_F(InicioTest, CaptionTellsTheVersion) {
    FrmPadrao_load(form);
    EXPECT_EQ(form.Caption, u"Etiquetas Lumira [Versão: " + numberText(version_major) + u"." +
                                numberText(version_minor) + u"." + numberText(version_patch) +
                                u"]");
}

TEST_F(InicioTest, DefaultPrinterIsChosenOrElseTheFirst) {
    const std::vector<Text> devices{u"A", u"Papel", u"B"};
    machine.printers.devices = devices;
    FrmPadrao_load(form);
    EXPECT_EQ(form.CMBPRINTER.entries, devices);
    EXPECT_EQ(form.CMBPRINTER.text, u"Papel");
    EXPECT_EQ(form.lblprinterdefault.caption, u"Papel");
    machine.printers.devices = {u"A", u"papel"};
    FrmPadrao_load(form);
    EXPECT_EQ(form.CMBPRINTER.entries, (std::vector<Text>{u"A", u"papel"}));
    EXPECT_EQ(form.CMBPRINTER.text, u"A");
}

TEST_F(InicioTest, LogoThatIsNoPictureStaysEmptyWithoutAWord) {
    machine.files.bytes = {{u"/programa/imagens/1.jpg", "JPEG"},
                           {u"/programa/BRISAKO.JPG", "JPEG"},
                           {u"/programa/lumira.jpg", "no picture"},
                           {settings_file, ""}};
    Workbench other;
    other.machine.files.bytes = machine.files.bytes;
    std::swap(other.machine.files.bytes[u"/programa/BRISAKO.JPG"],
              other.machine.files.bytes[u"/programa/lumira.jpg"]);
    for (Workbench* const workbench : {static_cast<Workbench*>(this), &other}) {
        const FrmPadrao& loaded = workbench->form;
        const bool has_brisako = workbench != &other;
        FrmPadrao_load(workbench->form);
        EXPECT_EQ(workbench->machine.log,
                  (Log{"printers", "load /programa/BRISAKO.JPG", "load /programa/lumira.jpg",
                       "pointer busy", "faces", "pointer normal"}));
        EXPECT_EQ(loaded.LogoBrisakoOk, has_brisako);
        EXPECT_EQ(loaded.LogoLumiraOk, !has_brisako);
        EXPECT_EQ(loaded.pctlogo1.picture != nullptr, has_brisako);
        EXPECT_EQ(loaded.pctlogo2.picture != nullptr, !has_brisako);
    }
}

TEST_F(InicioTest, FailingStepsArePassedOver) {
    machine.failing = {"printers", "folder", "write", "faces", "message"};
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log, (Log{"pointer busy", "pointer normal"}));
    EXPECT_EQ(form.txtarquivo.text, u"1400050831");
    EXPECT_EQ(form.lblpath.caption, u"/programa");
    EXPECT_EQ(form.NomeFonte, u"Estrangelo Edessa");
    EXPECT_EQ(form.CMBPRINTER.text, u"");
    EXPECT_EQ(form.Width, 11250);
    EXPECT_EQ(form.Height, 10065);
}

TEST_F(InicioTest, SettingsInUtf16AreToldBehindAllOtherSteps) {
    machine.files.bytes = {{settings_file, "\xFF\xFE"}};
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log[machine.log.size() - 2], "pointer normal");
    EXPECT_TRUE(machine.log.back().starts_with("message exclamation ok [ATENÇÃO!!!] O arquivo"));
    EXPECT_NE(machine.log.back().find(utf8(settings_file)), std::string::npos);
}

TEST_F(InicioTest, WindowThatIsClosedClosesTheMarginDialogs) {
    for (MargensDialog* const dialog :
         {&form.FrmMargensOcultaZPL2, &form.FrmMargensCxZPL45, &form.FrmMargensPackZPL}) {
        dialog->open = true;
        FrmPadrao_unload(form);
        EXPECT_FALSE(dialog->open) << utf8(dialog->Caption);
    }
}

} // namespace etiquetas::test
