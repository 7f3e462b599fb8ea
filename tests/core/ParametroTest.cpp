#include "support/FakePlatform.h"
#include "workbench/Dialogos.h"
#include "workbench/FrmParametroImpressora.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ParametroTest : public testing::Test, protected LoadedWorkbench {
  protected:
    ParametroTest() { machine.files.bytes = {{u"/pedidos/a.txt", ""}}; }

    void open() { cmd_parametro_click(form); }
    // Saves, and tells the settings file and what the Workbench has of it.
    std::string saved() {
        machine.log.clear();
        cmd_grava_click(form);
        EXPECT_FALSE(dialog.open);
        std::string all = machine.files.bytes[ini];
        for (const Label& label :
             {form.lbllinguagem, form.lblporta, form.LBLPORTAPARELELA, form.lblpath, form.lbloculta,
              form.frentecaixa, form.lblcompartilhamento}) {
            all += utf8(label.caption) + "|";
        }
        return all;
    }

    ParametroDialog& dialog = form.FrmParametroImpressora;
    const Text ini = u"/programa/Varesko.ini";
};

TEST_F(ParametroTest, WhatIsStoredIsShownAndStoredBack) {
    const std::string all = "[Impressora]\r\nLinguagem=PPLA\r\nPorta=Serial\r\nPortaSerial=Com9\r\n"
                            "ConfiguracaoPortaSerial=C\r\nPortaParalela=Lpt4\r\nPortaParalelaUSB="
                            "Lpt5\r\nNomeCompartilhamento=N\r\nPath=/pedidos\r\nTipoOculta=8\r\n"
                            "TipoFrenteCaixa=45_40_2\r\n";
    using Case = std::tuple<std::string, std::string, Panel&>;
    for (const auto& [before, after, panel] :
         {Case{all, all + "PPLA|SERIAL|Lpt4|/pedidos|8|45_40_2|N|", dialog.FrameSerial},
          Case{"[Impressora]\r\nPath=/nada\r\nLinguagem=ppla\r\nPortaSerial=Com10\r\n"
               "PortaParalela=LPT2\r\nPorta=Paralela\r\nTipoOculta=9\r\n",
               "[Impressora]\r\nPath=/programa\r\nLinguagem=ZPL\r\nPortaSerial=Com1\r\n"
               "PortaParalela=Lpt1\r\nPorta=Paralela\r\nTipoOculta=9\r\n"
               "ConfiguracaoPortaSerial=\r\nPortaParalelaUSB=Lpt1\r\nNomeCompartilhamento=\r\n"
               "TipoFrenteCaixa=40_45_2\r\nZPL|PARALELA|Lpt1|/programa|8|40_45_2||",
               dialog.FrameParalela}}) {
        machine.files.bytes[ini] = before;
        form.ParametrosCarregados = false;
        open();
        EXPECT_EQ(dialog.TXTPATH.tooltip, dialog.TXTPATH.text);
        EXPECT_NE(dialog.FrameParalela.visible, dialog.FrameSerial.visible);
        EXPECT_TRUE(panel.visible && !dialog.FrameUSB.visible);
        EXPECT_EQ(saved(), after);
        EXPECT_EQ(machine.logged({"message", "delete"}), Log());
    }
}

TEST_F(ParametroTest, SecondOpeningShowsAndStoresTheStartValues) {
    machine.files.bytes[ini] = "[Impressora]\r\nPath=/pedidos\r\n";
    open();
    EXPECT_TRUE(dialog.TXTPATH.text == u"/pedidos" && dialog.FrameUSB.visible);
    dialog.TXTPATH.text = u"typed";
    open(); // it is open
    EXPECT_TRUE(dialog.to_front && dialog.TXTPATH.text == u"typed");
    FrmParametroImpressora_cmd_sair_click(form);
    EXPECT_TRUE(machine.log.empty() && !dialog.open);
    machine.files.bytes = {{u"/programa/IMPRIMIR.BAT", ""},
                           {ini, "[Impressora]\r\nPath=/pedidos\r\n"}};
    open();
    dialog.TXTPATH.text += u" "; // blank still
    dialog.optoculta4.selected = dialog.optfrentecaixa1.selected = true;
    EXPECT_EQ(saved(),
              "[Impressora]\r\nPath=\r\nLinguagem=PPLA\r\nPorta=USB\r\nPortaSerial=Com1\r\n"
              "ConfiguracaoPortaSerial=9800,N,8,1\r\nPortaParalela=Lpt1\r\n"
              "PortaParalelaUSB=Lpt1\r\nNomeCompartilhamento=\r\nTipoOculta=2\r\n"
              "TipoFrenteCaixa=40_45_2\r\nPPLA|USB|Lpt1|/programa|2|40_45_2||");
    EXPECT_EQ(machine.logged({"message", "delete"}),
              (Log{"message none ok [] O Local Padrão de busca do Arquivo é Inválido...",
                   "delete /programa/IMPRIMIR.BAT"}));
}

TEST_F(ParametroTest, OnlyAFolderIsTakenFromTheBrowser) {
    for (const Text& picked : {Text(u"/pedidos\0/x", 11), Text(), Text(u"/nada")}) {
        machine.picked = picked;
        CMD_GETPATH_click(form);
    }
    machine.failing = {"pick"};
    CMD_GETPATH_click(form);
    const std::string asked = "pick Selecione o Local Padrão para Busca dos Arquivos";
    const std::string refused = "message none ok [] O Local Selecionado é Inválido...";
    EXPECT_EQ(machine.log, (Log{asked, asked, refused, asked, refused, refused}));
    EXPECT_EQ(dialog.TXTPATH.text + dialog.TXTPATH.tooltip, u"/pedidos/pedidos");
}

} // namespace etiquetas::test
