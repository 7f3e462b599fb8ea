#include "workbench/FrmParametroImpressora.h"

#include "support/FakePlatform.h"
#include "support/Messages.h"
#include "support/SettingsText.h"
#include "workbench/Dialogos.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// What the Workbench keeps of the parameters.
struct KeptParameters {
    TextView lbllinguagem, lblporta, LBLPORTAPARELELA, lblpath, lbloculta, frentecaixa,
        lblcompartilhamento;
};

class FrmParametroImpressoraTest : public testing::Test, protected LoadedWorkbench {
  protected:
    FrmParametroImpressoraTest() { machine.files.bytes = {{u"/pedidos/a.txt", ""}}; }

    void open() { cmd_parametro_click(form); }

    void expectSaved(TextView settings, const KeptParameters& kept) {
        machine.log.clear();
        cmd_grava_click(form);
        EXPECT_FALSE(dialog.open);
        EXPECT_EQ(machine.files.bytes[settings_file], settingsBytes(settings));
        EXPECT_EQ(form.lbllinguagem.caption, kept.lbllinguagem);
        EXPECT_EQ(form.lblporta.caption, kept.lblporta);
        EXPECT_EQ(form.LBLPORTAPARELELA.caption, kept.LBLPORTAPARELELA);
        EXPECT_EQ(form.lblpath.caption, kept.lblpath);
        EXPECT_EQ(form.lbloculta.caption, kept.lbloculta);
        EXPECT_EQ(form.frentecaixa.caption, kept.frentecaixa);
        EXPECT_EQ(form.lblcompartilhamento.caption, kept.lblcompartilhamento);
    }

    ParametroDialog& dialog = form.FrmParametroImpressora;
};

TEST_F(FrmParametroImpressoraTest, WhatIsStoredIsShownAndStoredBack) {
    const Text settings = uR"([Impressora]
Linguagem=PPLA
Porta=Serial
PortaSerial=Com9
ConfiguracaoPortaSerial=C
PortaParalela=Lpt4
PortaParalelaUSB=Lpt5
NomeCompartilhamento=N
Path=/pedidos
TipoOculta=8
TipoFrenteCaixa=45_40_2
)";
    machine.files.bytes[settings_file] = settingsBytes(settings);
    open();
    EXPECT_EQ(dialog.TXTPATH.text, u"/pedidos");
    EXPECT_EQ(dialog.TXTPATH.tooltip, u"/pedidos");
    EXPECT_TRUE(dialog.FrameSerial.visible);
    EXPECT_FALSE(dialog.FrameParalela.visible);
    EXPECT_FALSE(dialog.FrameUSB.visible);
    expectSaved(settings, {.lbllinguagem = u"PPLA",
                           .lblporta = u"SERIAL",
                           .LBLPORTAPARELELA = u"Lpt4",
                           .lblpath = u"/pedidos",
                           .lbloculta = u"8",
                           .frentecaixa = u"45_40_2",
                           .lblcompartilhamento = u"N"});
    EXPECT_EQ(machine.logged({"message", "delete"}), Log());
}

TEST_F(FrmParametroImpressoraTest, WhatIsNotKnownOrMissingIsReplaced) {
    machine.files.bytes[settings_file] = settingsBytes(uR"([Impressora]
Path=/nada
Linguagem=ppla
PortaSerial=Com10
PortaParalela=LPT2
Porta=Paralela
TipoOculta=9
)");
    form.lbloculta.caption = u"old";
    open();
    EXPECT_EQ(dialog.TXTPATH.tooltip, u"/nada");
    EXPECT_TRUE(dialog.FrameParalela.visible);
    EXPECT_FALSE(dialog.FrameSerial.visible);
    EXPECT_FALSE(dialog.FrameUSB.visible);
    expectSaved(uR"([Impressora]
Path=/programa
Linguagem=ZPL
PortaSerial=Com1
PortaParalela=Lpt1
Porta=Paralela
TipoOculta=9
ConfiguracaoPortaSerial=
PortaParalelaUSB=Lpt1
NomeCompartilhamento=
TipoFrenteCaixa=40_45_2
)",
                {.lbllinguagem = u"ZPL",
                 .lblporta = u"PARALELA",
                 .LBLPORTAPARELELA = u"Lpt1",
                 .lblpath = u"/programa",
                 .lbloculta = u"old",
                 .frentecaixa = u"40_45_2",
                 .lblcompartilhamento = u""});
    EXPECT_EQ(machine.logged({"message", "delete"}), Log());
}

TEST_F(FrmParametroImpressoraTest, OpenDialogComesToTheFrontAndSairStoresNothing) {
    machine.files.bytes[settings_file] = "[Impressora]\r\nPath=/pedidos\r\n";
    open();
    EXPECT_EQ(dialog.TXTPATH.text, u"/pedidos");
    EXPECT_TRUE(dialog.FrameUSB.visible); // no port is stored
    dialog.TXTPATH.text = u"typed";
    open();
    EXPECT_TRUE(dialog.to_front);
    EXPECT_EQ(dialog.TXTPATH.text, u"typed");
    FrmParametroImpressora_cmd_sair_click(form);
    EXPECT_FALSE(dialog.open);
    EXPECT_EQ(machine.log, Log());
}

TEST_F(FrmParametroImpressoraTest, SecondOpeningShowsAndStoresTheStartValues) {
    machine.files.bytes[settings_file] = "[Impressora]\r\nPath=/pedidos\r\n";
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    open();
    FrmParametroImpressora_cmd_sair_click(form);
    open();
    EXPECT_EQ(dialog.TXTPATH.text, u"");
    dialog.TXTPATH.text = u" "; // blank still
    dialog.optoculta4.selected = true;
    dialog.optfrentecaixa1.selected = true;
    expectSaved(uR"([Impressora]
Path=
Linguagem=PPLA
Porta=USB
PortaSerial=Com1
ConfiguracaoPortaSerial=9800,N,8,1
PortaParalela=Lpt1
PortaParalelaUSB=Lpt1
NomeCompartilhamento=
TipoOculta=2
TipoFrenteCaixa=40_45_2
)",
                {.lbllinguagem = u"PPLA",
                 .lblporta = u"USB",
                 .LBLPORTAPARELELA = u"Lpt1",
                 .lblpath = u"/programa",
                 .lbloculta = u"2",
                 .frentecaixa = u"40_45_2",
                 .lblcompartilhamento = u""});
    EXPECT_EQ(machine.logged({"message", "delete"}),
              (Log{messageBox("O Local Padrão de busca do Arquivo é Inválido..."),
                   "delete /programa/IMPRIMIR.BAT"}));
}

TEST_F(FrmParametroImpressoraTest, OnlyAFolderIsTakenFromTheBrowser) {
    machine.picked = u"/pedidos";
    CMD_GETPATH_click(form);
    EXPECT_EQ(machine.log, Log{"pick Selecione o Local Padrão para Busca dos Arquivos"});
    machine.picked = u"";
    CMD_GETPATH_click(form);
    EXPECT_EQ(machine.log.back(), messageBox("O Local Selecionado é Inválido..."));
    machine.picked = u"/nada";
    CMD_GETPATH_click(form);
    machine.failing = {"pick"};
    CMD_GETPATH_click(form);
    EXPECT_EQ(machine.logged({"message"}), Log(3, messageBox("O Local Selecionado é Inválido...")));
    EXPECT_EQ(dialog.TXTPATH.text, u"/pedidos");
    EXPECT_EQ(dialog.TXTPATH.tooltip, u"/pedidos");
}

} // namespace etiquetas::test
