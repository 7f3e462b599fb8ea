#include "desktop/machine/QtPictures.h"

#include "tests/desktop/Faults.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <sys/stat.h>

namespace etiquetas::test {

class QtPicturesTest : public testing::Test {
  protected:
    void write(const QByteArray& bytes) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

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
        write(bytes);
        expectFailure(invalid_picture, path, load);
    }
    QImage huge(5600, 5600, QImage::Format_Grayscale8);
    huge.fill(0);
    ASSERT_TRUE(huge.save(name));
    expectFailure(invalid_picture, path, load);
}

// A picture that is hard to compress, red on its left half.
static QImage photograph(const QSize& size, QImage::Format format) {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grain = (x * 7 + y * 13) % 32;
            image.setPixel(
                x, y, 2 * x < size.width() ? qRgb(224 + grain, grain, 0) : qRgb(0, grain, 224));
        }
    }
    return image.convertToFormat(format);
}

static QByteArray jpeg(const QImage& image, bool progressive) {
    QBuffer file;
    QImageWriter writer(&file, "jpg");
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image));
    return file.data();
}

TEST_F(QtPicturesTest, shrinksWhatIsLargerThanALabelShowsAndNothingElse) {
    struct Shrunk {
        QSize stored;
        QSize loaded;
    };
    for (const Shrunk& picture :
         {Shrunk{{3000, 2000}, {1654, 1102}}, Shrunk{{40, 5000}, {13, 1654}},
          Shrunk{{1654, 900}, {1654, 900}}}) {
        write(jpeg(photograph(picture.stored, QImage::Format_RGB32), true));
        const Picture loaded = pictures.load(path);
        EXPECT_EQ(QSize(loaded->width, loaded->height), picture.loaded);
        EXPECT_NEAR(loaded->shrink, picture.stored.height() * 1.0 / loaded->height, 0.002);
        EXPECT_EQ(loaded->at(1, 1) & 0xC0C0C0, 0xC00000U);
        EXPECT_EQ(loaded->at(loaded->width - 2, loaded->height - 2) & 0xC0C0C0, 0x0000C0U);
    }
}

TEST_F(QtPicturesTest, refusesEveryFileThatIsCutOff) {
    const QByteArray inner = jpeg(photograph({16, 16}, QImage::Format_RGB32), false);
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Grayscale8}) {
        for (const bool progressive : {false, true}) {
            QByteArray whole = jpeg(photograph({90, 60}, format), progressive);
            // A picture in a segment, as cameras put one there, with an end of its own.
            whole.insert(2, QByteArray("\xFF\xE1", 2) + char(inner.size() / 256) +
                                char(inner.size() % 256 + 2) + inner);
            write(whole + "rest");
            EXPECT_EQ(pictures.load(path)->width, 90);
            for (qsizetype size = 0; size < whole.size(); size += 1 + size / 100) {
                write(whole.left(size));
                EXPECT_THROW(static_cast<void>(pictures.load(path)), Failure) << size;
            }
            write(whole.chopped(1));
            EXPECT_THROW(static_cast<void>(pictures.load(path)), Failure);
        }
    }
}

TEST_F(QtPicturesTest, endsInTimeAndMemoryWhateverTheFile) {
    // A scan of ten bytes has the decoder go over the whole picture.
    QByteArray scans = jpeg(photograph({3000, 3000}, QImage::Format_Grayscale8), true);
    const QByteArray scan("\xFF\xDA\x00\x08\x01\x01\x00\x01\x3F\x10", 10);
    write(scans.insert(scans.size() - 2, scan.repeated(20'000)));
    QElapsedTimer time;
    time.start();
    expectFailure(failure_number::invalid_picture, path,
                  [this] { static_cast<void>(pictures.load(path)); });
    EXPECT_LT(time.elapsed(), 10'000) << "milliseconds; a decoder left alone takes minutes";
    // Its coefficients take 70 MB.
    write(jpeg(QImage(5000, 4700, QImage::Format_RGB32), true));
    EXPECT_THROW(static_cast<void>(pictures.load(path)), Failure);
    // A pipe.
    ASSERT_TRUE(QFile::remove(name));
    ASSERT_EQ(mkfifo(name.toUtf8(), S_IRUSR | S_IWUSR), 0);
    EXPECT_THROW(static_cast<void>(pictures.load(path)), Failure);
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
