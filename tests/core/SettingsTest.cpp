#include "config/Settings.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class SettingsTest : public testing::Test, protected FakePlatform {
  protected:
    const Text ini = u"/programa/Varesko.ini";
};

TEST_F(SettingsTest, FirstFileHoldsNineKeys) {
    files.bytes[u"/programa/IMPRIMIR.BAT"] = "old";
    gera_ini_base(files, u"/elsewhere/other.ini");
    EXPECT_EQ(files.bytes,
              (decltype(files.bytes){{ini, "[Impressora]\r\nLinguagem=ZPL\r\nPorta=Paralela\r\n"
                                           "PortaSerial=Com1\r\n"
                                           "ConfiguracaoPortaSerial=9800,N,8,1\r\n"
                                           "PortaParalela=LPT1\r\nPortaParalelaUSB=LPT1\r\n"
                                           "NomeCompartilhamento=Zebra\r\n"
                                           "Path=/programa\r\nTipoOculta=3\r\n"}}));
    EXPECT_EQ(log.back(), "delete /programa/IMPRIMIR.BAT");
}

TEST_F(SettingsTest, NameIsFoundInAnyCaseAndKept) {
    EXPECT_EQ(caminho_ini(files), ini);
    files.bytes[u"/programa/VARESKO.INI"] = "[config]\r\nLOTE=5\r\n";
    EXPECT_EQ(caminho_ini(files), u"/programa/VARESKO.INI");
    GravaIni(files, u"Config", u"Lote", u"6", caminho_ini(files));
    EXPECT_EQ(files.bytes,
              (decltype(files.bytes){{u"/programa/VARESKO.INI", "[config]\r\nLOTE=6\r\n"}}));
}

TEST_F(SettingsTest, RootFolderGetsNoSecondSeparator) {
    files.part_separator = u'\\';
    files.program_folder = u"C:\\";
    EXPECT_EQ(caminho_ini(files), u"C:\\Varesko.ini");
    files.program_folder = u"C:\\Etiquetas";
    EXPECT_EQ(caminho_ini(files), u"C:\\Etiquetas\\Varesko.ini");
}

TEST_F(SettingsTest, ValuesGoThroughTheCodePageWhole) {
    const Text value = Text(1000, u'á') + u"€Ω";
    GravaIni(files, u"Config", u"Referencia", value, ini);
    EXPECT_EQ(files.bytes[ini],
              "[Config]\r\nReferencia=" + std::string(1000, '\xE1') + "\x80?\r\n");
    EXPECT_EQ(LeIni(files, ini, u"Config", u"Referencia", u""), Text(1000, u'á') + u"€?");
    EXPECT_EQ(LeIni(files, ini, u"Config", u"Lote", u"padrão"), u"padrão");
    EXPECT_EQ(LeIni(files, u"/none.ini", u"Config", u"Lote", u"padrão"), u"padrão");
}

TEST_F(SettingsTest, RefusedWriteIsPassedOver) {
    files.bytes[ini] = "[Config]\r\nLote=1\r\n";
    files.refuses_writes = true;
    EXPECT_EQ(failureOf([&] { GravaIni(files, u"Config", u"Lote", u"2", ini); }), 0);
    EXPECT_EQ(files.bytes[ini], "[Config]\r\nLote=1\r\n");
    EXPECT_EQ(failureOf([&] { gera_ini_base(files, ini); }), 0);
}

TEST_F(SettingsTest, ExactNameWinsOverOneInAnotherCase) {
    files.bytes = {{u"/p/a.txt", ""}, {u"/p/A.TXT", ""}, {u"/p/sub/b.txt", ""}};
    EXPECT_EQ(findFile(files, u"/p", u"a.txt"), u"/p/a.txt");
    EXPECT_EQ(findFile(files, u"/p", u"A.txt"), u"/p/A.TXT");
    EXPECT_EQ(findFile(files, u"/p", u"b.txt"), std::nullopt);
}

} // namespace etiquetas::test
