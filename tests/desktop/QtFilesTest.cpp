#include "desktop/QtFiles.h"

#include "SmallDisk.h"
#include "base/Failure.h"
#include "desktop/QtText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace etiquetas {

using namespace Qt::StringLiterals;
namespace {

class QtFilesTest : public testing::Test {
  protected:
    [[nodiscard]] Text path(const QString& name) const { return toText(folder.filePath(name)); }

    QTemporaryDir folder;
    QtFiles files{folder.path()};
};

// The failure of a deed must be a file fault whose text names the path.
void expectFileFailure(const std::function<void()>& deed, const Text& path) {
    try {
        deed();
        ADD_FAILURE() << "went through: " << toQString(path).toStdString();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), failure_number::file_access);
        EXPECT_NE(failure.description().find(path), Text::npos);
    }
}

TEST_F(QtFilesTest, keepsEveryByteOfAFile) {
    std::string bytes;
    for (int value = 0; value < 256; ++value) {
        bytes += static_cast<char>(value);
    }
    const Text file = path(u"Ação.txt"_s);
    files.replace(file, bytes);
    EXPECT_EQ(files.read(file), bytes);
    files.replace(file, "");
    EXPECT_EQ(files.read(file), "");
}

TEST_F(QtFilesTest, leavesTheOldBytesWhereReplacingFails) {
    const Text file = path(u"config.ini"_s);
    files.replace(file, "antes");
    {
        const test::SmallDisk disk(1000);
        expectFileFailure([&] { files.replace(file, std::string(100'000, 'x')); }, file);
    }
    EXPECT_EQ(files.read(file), "antes");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "a leftover";
}

TEST_F(QtFilesTest, keepsThePermissionsOfAReplacedFile) {
    const Text file = path(u"config.ini"_s);
    files.replace(file, "antes");
    const auto shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(QFile::setPermissions(toQString(file), shared));
    files.replace(file, "depois");
    const auto user = QFile::ReadUser | QFile::WriteUser; // told as well for the user's own file
    EXPECT_EQ(QFile::permissions(toQString(file)) | user, shared | user);
}

TEST_F(QtFilesTest, tellsWhatIsThere) {
    const Text file = path(u"a.txt"_s);
    const Text inner = path(u"dentro"_s);
    files.replace(file, "a");
    files.replace(path(u".oculto"_s), "b");
    files.makeFolder(inner);

    EXPECT_TRUE(files.fileExists(file));
    EXPECT_FALSE(files.fileExists(inner));
    EXPECT_FALSE(files.fileExists(u""));
    EXPECT_TRUE(files.folderExists(inner));
    EXPECT_FALSE(files.folderExists(file));
    EXPECT_EQ(files.filesIn(toText(folder.path())), std::vector<Text>{u"a.txt"});
    EXPECT_TRUE(files.filesIn(path(u"falta"_s)).empty());

    files.deleteFile(file);
    EXPECT_FALSE(files.fileExists(file));
}

TEST_F(QtFilesTest, takesABlankNameForNoFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    files.replace(u"aqui.txt", "a");
    ASSERT_TRUE(QDir().mkdir(u"   "_s));
    for (const TextView name : {TextView(u""), TextView(u"   ")}) {
        EXPECT_FALSE(files.folderExists(name));
        EXPECT_TRUE(files.filesIn(name).empty());
        EXPECT_THROW(files.makeFolder(name), Failure);
    }
    QDir::setCurrent(before);
}

TEST_F(QtFilesTest, namesTheFileOfAFailure) {
    const Text missing = path(u"falta.txt"_s);
    const Text nowhere = path(u"falta/pasta/a.txt"_s);
    const Text here = toText(folder.path());
    expectFileFailure([&] { static_cast<void>(files.read(missing)); }, missing);
    expectFileFailure([&] { static_cast<void>(files.read(here)); }, here);
    expectFileFailure([&] { files.deleteFile(missing); }, missing);
    expectFileFailure([&] { files.replace(nowhere, "a"); }, nowhere);
    expectFileFailure([&] { files.replace(here, "a"); }, here);
    expectFileFailure([&] { files.makeFolder(nowhere); }, nowhere);
    expectFileFailure([&] { files.makeFolder(here); }, here);
}

TEST_F(QtFilesTest, namesTheProgramFolderWithoutASeparatorAtItsEnd) {
    EXPECT_EQ(QtFiles(folder.path() + u'/').programFolder(), toText(folder.path()));
    EXPECT_EQ(QtFiles(u"/"_s).programFolder(), u"/");
    EXPECT_EQ(files.separator(), u'/');
}

} // namespace
} // namespace etiquetas
