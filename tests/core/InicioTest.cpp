#include "workbench/Inicio.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "support/FakePlatform.h"
#include "workbench/Saida.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using Texts = std::vector<Text>;

class InicioTest : public testing::Test, protected Workbench {};

TEST_F(InicioTest, NewInstallationWithNothingThere) {
    machine.printers.faces = {u"Estrangelo Edessa", u"Calibri Light", u"Franklin Gothic Medium"};
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    const std::string logos = "\n Brisako.jpg\n Lumira.jpg\nNão foi(ram) localizado(s)!";
    const std::string missing = "Calibri,Malgun Gothic Semilight,";
    EXPECT_EQ((Texts{form.txtarquivo.text, form.LBLBRISAKO.caption, form.txtbarra.text,
                     form.frentecaixa.caption, form.lbllinguagem.caption, form.lblporta.caption,
                     form.LBLPORTAPARELELA.caption, form.Label7[13].caption}),
              (Texts{u"1400050831", u"BRISA KO", u"Text1", u"40_45_2", u"Label17", u"Label17",
                     u"LPT1", u"27"}));
    EXPECT_TRUE(form.TXTPARES.locked && !form.Frame3.visible && !form.Frame2.visible &&
                !form.FrmParametroImpressora.FrameUSB.visible);
    FrmPadrao_load(form);
    Log& log = machine.log;
    log.erase(std::unique(log.begin(), log.end()), log.end()); // a write for each key
    EXPECT_EQ(log,
              (Log{"printers", "folder /programa/imagens",
                   "message stop ok [] O(s) arquivo(s): " + logos, "write /programa/Varesko.ini",
                   "delete /programa/IMPRIMIR.BAT", "pointer busy", "faces", "pointer normal",
                   "message none ok [] Atenção: Instale as seguintes fontes: " + missing}));
    EXPECT_EQ(
        machine.files.bytes[u"/programa/Varesko.ini"],
        "[Impressora]\r\nLinguagem=ZPL\r\nPorta=Paralela\r\nPortaSerial=Com1\r\n"
        "ConfiguracaoPortaSerial=9800,N,8,1\r\nPortaParalela=LPT1\r\nPortaParalelaUSB=LPT1\r\n"
        "NomeCompartilhamento=Zebra\r\nPath=/programa\r\nTipoOculta=3\r\n");
    EXPECT_EQ(
        (Texts{form.lblpath.caption, form.lbloculta.caption, form.lblcompartilhamento.caption,
               form.txtarquivo.text, form.NomeFonte, form.cmbtipo.text, form.Label7[13].caption}),
        (Texts{u"/programa", u"3", u"Zebra", u"", u"Estrangelo Edessa", u"Frente de Caixa", u""}));
    EXPECT_EQ(form.cmbtipo.entries,
              (Texts{u"Frente de Caixa", u"Corrugado", u"Acessório", u"Oculta"}));
    const Text version = numberText(version_major) + u"." + numberText(version_minor) + u"." +
                         numberText(version_patch);
    EXPECT_EQ(form.Caption, u"Etiquetas Lumira [Versão: " + version + u"]");
    EXPECT_FALSE(form.LogoBrisakoOk || form.LogoLumiraOk || form.Label7[13].visible ||
                 form.txtnumero[13].visible);
}

TEST_F(InicioTest, SavedFieldsLogosAndPrintersAreTaken) {
    machine.files.bytes[u"/programa/imagens/1.jpg"] = "JPEG";
    const std::string saved = "[Config]\r\nReferencia=R\r\nLote=5\r\narquivo=77\r\nTipo=Oculta\r\n";
    using Case = std::tuple<bool, std::string, Texts, Texts>;
    for (const auto& [brisako, settings, devices, fields] :
         {Case{true,
               saved + "[Impressora]\r\nTipoOculta=7\r\nNomeCompartilhamento=N\r\nPath=/p",
               {u"A", u"Papel", u"B"},
               {u"R", u"5", u"77", u"7", u"N", u"/p", u"Papel"}},
          Case{false,
               "[Impressora]\r\nTipoOculta=  \r\n",
               {u"A", u"papel"},
               {u"", u"", u"", u"3", u"", u"", u"A"}}}) {
        machine.files.bytes[u"/programa/BRISAKO.JPG"] = brisako ? "JPEG" : "no picture";
        machine.files.bytes[u"/programa/lumira.jpg"] = brisako ? "no picture" : "JPEG";
        machine.files.bytes[u"/programa/varesko.INI"] = settings;
        machine.printers.devices = devices;
        machine.log.clear();
        FrmPadrao_load(form);
        EXPECT_EQ(machine.log,
                  (Log{"printers", "load /programa/BRISAKO.JPG", "load /programa/lumira.jpg",
                       "pointer busy", "faces", "pointer normal"}));
        EXPECT_EQ((Texts{form.txtcliente.text, form.txtlote.text, form.txtarquivo.text,
                         form.lbloculta.caption, form.lblcompartilhamento.caption,
                         form.lblpath.caption, form.CMBPRINTER.text}),
                  fields);
        EXPECT_EQ(form.CMBPRINTER.entries, devices);
        EXPECT_EQ(form.cmbtipo.text, u"Frente de Caixa"); // whatever was stored
        EXPECT_TRUE(form.LogoBrisakoOk == brisako && form.LogoLumiraOk != brisako);
        EXPECT_TRUE(form.pctlogo1.picture && (form.pctlogo2.picture == nullptr) == brisako);
    }
}

TEST_F(InicioTest, FailingStepsArePassedOver) {
    machine.failing = {"printers", "folder", "write", "faces", "message"};
    FrmPadrao_load(form);
    EXPECT_EQ(machine.log, (Log{"pointer busy", "pointer normal"}));
    EXPECT_EQ(
        (Texts{form.txtarquivo.text, form.lblpath.caption, form.NomeFonte, form.CMBPRINTER.text}),
        (Texts{u"1400050831", u"/programa", u"Estrangelo Edessa", u""}));
    EXPECT_TRUE(form.Width == 11250 && form.Height == 10065);
}

TEST_F(InicioTest, EndStoresSixFieldsAsFarAsItCan) {
    form.txtcliente.text = u"AÇO";
    form.txtlote.text = u"5";
    form.cmbintensidade.text = u"i";
    form.cmbvelocidade.text = u"v";
    cmd_sair_click(form);
    EXPECT_EQ(machine.files.bytes[u"/programa/Varesko.ini"],
              "[Config]\r\nReferencia=A\xC7O\r\narquivo=1400050831\r\nLote=5\r\nIntensidade=i\r\n"
              "Velocidade=v\r\nTipo=Frente de Caixa\r\n");
    machine.failing = {"write"};
    cmd_sair_click(form);
    EXPECT_EQ(machine.logged({"exit"}).size(), 2U);
}

} // namespace etiquetas::test
