#include "workbench/Inicio.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "support/FakePlatform.h"
#include "support/Messages.h"
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
    machine.printers.faces = {u"Estrangelo Edessa", u"Calibri Light", u"Franklin Gothic Medium"};
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    const std::string logos = "\n Brisako.jpg\n Lumira.jpg\nNão foi(ram) localizado(s)!";
    const std::string faces = "Calibri,Malgun Gothic Semilight,";
    FrmPadrao_load(form);
    Log& log = machine.log;
    log.erase(std::unique(log.begin(), log.end()), log.end()); // a write for each key
    EXPECT_EQ(log,
              (Log{"printers", "folder /programa/imagens",
                   "message stop ok [] O(s) arquivo(s): " + logos, "write /programa/Varesko.ini",
                   "delete /programa/IMPRIMIR.BAT", "pointer busy", "faces", "pointer normal",
                   messageBox("Atenção: Instale as seguintes fontes: " + faces)}));
}

TEST_F(InicioTest, SettingsOfANewInstallation) {
    FrmPadrao_load(form);
    EXPECT_EQ(machine.files.bytes[settings_file], settingsBytes(uR"([Impressora]
Linguagem=ZPL
Porta=Paralela
PortaSerial=Com1
ConfiguracaoPortaSerial=9800,N,8,1
PortaParalela=LPT1
PortaParalelaUSB=LPT1
NomeCompartilhamento=Zebra
Path=/programa
TipoOculta=3
)"));
}

TEST_F(InicioTest, FieldsOfANewInstallation) {
    FrmPadrao_load(form);
    EXPECT_EQ(form.lblpath.caption, u"/programa");
    EXPECT_EQ(form.lbloculta.caption, u"3");
    EXPECT_EQ(form.lblcompartilhamento.caption, u"Zebra");
    EXPECT_EQ(form.txtarquivo.text, u"");
    EXPECT_EQ(form.NomeFonte, u"Estrangelo Edessa");
    EXPECT_EQ(form.cmbtipo.text, u"Frente de Caixa");
    EXPECT_EQ(form.cmbtipo.entries,
              (std::vector<Text>{u"Frente de Caixa", u"Corrugado", u"Acessório", u"Oculta"}));
    EXPECT_EQ(form.Caption, u"Etiquetas Lumira [Versão: " + numberText(version_major) + u"." +
                                numberText(version_minor) + u"." + numberText(version_patch) +
                                u"]");
    EXPECT_FALSE(form.LogoBrisakoOk);
    EXPECT_FALSE(form.LogoLumiraOk);
    EXPECT_EQ(form.Label7[13].caption, u"");
    EXPECT_FALSE(form.Label7[13].visible);
    EXPECT_FALSE(form.txtnumero[13].visible);
}

TEST_F(InicioTest, SavedFieldsAreTaken) {
    machine.files.bytes[u"/programa/varesko.INI"] = settingsBytes(uR"([Config]
Referencia=R
Lote=5
arquivo=77
Tipo=Oculta
[Impressora]
TipoOculta=7
NomeCompartilhamento=N
Path=/p)");
    FrmPadrao_load(form);
    EXPECT_EQ(form.txtcliente.text, u"R");
    EXPECT_EQ(form.txtlote.text, u"5");
    EXPECT_EQ(form.txtarquivo.text, u"77");
    EXPECT_EQ(form.lbloculta.caption, u"7");
    EXPECT_EQ(form.lblcompartilhamento.caption, u"N");
    EXPECT_EQ(form.lblpath.caption, u"/p");
    EXPECT_EQ(form.cmbtipo.text, u"Frente de Caixa"); // whatever was stored
}

TEST_F(InicioTest, FieldsThatWereNotSavedAreEmpty) {
    machine.files.bytes[settings_file] = "[Impressora]\r\nTipoOculta=  \r\n";
    form.txtcliente.text = form.txtlote.text = form.lblcompartilhamento.caption = u"old";
    FrmPadrao_load(form);
    EXPECT_EQ(form.txtcliente.text, u"");
    EXPECT_EQ(form.txtlote.text, u"");
    EXPECT_EQ(form.txtarquivo.text, u"");
    EXPECT_EQ(form.lbloculta.caption, u"3");
    EXPECT_EQ(form.lblcompartilhamento.caption, u"");
    EXPECT_EQ(form.lblpath.caption, u"");
}

TEST_F(InicioTest, DefaultPrinterIsChosenOrElseTheFirst) {
    machine.printers.devices = {u"A", u"Papel", u"B"};
    FrmPadrao_load(form);
    EXPECT_EQ(form.CMBPRINTER.entries, (std::vector<Text>{u"A", u"Papel", u"B"}));
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
    const Log steps{"printers",
                    "load /programa/BRISAKO.JPG",
                    "load /programa/lumira.jpg",
                    "pointer busy",
                    "faces",
                    "pointer normal"};
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log, steps);
    EXPECT_TRUE(form.LogoBrisakoOk);
    EXPECT_NE(form.pctlogo1.picture, nullptr);
    EXPECT_FALSE(form.LogoLumiraOk);
    EXPECT_EQ(form.pctlogo2.picture, nullptr);

    std::swap(machine.files.bytes[u"/programa/BRISAKO.JPG"],
              machine.files.bytes[u"/programa/lumira.jpg"]);
    machine.log.clear();
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log, steps);
    EXPECT_FALSE(form.LogoBrisakoOk);
    EXPECT_TRUE(form.LogoLumiraOk);
    EXPECT_NE(form.pctlogo2.picture, nullptr);
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

TEST_F(InicioTest, WindowThatIsClosedClosesTheMarginDialogs) {
    form.FrmMargensOcultaZPL2.open = form.FrmMargensCxZPL45.open = true;
    form.FrmMargensPackZPL.open = true;
    FrmPadrao_unload(form);
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open);
    EXPECT_FALSE(form.FrmMargensCxZPL45.open);
    EXPECT_FALSE(form.FrmMargensPackZPL.open);
}

} // namespace etiquetas::test
