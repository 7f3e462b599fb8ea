#include "desktop/QtPictures.h"

#include "base/Failure.h"
#include "desktop/QtText.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace etiquetas {

using namespace Qt::StringLiterals;
namespace {

// Start of a JPEG file that claims 60,000 by 60,000 pixels.
const QByteArray huge_jpeg = QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000"
                                                 "ffc0000b08ea60ea6001011100");

class QtPicturesTest : public testing::Test {
  protected:
    [[nodiscard]] QString file(const QString& name, const QByteArray& bytes) const {
        QFile written(folder.filePath(name));
        written.open(QIODevice::WriteOnly);
        written.write(bytes);
        return written.fileName();
    }

    QTemporaryDir folder;
    QtPictures pictures;
};

int distance(Pixel one, Pixel other) {
    const QColor a = QColor::fromRgb(one);
    const QColor b = QColor::fromRgb(other);
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
           std::abs(a.blue() - b.blue());
}

TEST_F(QtPicturesTest, loadsTheColoursOfAJpeg) {
    constexpr Pixel left_colour = 0xC83214;
    constexpr Pixel right_colour = 0x1450C8;
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(QColor::fromRgb(left_colour));
    for (int i = 0; i < 32 * 32; ++i) {
        image.setPixelColor(32 + i % 32, i / 32, QColor::fromRgb(right_colour));
    }
    const QString path = folder.filePath(u"foto.jpg"_s);
    ASSERT_TRUE(image.save(path, "JPG", 100));

    const Picture picture = pictures.load(toText(path));
    EXPECT_EQ(picture->width, 64);
    EXPECT_EQ(picture->height, 32);
    ASSERT_EQ(picture->pixels.size(), 64U * 32U);
    EXPECT_LT(distance(picture->at(8, 30), left_colour), 12);
    EXPECT_LT(distance(picture->at(56, 1), right_colour), 12);
}

TEST_F(QtPicturesTest, refusesWhatIsNoJpegAndNamesIt) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString png = folder.filePath(u"figura.jpg"_s);
    ASSERT_TRUE(image.save(png, "PNG"));
    for (const QString& path :
         {png, file(u"texto.jpg"_s, "isto não é uma imagem"), file(u"vazio.jpg"_s, ""),
          file(u"enorme.jpg"_s, huge_jpeg), folder.filePath(u"falta.jpg"_s), folder.path()}) {
        SCOPED_TRACE(path.toStdString());
        try {
            static_cast<void>(pictures.load(toText(path)));
            ADD_FAILURE() << "loaded";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), failure_number::invalid_picture);
            EXPECT_NE(failure.description().find(toText(path)), Text::npos);
        }
    }
}

TEST_F(QtPicturesTest, drawsTextsInPureBlackOnWhite) {
    const Raster two = pictures.text(u"HI");
    const Raster four = pictures.text(u"HIHI");
    EXPECT_NEAR(four.width, 2 * two.width, 1);
    EXPECT_EQ(four.height, two.height);
    ASSERT_EQ(four.pixels.size(), static_cast<std::size_t>(four.width * four.height));
    const auto ink = [](const Raster& raster) {
        return std::count(raster.pixels.begin(), raster.pixels.end(), black_pixel);
    };
    const auto paper = std::count(four.pixels.begin(), four.pixels.end(), white_pixel);
    EXPECT_GT(ink(two), 0);
    EXPECT_NEAR(static_cast<double>(ink(four)), 2.0 * static_cast<double>(ink(two)), 10);
    EXPECT_GT(paper, ink(four)) << "black on white, not white on black";
    EXPECT_EQ(static_cast<std::size_t>(ink(four) + paper), four.pixels.size()) << "a grey pixel";
    EXPECT_EQ(pictures.text(u"").width, 0);
}

} // namespace
} // namespace etiquetas
