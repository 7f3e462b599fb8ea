#include "desktop/machine/QtPictures.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"
#include "desktop/machine/RasterImage.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <cmath>
#include <cstdint>
#include <memory>

namespace etiquetas {

namespace {

// A damaged file may claim any size; the largest pictures of cameras stay below this.
constexpr std::int64_t most_pixels = 30'000'000;

Failure invalidPicture(TextView path) {
    return {failure_number::invalid_picture, u"Pictures",
            Text(u"Imagem inválida: o arquivo \"").append(path).append(u"\" não é JPEG.")};
}

bool isTooLarge(const QSize& size) {
    return static_cast<std::int64_t>(size.width()) * size.height() > most_pixels;
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
    QImageReader reader(toQString(path), "jpg");
    reader.setAutoTransform(true);
    if (isTooLarge(reader.size())) {
        throw invalidPicture(path);
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        throw invalidPicture(path);
    }
    return std::make_shared<const Raster>(rasterOf(image));
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
