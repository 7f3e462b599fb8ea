#include "desktop/QtPictures.h"

#include "Faults.h"
#include "desktop/QtFiles.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;

// Start of a JPEG file that claims 60,000 by 60,000 pixels.
static const QByteArray huge_jpeg = QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000"
                                                        "ffc0000b08ea60ea6001011100");

class QtPicturesTest : public testing::Test {
  protected:
    QtPicturesTest() {
        image.fill(0xE02020);
        QPainter(&image).fillRect(32, 0, 32, 32, QColor::fromRgb(0x2020E0));
    }

    QTemporaryDir folder;
    QImage image{64, 32, QImage::Format_RGB32};
    QtPictures pictures;
};

TEST_F(QtPicturesTest, loadsTheColoursOfAJpeg) {
    const QString path = folder.filePath(u"foto.jpg"_s);
    ASSERT_TRUE(image.save(path, "JPG", 100));
    const Picture picture = pictures.load(toText(path));
    EXPECT_EQ(picture->width, 64);
    ASSERT_EQ(picture->pixels.size(), 64U * 32U);
    constexpr Pixel high_bits = 0xC0C0C0; // the others may get lost in the file
    EXPECT_EQ(picture->at(8, 30) & high_bits, 0xC00000U);
    EXPECT_EQ(picture->at(56, 1) & high_bits, 0x0000C0U);
}

TEST_F(QtPicturesTest, refusesWhatIsNoJpegAndNamesIt) {
    const auto file = [this](const QString& name, const QByteArray& bytes) {
        QtFiles(folder.path()).replace(toText(folder.filePath(name)), bytes.toStdString());
        return folder.filePath(name);
    };
    ASSERT_TRUE(image.save(folder.filePath(u"figura.jpg"_s), "PNG"));
    for (const QString& path : {folder.filePath(u"figura.jpg"_s), folder.filePath(u"falta.jpg"_s),
                                folder.path(), file(u"vazio.jpg"_s, ""),
                                file(u"texto.jpg"_s, "texto"), file(u"enorme.jpg"_s, huge_jpeg)}) {
        test::expectFailure(failure_number::invalid_picture, toText(path),
                            [&] { static_cast<void>(pictures.load(toText(path))); });
    }
}

TEST_F(QtPicturesTest, drawsTextsInPureBlackOnWhite) {
    const Raster two = pictures.text(u"HI");
    const Raster four = pictures.text(u"HIHI");
    EXPECT_NEAR(four.width, 2 * two.width, 1);
    EXPECT_EQ(four.pixels.size(), static_cast<std::size_t>(four.width * two.height));
    const auto ink = std::count(four.pixels.begin(), four.pixels.end(), black_pixel);
    const auto paper = std::count(four.pixels.begin(), four.pixels.end(), white_pixel);
    EXPECT_GT(ink, 4 * two.height / 2) << "four strokes at least";
    EXPECT_GT(paper, ink) << "black on white, not white on black";
    EXPECT_EQ(static_cast<std::size_t>(ink + paper), four.pixels.size()) << "a grey pixel";
    EXPECT_EQ(pictures.text(u"").width, 0);
}

} // namespace etiquetas
