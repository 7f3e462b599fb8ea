#include "desktop/machine/QtFiles.h"

#include "tests/desktop/Faults.h"

#include <QDir>
#include <QLockFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace etiquetas::test {

class QtFilesTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath(u"Ação.txt"_s);
    Text path = toText(name);
    QtFiles files{folder.path() + u'/'};
};

TEST_F(QtFilesTest, replacesAFileWhollyAndInItsPermissionsOrNotAtAll) {
    files.replace(path, "");
    EXPECT_EQ(files.read(path), "");
    ASSERT_TRUE(QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner));
    const std::string bytes("\0\r\n\x1A\n\xFF ", 7);
    files.replace(path, bytes);
    onFullDisk([this] { EXPECT_THROW(files.replace(path, std::string(9'999, 'x')), Failure); });
    EXPECT_EQ(files.read(path), bytes);
    EXPECT_FALSE(QFile::permissions(name).testFlag(QFile::ReadOther));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "a leftover";
}

TEST_F(QtFilesTest, tellsWhatIsThereAndTakesABlankNameForNoFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    EXPECT_THROW(files.makeFolder(u" "), Failure);
    ASSERT_TRUE(QDir().mkdir(u" "_s));
    files.makeFolder(u"dentro");
    files.replace(u"a.txt", "a");
    EXPECT_TRUE(files.fileExists(u"a.txt"));
    EXPECT_FALSE(files.fileExists(u"dentro"));
    EXPECT_TRUE(files.folderExists(u"dentro"));
    EXPECT_FALSE(files.folderExists(u"a.txt"));
    EXPECT_FALSE(files.folderExists(u" "));
    EXPECT_TRUE(files.filesIn(u"").empty());
    EXPECT_EQ(files.programFolder(), toText(folder.path()));
    EXPECT_EQ(files.filesIn(files.programFolder()), std::vector<Text>{u"a.txt"});
    files.deleteFile(u"a.txt");
    EXPECT_FALSE(files.fileExists(u"a.txt"));
    QDir::setCurrent(before);
}

TEST_F(QtFilesTest, namesTheFileOfAFailure) {
    using failure_number::file_access;
    for (const Text& file : {toText(folder.filePath(u"falta/a.txt"_s)), toText(folder.path())}) {
        expectFailure(file_access, file, [&] { static_cast<void>(files.read(file)); });
        expectFailure(file_access, file, [&] { files.deleteFile(file); });
        expectFailure(file_access, file, [&] { files.replace(file, "a"); });
        expectFailure(file_access, file, [&] { files.makeFolder(file); });
    }
}

TEST_F(QtFilesTest, readsNeitherAPipeNorAFileWithoutEnd) {
    ASSERT_EQ(mkfifo(name.toUtf8(), S_IRUSR | S_IWUSR), 0);
    expectFailure(failure_number::file_access, path, [&] { static_cast<void>(files.read(path)); });
    ASSERT_TRUE(QFile::link(name, name + u".link"_s));
    EXPECT_TRUE(files.filesIn(files.programFolder()).empty());
    ASSERT_TRUE(QFile::remove(name));
    QFile large(name);
    ASSERT_TRUE(large.open(QIODevice::WriteOnly));
    ASSERT_TRUE(large.resize(qint64{256} * 1024 * 1024 + 1)); // without a block on the disk
    expectFailure(failure_number::file_access, u"mais de 256 MB",
                  [&] { static_cast<void>(files.read(path)); });
}

TEST_F(QtFilesTest, changesAFileUnderALockAndNotWhereItIsHeld) {
    const auto append = [](std::string_view bytes) { return std::string(bytes) + "x"; };
    const QString lock_name = name + u".lock"_s;
    files.update(path, append);
    // The lock of a program that is no more.
    QFile left(lock_name);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write("999999999\netiquetas\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    left.close();
    files.update(path, append);
    EXPECT_EQ(files.read(path), "xx");
    EXPECT_FALSE(QFile::exists(lock_name));
    QLockFile held(lock_name);
    ASSERT_TRUE(held.lock());
    expectFailure(failure_number::file_access, path, [&] { files.update(path, append); });
    EXPECT_EQ(files.read(path), "xx");
    const Text nowhere = toText(folder.filePath(u"falta/a.txt"_s));
    expectFailure(failure_number::file_access, nowhere, [&] { files.update(nowhere, append); });
}

TEST_F(QtFilesTest, tellsOfEachFileThatWasRead) {
    std::vector<Text> paths;
    files.onRead([&paths](TextView read, std::size_t bytes) {
        paths.emplace_back(read);
        EXPECT_EQ(bytes, 3U);
    });
    files.replace(path, "abc");
    EXPECT_EQ(files.read(path), "abc");
    EXPECT_THROW(static_cast<void>(files.read(u"falta.txt")), Failure);
    EXPECT_EQ(paths, std::vector{path});
}

} // namespace etiquetas::test
