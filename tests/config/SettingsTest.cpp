#include "config/Settings.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// A settings file whose name and keys stand in another case.
class SettingsTest : public testing::Test, protected FakePlatform {
  protected:
    std::string& file = files.bytes[u"/programa/VARESKO.INI"] = "[config]\r\nLOTE=5\r\n";
};

TEST_F(SettingsTest, FileStandsInTheFolderOfTheProgram) {
    EXPECT_EQ(settingsPath(files), u"/programa/VARESKO.INI");
    files.bytes.clear();
    EXPECT_EQ(settingsPath(files), u"/programa/Varesko.ini");
}

TEST_F(SettingsTest, ValuesGoThroughTheCodePageWhole) {
    const Text path = settingsPath(files);
    const Text many_letters(1000, u'á');
    GravaIni(files, u"Config", u"Lote", many_letters + u"€Ω", path);
    EXPECT_EQ(file, "[config]\r\nLOTE=" + std::string(1000, '\xE1') + "\x80?\r\n");
    EXPECT_EQ(LeIni(files, path, u"Config", u"Lote", u""), many_letters + u"€?");
}

TEST_F(SettingsTest, WhatIsMissingHasTheDefault) {
    EXPECT_EQ(LeIni(files, settingsPath(files), u"Config", u"Porta", u"padrão"), u"padrão");
    EXPECT_EQ(LeIni(files, u"/none.ini", u"Config", u"Lote", u"padrão"), u"padrão");
}

TEST_F(SettingsTest, FileThatCanNotBeReadIsNotReplaced) {
    failing = {"read"};
    GravaIni(files, u"Config", u"Lote", u"6", settingsPath(files));
    EXPECT_EQ(log, Log());
    EXPECT_EQ(file, "[config]\r\nLOTE=5\r\n");
}

TEST_F(SettingsTest, FileInUtf16IsToldAndNotWrittenTo) {
    EXPECT_FALSE(settingsAreUtf16(files));
    for (const std::string mark : {"\xFF\xFE", "\xFE\xFF"}) {
        file = mark + "[Config]";
        const std::string before = file;
        GravaIni(files, u"Config", u"Lote", u"6", settingsPath(files));
        EXPECT_EQ(file, before);
        EXPECT_TRUE(settingsAreUtf16(files));
    }
}

} // namespace etiquetas::test
