#include "workbench/FrmParametroImpressora.h"

#include "support/Golden.h"
#include "support/ItemFields.h"
#include "support/Messages.h"
#include "support/ProgramGolden.h"
#include "support/SettingsText.h"
#include "workbench/Dialogos.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class FrmParametroImpressoraTest : public testing::Test, protected LoadedWorkbench {
  protected:
    FrmParametroImpressoraTest() { machine.files.bytes = {{u"/pedidos/a.txt", ""}}; }

    void open(TextView settings) {
        machine.files.bytes[settings_file] = settingsBytes(settings);
        cmd_parametro_click(form);
    }

    // Tells what is shown, saves it, and tells what the Workbench and the settings file keep.
    void saveAndTell(const std::string& what) {
        machine.tell("==", what);
        tellField(machine, "TXTPATH", dialog.TXTPATH);
        tellField(machine, "TXTPATH tooltip", dialog.TXTPATH.tooltip);
        machine.tell("FrameSerial", dialog.FrameSerial.visible ? "shown" : "hidden");
        machine.tell("FrameParalela", dialog.FrameParalela.visible ? "shown" : "hidden");
        machine.tell("FrameUSB", dialog.FrameUSB.visible ? "shown" : "hidden");
        machine.tell("-- saved");
        cmd_grava_click(form);
        EXPECT_FALSE(dialog.open);
        tellField(machine, "lbllinguagem", form.lbllinguagem.caption);
        tellField(machine, "lblporta", form.lblporta.caption);
        tellField(machine, "LBLPORTAPARELELA", form.LBLPORTAPARELELA.caption);
        tellField(machine, "lblpath", form.lblpath.caption);
        tellField(machine, "lbloculta", form.lbloculta.caption);
        tellField(machine, "frentecaixa", form.frentecaixa.caption);
        tellField(machine, "lblcompartilhamento", form.lblcompartilhamento.caption);
        for (const std::string& line : programLines(machine.files.bytes[settings_file])) {
            machine.tell(line);
        }
    }

    ParametroDialog& dialog = form.FrmParametroImpressora;
};

TEST_F(FrmParametroImpressoraTest, WhatIsStoredIsShownAndStoredBack) {
    open(uR"([Impressora]
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
)");
    saveAndTell("all stored");
    EXPECT_TRUE(matchesGolden(machine.transcript, "parametros-guardados"));
    EXPECT_EQ(machine.logged({"delete"}), Log());
}

TEST_F(FrmParametroImpressoraTest, WhatIsNotKnownOrMissingIsReplaced) {
    form.lbloculta.caption = u"old";
    open(uR"([Impressora]
Path=/nada
Linguagem=ppla
PortaSerial=Com10
PortaParalela=LPT2
Porta=Paralela
TipoOculta=9
)");
    saveAndTell("unknown and missing");
    EXPECT_TRUE(matchesGolden(machine.transcript, "parametros-trocados"));
    EXPECT_EQ(machine.logged({"delete"}), Log());
}

TEST_F(FrmParametroImpressoraTest, SecondOpeningShowsAndStoresTheStartValues) {
    machine.files.bytes[u"/programa/IMPRIMIR.BAT"] = "";
    open(u"[Impressora]\nPath=/pedidos\n");
    FrmParametroImpressora_cmd_sair_click(form);
    open(u"[Impressora]\nPath=/pedidos\n");
    EXPECT_EQ(dialog.TXTPATH.text, u"");
    dialog.TXTPATH.text = u" "; // blank still
    dialog.optoculta4.selected = true;
    dialog.optfrentecaixa1.selected = true;
    saveAndTell("opened again");
    EXPECT_TRUE(matchesGolden(machine.transcript, "parametros-iniciais"));
    EXPECT_EQ(machine.logged({"message", "delete"}),
              (Log{messageBox("O Local Padrão de busca do Arquivo é Inválido..."),
                   "delete /programa/IMPRIMIR.BAT"}));
}

TEST_F(FrmParametroImpressoraTest, OpenDialogComesToTheFrontAndSairStoresNothing) {
    open(u"[Impressora]\nPath=/pedidos\n");
    EXPECT_EQ(dialog.TXTPATH.text, u"/pedidos");
    EXPECT_TRUE(dialog.FrameUSB.visible); // no port is stored
    dialog.TXTPATH.text = u"typed";
    cmd_parametro_click(form);
    EXPECT_TRUE(dialog.to_front);
    EXPECT_EQ(dialog.TXTPATH.text, u"typed");
    FrmParametroImpressora_cmd_sair_click(form);
    EXPECT_FALSE(dialog.open);
    EXPECT_EQ(machine.log, Log());
}

TEST_F(FrmParametroImpressoraTest, OnlyAFolderIsTakenFromTheBrowser) {
    for (const TextView picked : {u"/pedidos", u"", u"/nada"}) {
        machine.picked = picked;
        CMD_GETPATH_click(form);
    }
    machine.failing = {"pick"};
    CMD_GETPATH_click(form);
    const std::string pick = "pick Selecione o Local Padrão para Busca dos Arquivos";
    const std::string message = messageBox("O Local Selecionado é Inválido...");
    EXPECT_EQ(machine.log, (Log{pick, pick, message, pick, message, message}));
    EXPECT_EQ(dialog.TXTPATH.text, u"/pedidos");
    EXPECT_EQ(dialog.TXTPATH.tooltip, u"/pedidos");
}

} // namespace etiquetas::test
