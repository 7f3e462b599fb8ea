#include "desktop/machine/QtPictures.h"

#include "base/Failure.h"
#include "desktop/machine/JpegFile.h"
#include "desktop/machine/QtText.h"
#include "desktop/machine/RasterImage.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIODevice>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <utility>

namespace etiquetas {

namespace {

constexpr std::int64_t megabyte = std::int64_t{1024} * 1024;

// The largest pictures of cameras stay below these. What is left to do with so many pixels when the
// time is over takes a moment.
constexpr std::int64_t most_pixels = 30'000'000;
constexpr std::int64_t most_bytes = 24 * megabyte;

// The decoder's memory, the file included.
constexpr std::int64_t most_memory = 64 * megabyte;

// Until no more of a file is waited for.
constexpr std::chrono::seconds reading_time{2};

// Seconds until no more of a file is decoded; the rest of one is left for the last steps.
constexpr double decoding_time = 0.6;

// Pixels of the longer side. The widest picture of a label is the logo of the carton, 70 mm, and
// the finest print heads have 600 dots to the inch; the window shows less, on any screen.
constexpr int longest_side = 1654;

Failure invalidPicture(TextView path) {
    return {failure_number::invalid_picture, u"Pictures",
            Text(u"Imagem inválida: o arquivo \"").append(path).append(u"\" não é JPEG.")};
}

// All bytes of a regular file; none where it is larger than a picture, or stands on a share that
// takes too long. A pipe or a device would keep the program waiting.
QByteArray bytesOf(const QString& path) {
    constexpr qint64 piece = 65'536;
    QFile file(path);
    const bool readable = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    if (!readable || file.size() > most_bytes) {
        return {};
    }
    QByteArray bytes;
    bytes.reserve(file.size());
    const QDeadlineTimer deadline(reading_time);
    while (!deadline.hasExpired() && bytes.size() <= most_bytes) {
        const QByteArray next = file.read(piece);
        if (next.isEmpty()) {
            return bytes;
        }
        bytes += next;
    }
    return {};
}

std::int64_t pixelsOf(const QSize& size) {
    return std::int64_t{size.width()} * size.height();
}

QSize shownSize(const QSize& stored) {
    const QSize most(longest_side, longest_side);
    const bool small = stored.boundedTo(most) == stored;
    return small ? stored : stored.scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

// The decoder shrinks by eighths; the toolkit shrinks what comes of that.
QSize decodedSize(const QSize& stored, const QSize& shown) {
    constexpr int eighths = 8;
    const double shrink = std::min(static_cast<double>(stored.width()) / shown.width(),
                                   static_cast<double>(stored.height()) / shown.height());
    return stored * (std::ceil(eighths / shrink) / eighths);
}

// The most bytes that are in use at once: while the scans are decoded, and while the result is
// shrunk, which may need it in another form.
std::int64_t memoryFor(const JpegShape& shape, const QSize& stored, const QSize& shown) {
    constexpr std::int64_t sample = 2; // bytes
    constexpr std::int64_t pixel = 4;
    constexpr std::int64_t grey_pixel = 1;
    const std::int64_t decoded = pixelsOf(decodedSize(stored, shown));
    return std::max(sample * shape.kept_samples + pixel * decoded,
                    (grey_pixel + pixel) * decoded + pixel * pixelsOf(shown));
}

// A clock of the time that the processor works for the program: what it does for others must not
// decide whether a label has its photograph.
class WorkClock {
  public:
    [[nodiscard]] double seconds() const {
        return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC;
    }

  private:
    std::clock_t start_ = std::clock();
};

// Gives out bytes until the time is over. In small pieces, since a few bytes may tell the decoder
// to go over the whole picture again.
class TimedBytes final : public QIODevice {
  public:
    explicit TimedBytes(QByteArrayView bytes) : bytes_(bytes) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool ranOut() const { return ran_out_; }

  protected:
    qint64 readData(char* to, qint64 most) override {
        constexpr qint64 piece = 64;
        ran_out_ = ran_out_ || clock_.seconds() > decoding_time;
        if (ran_out_) {
            return -1;
        }
        const auto given = bytes_.sliced(0, std::min({piece, most, bytes_.size()}));
        bytes_ = bytes_.sliced(given.size());
        std::copy(given.begin(), given.end(), to);
        return given.size();
    }
    qint64 writeData(const char* /*from*/, qint64 /*most*/) override { return -1; }

  private:
    QByteArrayView bytes_;
    WorkClock clock_;
    bool ran_out_ = false;
};

QImage decoded(QByteArrayView bytes, const QSize& size) {
    TimedBytes device(bytes);
    QImageReader reader(&device, "jpg");
    reader.setAutoTransform(true);
    reader.setScaledSize(size);
    QImage image = reader.read();
    return device.ranOut() ? QImage() : image;
}

// Without a pixel where the file is no picture, or one beyond the limits.
QImage shownImage(QByteArrayView bytes, const JpegShape& shape) {
    const QSize stored(shape.width, shape.height);
    const QSize shown = shownSize(stored);
    const bool fits = pixelsOf(stored) <= most_pixels &&
                      bytes.size() + memoryFor(shape, stored, shown) <= most_memory;
    return fits ? decoded(bytes, shown) : QImage();
}

QImage blankImage(int width, int height) {
    constexpr double dots_per_metre = 96 / 0.0254;
    // One bit deep: letters have no grey edges.
    QImage image(width, height, QImage::Format_Mono);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dots_per_metre)));
    image.setDotsPerMeterY(static_cast<int>(std::lround(dots_per_metre)));
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    image.fill(0);
    return image;
}

} // namespace

Picture QtPictures::load(TextView path) {
    const QByteArray bytes = bytesOf(toQString(path));
    const auto shape = shapeOfWholeJpeg({bytes.data(), static_cast<std::size_t>(bytes.size())});
    const QImage image = shape ? shownImage(bytes, *shape) : QImage();
    if (image.isNull()) {
        throw invalidPicture(path);
    }
    Raster raster = rasterOf(image);
    raster.shrink = static_cast<float>(std::max(shape->width, shape->height)) /
                    static_cast<float>(std::max(image.width(), image.height()));
    return std::make_shared<const Raster>(std::move(raster));
}

Raster QtPictures::text(TextView text) {
    const QString letters = toQString(text);
    QImage device = blankImage(1, 1);
    const QFontMetrics metrics(QGuiApplication::font(), &device);
    const int width = metrics.horizontalAdvance(letters);
    if (width == 0) {
        return Raster{0, metrics.height(), {}};
    }
    QImage image = blankImage(width, metrics.height());
    QPainter painter(&image);
    painter.setFont(QGuiApplication::font());
    painter.drawText(0, metrics.ascent(), letters);
    painter.end();
    return rasterOf(image);
}

} // namespace etiquetas
