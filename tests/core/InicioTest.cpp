#include "workbench/Inicio.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace etiquetas::test {

class InicioTest : public testing::Test, protected Workbench {
  protected:
    // The log of the start-up; lines that repeat stand once.
    Log load() {
        FrmPadrao_load(form);
        Log lines = machine.log;
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        return lines;
    }
};

TEST_F(InicioTest, FieldsAtTheOpening) {
    EXPECT_EQ(form.Caption, u"Etiquetas Lumira");
    EXPECT_EQ(form.txtarquivo.text, u"1400050831");
    EXPECT_EQ(form.cmbtipo.text, u"Frente de Caixa");
    EXPECT_EQ(form.LBLBRISAKO.caption, u"BRISA KO");
    EXPECT_EQ(form.Label7[0].caption + form.Label7[6].caption, u"1420");
    EXPECT_EQ(form.Label7[7].caption + form.Label7[13].caption, u"2127");
    EXPECT_EQ(form.txtbarra.text, u"Text1");
    EXPECT_EQ(form.lbloculta.caption + form.frentecaixa.caption, u"340_45_2");
    EXPECT_EQ(form.LBLPORTAPARELELA.caption, u"LPT1");
    EXPECT_TRUE(form.TXTPARES.locked);
    EXPECT_EQ(form.coluna_etiqueta, 1);
    EXPECT_TRUE(form.Frame1.visible && form.Frame4.visible && form.cmd_printacessorio.visible);
    EXPECT_FALSE(form.Frame2.visible || form.Frame3.visible || form.filelist.visible ||
                 form.List1.visible || form.txtbarra.visible || form.Picture1.visible ||
                 form.Picture2.visible || form.lblmax.visible || form.txtean.visible ||
                 form.lblean.visible || form.lblprinterdefault.visible || form.lblpath.visible);
    EXPECT_FALSE(form.lbloculta.visible || form.lblcompartilhamento.visible ||
                 form.frentecaixa.visible || form.lbllinguagem.visible || form.lblporta.visible ||
                 form.LBLPORTAPARELELA.visible || form.lblmaster.visible || form.lblbarra.visible);
    EXPECT_FALSE(form.chk_coletiva.visible || form.chkcabecalho.visible ||
                 form.cmb_etiqueta.visible || form.lblocultasuperior.visible ||
                 form.txtean13.visible || form.cmbintensidade.visible ||
                 form.cmbvelocidade.visible);
    EXPECT_EQ(form.Frame4.caption + u"|" + form.Frame1.caption + u"|" + form.Frame3.caption,
              u"Selecione o Pedido|Caixa / Oculta|Corrugado");
    EXPECT_EQ(form.Label7_50.caption + u"|" + form.Label71.caption + u"|" + form.Label72.caption,
              u"Pacotes|Total de Pares|Total de Etiquetas Ocultas");
    EXPECT_EQ(form.cmb_referencia1.caption + u"|" + form.txtcodigo1.caption + u"|" +
                  form.txtprepack.caption + u"|" + form.cmb_vol1.caption + u"|" +
                  form.cmb_vol2.caption + u"|" + form.lblean.caption,
              u"Produto|Cod.Master|Código Pré Pack|Volume Inicial|Volume Final|Código EAN");
    EXPECT_EQ(form.txtlote.caption + u"|" + form.txtcliente.caption + u"|" +
                  form.CMBPRINTER.caption,
              u"Adicionar|Empresa|Impressora");
    EXPECT_EQ(form.cmd_printacessorio.caption + form.cmd_calibra.caption +
                  form.cmd_parametro.caption + form.cmd_sair.caption,
              u"&Imprimir Etiquetas&Calibrar Etiquetas&Parâmetro de Impressão&Sair");
}

TEST_F(InicioTest, NewInstallationWithNothingThere) {
    machine.surface.faces.clear();
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    EXPECT_EQ(load(), (Log{"folder /programa/imagens",
                           "message O(s) arquivo(s): \n Brisako.jpg\n Lumira.jpg\nNão foi(ram) "
                           "localizado(s)!",
                           "write /programa/Varesko.ini", "delete /programa/IMPRIMIR.BAT",
                           "pointer busy", "faces 0", "pointer normal",
                           "message Atenção: Instale as seguintes fontes: Estrangelo "
                           "Edessa,Franklin Gothic Medium,Calibri,Malgun Gothic Semilight,"}));
    EXPECT_TRUE(machine.messages.shown[0].starts_with("stop, ok, : O(s)"));
    EXPECT_FALSE(form.LogoBrisakoOk || form.LogoLumiraOk);
    EXPECT_EQ(form.lblpath.caption, u"/programa");
    EXPECT_EQ(form.lbloculta.caption, u"3");
    EXPECT_EQ(form.lblcompartilhamento.caption, u"Zebra");
    EXPECT_EQ(form.txtarquivo.text, u"");
    EXPECT_EQ(form.cmbtipo.entries,
              (std::vector<Text>{u"Frente de Caixa", u"Corrugado", u"Acessório", u"Oculta"}));
    EXPECT_EQ(form.cmbtipo.position, 0);
    EXPECT_EQ(form.NomeFonte, u"Estrangelo Edessa");
    EXPECT_EQ(form.Width, 11250);
    EXPECT_EQ(form.Height, 10065);
    EXPECT_EQ(form.Caption, u"Etiquetas Lumira [Versão: " + numberText(version_major) + u"." +
                                numberText(version_minor) + u"." + numberText(version_patch) +
                                u"]");
    for (std::size_t i = 0; i < total_slots; ++i) {
        EXPECT_EQ(form.Label7[i].caption, u"");
        EXPECT_FALSE(form.Label7[i].visible || form.txtnumero[i].visible);
    }
}

