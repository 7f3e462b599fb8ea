#include "Faults.h"
#include "desktop/machine/QtFiles.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;
using namespace failure_number;
using namespace test;

class MachineTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath(u"Ação.jpg"_s);
    Text path = toText(name);
    QtFiles files{folder.path() + u'/'};
    QtPictures pictures;
};

TEST_F(MachineTest, replacesAFileWhollyAndInItsPermissionsOrNotAtAll) {
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

TEST_F(MachineTest, tellsWhatIsThereAndTakesABlankNameForNoFolder) {
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

TEST_F(MachineTest, namesTheFileOfAFailure) {
    for (const Text& file : {toText(folder.filePath(u"falta/a.txt"_s)), toText(folder.path())}) {
        expectFailure(file_access, file, [&] { static_cast<void>(files.read(file)); });
        expectFailure(file_access, file, [&] { files.deleteFile(file); });
        expectFailure(file_access, file, [&] { files.replace(file, "a"); });
        expectFailure(file_access, file, [&] { files.makeFolder(file); });
    }
}

TEST_F(MachineTest, loadsTheColoursOfAJpeg) {
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(0xE02020);
    QPainter(&image).fillRect(32, 0, 32, 32, QColor::fromRgb(0x2020E0));
    ASSERT_TRUE(image.save(name));
    const Picture picture = pictures.load(path);
    ASSERT_EQ(picture->pixels.size(), 64U * 32U);
    // Lower bits may get lost in the file.
    EXPECT_EQ(picture->at(8, 30) & 0xC0C0C0, 0xC00000U);
    EXPECT_EQ(picture->at(56, 1) & 0xC0C0C0, 0x0000C0U);
}

TEST_F(MachineTest, refusesWhatIsNoJpegAndNamesIt) {
    const auto load = [this] { static_cast<void>(pictures.load(path)); };
    expectFailure(invalid_picture, path, load);
    for (const char* bytes : {"", "a text", "P3 1 1 255 9 9 9 "}) { // the last is a pixmap
        files.replace(path, bytes);
        expectFailure(invalid_picture, path, load);
    }
    QImage huge(5600, 5600, QImage::Format_Grayscale8);
    huge.fill(0);
    ASSERT_TRUE(huge.save(name));
    expectFailure(invalid_picture, path, load);
}

TEST_F(MachineTest, drawsTextsInPureBlackOnWhite) {
    const Raster text = pictures.text(u"HI");
    const auto ink = std::count(text.pixels.begin(), text.pixels.end(), black_pixel);
    const auto paper = std::count(text.pixels.begin(), text.pixels.end(), white_pixel);
    EXPECT_GT(ink, text.height) << "several strokes";
    EXPECT_GT(paper, ink) << "black on white, not white on black";
    EXPECT_EQ(ink + paper, text.width * text.height) << "a grey pixel";
}

TEST(QtPrinters, listsTheMachinesPrintersAndTheBuiltInDeviceLast) {
    QtPrinters printers({u"Etiquetadora"_s, u"Laser"_s}, u"Laser"_s);
    EXPECT_EQ(printers.names(), (std::vector<Text>{u"Etiquetadora", u"Laser", u"PDF"}));
    EXPECT_EQ(printers.current(), (PrintTarget{u"Laser"_s, false}));
    printers.makeCurrent(2);
    EXPECT_THROW(printers.makeCurrent(3), Failure);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF"_s, true}));
}

TEST(QtPrinters, prefersTheBuiltInDeviceUnderANameOfItsOwnWhereTheMachineHasNoDefault) {
    const QtPrinters printers({u"PDF"_s}, u"Removed"_s);
    EXPECT_TRUE(printers.current().built_in);
    EXPECT_EQ(printers.names().back(), printers.defaultName());
    EXPECT_NE(printers.defaultName(), u"PDF");
}

} // namespace etiquetas
