#include "desktop/machine/QtPictures.h"

#include "tests/desktop/Faults.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>

namespace etiquetas::test {

class QtPicturesTest : public testing::Test {
  protected:
    QTemporaryDir folder;
    QString name = folder.filePath(u"Ação.jpg"_s);
    Text path = toText(name);
    QtPictures pictures;
};

TEST_F(QtPicturesTest, loadsTheColoursOfAJpeg) {
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

TEST_F(QtPicturesTest, refusesWhatIsNoJpegAndNamesIt) {
    using failure_number::invalid_picture;
    const auto load = [this] { static_cast<void>(pictures.load(path)); };
    expectFailure(invalid_picture, path, load);
    for (const char* bytes : {"", "a text", "P3 1 1 255 9 9 9 "}) { // the last is a pixmap
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        expectFailure(invalid_picture, path, load);
    }
    QImage huge(5600, 5600, QImage::Format_Grayscale8);
    huge.fill(0);
    ASSERT_TRUE(huge.save(name));
    expectFailure(invalid_picture, path, load);
}

TEST_F(QtPicturesTest, drawsTextsInPureBlackOnWhite) {
    const Raster text = pictures.text(u"HI");
    const auto ink = std::count(text.pixels.begin(), text.pixels.end(), black_pixel);
    const auto paper = std::count(text.pixels.begin(), text.pixels.end(), white_pixel);
    EXPECT_GT(ink, text.height) << "several strokes";
    EXPECT_GT(paper, ink) << "black on white, not white on black";
    EXPECT_EQ(ink + paper, text.width * text.height) << "a grey pixel";
}

} // namespace etiquetas::test