TEST_F(InicioTest, SavedFieldsAreRestoredAndLogosLoaded) {
    machine.files.folders.emplace(u"/programa/imagens");
    machine.files.bytes = {{u"/programa/BRISAKO.JPG", "JPEG"},
                           {u"/programa/lumira.jpg", "not one"},
                           {u"/programa/varesko.INI",
                            "[Config]\r\nReferencia=R\r\nLote=5\r\narquivo=77\r\nTipo=Oculta\r\n"
                            "[Impressora]\r\nTipoOculta=7\r\nNomeCompartilhamento=N\r\nPath=/p"}};
    EXPECT_EQ(load(), (Log{"load /programa/BRISAKO.JPG", "load /programa/lumira.jpg",
                           "pointer busy", "faces 4", "pointer normal"}));
    EXPECT_TRUE(form.LogoBrisakoOk && form.pctlogo1.picture);
    EXPECT_FALSE(form.LogoLumiraOk || form.pctlogo2.picture);
    EXPECT_EQ(form.txtcliente.text + form.txtlote.text + form.txtarquivo.text, u"R577");
    EXPECT_EQ(form.lbloculta.caption + form.lblcompartilhamento.caption, u"7N");
    EXPECT_EQ(form.lblpath.caption, u"/p");
    EXPECT_EQ(form.cmbtipo.text, u"Frente de Caixa");
}

TEST_F(InicioTest, SettingsWithoutTheirKeysEmptyTheFields) {
    machine.files.bytes[u"/programa/Varesko.ini"] = "[Impressora]\r\nTipoOculta=  \r\n";
    load();
    EXPECT_EQ(form.txtarquivo.text + form.lblpath.caption, u"");
    EXPECT_EQ(form.lbloculta.caption, u"3");
    EXPECT_EQ(machine.files.bytes.size(), 1U);
    EXPECT_TRUE(machine.messages.shown[0].ends_with(
        ": \n Brisako.jpg\n Lumira.jpg\nNão foi(ram) localizado(s)!"));
}

TEST_F(InicioTest, PrintersAndTheDefaultOne) {
    using Case = std::tuple<std::vector<Text>, bool, TextView>;
    for (const auto& [devices, fails, chosen] : {Case{{u"A", u"Papel", u"B"}, false, u"Papel"},
                                                 {{u"A", u"papel"}, false, u"A"},
                                                 {{}, false, u""},
                                                 {{u"A"}, true, u""}}) {
        machine.printers.devices = devices;
        machine.printers.fails = fails;
        form.NomeFonte.clear();
        load();
        EXPECT_EQ(form.CMBPRINTER.entries.size(), fails ? 0 : devices.size());
        EXPECT_EQ(form.CMBPRINTER.text, chosen);
        EXPECT_EQ(form.lblprinterdefault.caption, chosen);
        EXPECT_EQ(form.NomeFonte, u"Estrangelo Edessa");
    }
}

TEST_F(InicioTest, FailingStepsArePassedOver) {
    machine.files.refuses_writes = true;
    machine.surface.failing = "faces";
    EXPECT_EQ(failureOf([&] { load(); }), 0);
    EXPECT_EQ(form.txtarquivo.text, u"1400050831"); // no settings file, nothing read
    EXPECT_EQ(form.lblpath.caption, u"/programa");
    EXPECT_EQ(form.NomeFonte, u"Estrangelo Edessa");
    form.FrmMargensOcultaZPL2.open = form.FrmMargensCxZPL45.open = true;
    form.FrmMargensPackZPL.open = true;
    form.Width = form.Height = 1;
    FrmPadrao_resize(form);
    FrmPadrao_unload(form);
    EXPECT_EQ(form.Width, 11250);
    EXPECT_FALSE(form.FrmMargensOcultaZPL2.open || form.FrmMargensCxZPL45.open ||
                 form.FrmMargensPackZPL.open);
}

} // namespace etiquetas::test
