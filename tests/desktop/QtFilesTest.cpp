#include "desktop/QtFiles.h"

#include "Faults.h"

#include <QDir>
#include <QTemporaryDir>

#include <numeric>

namespace etiquetas {

using namespace Qt::StringLiterals;

class QtFilesTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath(u"Ação.ini"_s);
    Text path = toText(name);
    QtFiles files{folder.path()};
};

TEST_F(QtFilesTest, keepsEveryByteAndThePermissionsOfAFile) {
    files.replace(path, "");
    EXPECT_EQ(files.read(path), "");
    ASSERT_TRUE(
        QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner | QFile::WriteGroup));
    const auto permissions = QFile::permissions(name);
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    files.replace(path, bytes);
    EXPECT_EQ(files.read(path), bytes);
    EXPECT_EQ(QFile::permissions(name), permissions);
}

TEST_F(QtFilesTest, leavesTheOldBytesWhereReplacingFails) {
    files.replace(path, "antes");
    {
        const auto disk = test::smallDisk(1000);
        test::expectFailure(failure_number::file_access, path,
                            [this] { files.replace(path, std::string(100'000, 'x')); });
    }
    EXPECT_EQ(files.read(path), "antes");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "a leftover";
}

TEST_F(QtFilesTest, tellsWhatIsThereAndTakesABlankNameForNothing) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    files.replace(u"a.txt", "a");
    files.replace(u".oculto", "b");
    files.makeFolder(u"dentro");
    EXPECT_TRUE(files.fileExists(u"a.txt"));
    EXPECT_FALSE(files.fileExists(u"dentro"));
    EXPECT_TRUE(files.folderExists(u"dentro"));
    EXPECT_FALSE(files.folderExists(u"a.txt"));
    EXPECT_EQ(files.filesIn(toText(folder.path())), std::vector<Text>{u"a.txt"});
    EXPECT_TRUE(files.filesIn(u"falta").empty());

    EXPECT_THROW(files.makeFolder(u"   "), Failure);
    ASSERT_TRUE(QDir().mkdir(u"   "_s));
    for (const TextView blank : {TextView(u""), TextView(u"   ")}) {
        EXPECT_FALSE(files.folderExists(blank));
        EXPECT_TRUE(files.filesIn(blank).empty());
    }
    files.deleteFile(u"a.txt");
    EXPECT_FALSE(files.fileExists(u"a.txt"));
    QDir::setCurrent(before);
}

TEST_F(QtFilesTest, namesTheFileOfAFailure) {
    const auto expectFailing = [](const Text& file, const std::function<void()>& deed) {
        test::expectFailure(failure_number::file_access, file, deed);
    };
    for (const Text& file : {toText(folder.filePath(u"falta/a.txt"_s)), toText(folder.path())}) {
        expectFailing(file, [&] { static_cast<void>(files.read(file)); });
        expectFailing(file, [&] { files.deleteFile(file); });
        expectFailing(file, [&] { files.replace(file, "a"); });
        expectFailing(file, [&] { files.makeFolder(file); });
    }
}

TEST_F(QtFilesTest, namesTheProgramFolderWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(QtFiles(folder.path() + u'/').programFolder(), toText(folder.path()));
    EXPECT_EQ(QtFiles(u"/"_s).programFolder(), u"/");
}

} // namespace etiquetas
