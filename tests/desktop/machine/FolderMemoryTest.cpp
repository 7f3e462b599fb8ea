#include "desktop/machine/FolderMemory.h"

#include "support/FakePlatform.h"
#include "workbench/Campos.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// Files that count what they are asked; "list /programa" was asked twice, say.
struct CountingFiles : FakeFiles {
    using FakeFiles::FakeFiles;
    mutable std::map<std::string, int> asked;

    bool folderExists(TextView path) const override {
        ++asked["folder " + utf8(path)];
        return path == u"/programa";
    }
    std::vector<Text> filesIn(TextView folder) const override {
        ++asked["list " + utf8(folder)];
        return FakeFiles::filesIn(folder);
    }
    bool fileExists(TextView path) const override {
        ++asked["file " + utf8(path)];
        return bytes.contains(Text(path));
    }
    std::string read(TextView path) const override { return bytes.find(path)->second; }
    void update(TextView path, const Change& change) override {
        ++asked["update " + utf8(path)];
        replace(path, change(read(path)));
    }
};

class FolderMemoryTest : public testing::Test {
  protected:
    Platform platform() {
        const Platform all = machine.platform();
        return {all.printers, all.surface, all.messages, all.pictures, memory,
                all.focus,    all.pointer, all.process,  all.folders,  all.commands};
    }

    FakePlatform machine;
    CountingFiles files{machine};
    FolderMemory memory{files};
};

TEST_F(FolderMemoryTest, listsTheOrderFolderOnceForAKeyThatLoadsTheOrderTwice) {
    files.bytes[u"/programa/77 frente.txt"] = fileOf({u"", lineOf(BoxLine{})});
    files.bytes[u"/programa/VARESKO.INI"];
    FrmPadrao form(platform());
    form.lblpath.caption = u"/programa";
    form.txtarquivo.text = u"77";
    memory.forget();
    files.asked.clear();
    txtarquivo_key(form, key::enter);
    txtarquivo_leave(form);
    EXPECT_EQ(form.List1.entries.size(), 1U);
    const std::map<std::string, int> told{{"folder /programa", 1},
                                          {"list /programa", 1},
                                          {"list /programa/imagens", 1},
                                          {"file /programa/Varesko.ini", 1},
                                          {"file /programa/VARESKO.INI", 1},
                                          {"file /programa/77 frente.txt", 1},
                                          {"file /programa/imagens/3104527.jpg", 1},
                                          {"update /programa/VARESKO.INI", 2}};
    EXPECT_EQ(files.asked, told);
}

TEST_F(FolderMemoryTest, asksAnewOnceItForgetsOrChangesTheFolder) {
    const auto is_there = [this] {
        EXPECT_EQ(memory.filesIn(u"/p").size(), memory.fileExists(u"/p/a") ? 1U : 0U);
        return memory.fileExists(u"/p/a");
    };
    EXPECT_FALSE(is_there());
    memory.replace(u"/p/a", "1");
    EXPECT_TRUE(is_there());
    memory.replace(u"/p/a", "2");
    EXPECT_EQ(files.asked["file /p/a"], 2) << "the file was there";
    EXPECT_EQ(memory.read(u"/p/a"), "2");
    memory.deleteFile(u"/p/a");
    EXPECT_FALSE(is_there());
    files.bytes[u"/p/a"] = "by another program";
    EXPECT_FALSE(is_there());
    memory.forget();
    EXPECT_TRUE(is_there());
    static_cast<void>(memory.folderExists(u"/p"));
    memory.makeFolder(u"/p/imagens");
    static_cast<void>(memory.folderExists(u"/p"));
    EXPECT_EQ(files.asked["folder /p"], 2);
}

} // namespace etiquetas::test
