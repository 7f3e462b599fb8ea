#include "desktop/printing/LineArt.h"

#include <QBuffer>
#include <QPainter>
#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

static QImage asJpeg(const QImage& image) {
    QBuffer file;
    image.save(&file, "jpg", 75);
    return QImage::fromData(file.data());
}

static QImage logoIn(const QBrush& ink) {
    QImage image(300, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QRectF(20, 10, 60, 60));
    painter.drawPolygon(QPolygonF{{120, 70}, {150, 10}, {180, 70}});
    return asJpeg(image);
}

static QImage sample(const QString& name) {
    return QImage(QStringLiteral(ETIQUETAS_SAMPLES "/") + name);
}

static QBrush fading() {
    QLinearGradient fading(20, 0, 180, 0);
    fading.setStops({{0, Qt::black}, {1, Qt::white}});
    return fading;
}

TEST(LineArt, cutsBlackAndWhiteShapesAlongTheirSoftEdges) {
    const auto cut = lineArt(logoIn(Qt::black));
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->format(), QImage::Format_Mono);
    EXPECT_EQ(cut->size(), QSize(2400, 640));
    const auto is_black = [&cut](int x) { return cut->pixelIndex(x, 40 * 8) == 0; };
    for (const int apart : {-2, 2}) { // eighths of a pixel, from an edge
        EXPECT_EQ(is_black(20 * 8 + apart), apart > 0);
        EXPECT_EQ(is_black(80 * 8 + apart), apart < 0);
        EXPECT_EQ(is_black(135 * 8 + apart), apart > 0);
    }
    EXPECT_TRUE(lineArt(logoIn(QColor(48, 48, 48)))) << "of a black that is none";
    EXPECT_TRUE(lineArt(sample(u"lumira.jpg"_s)));
    EXPECT_TRUE(lineArt(sample(u"brisako.jpg"_s)));
}

TEST(LineArt, leavesColoursAndShades) {
    EXPECT_FALSE(lineArt(logoIn(QColor(60, 0, 0)))) << "a colour";
    EXPECT_FALSE(lineArt(logoIn(Qt::gray))) << "one shade";
    EXPECT_FALSE(lineArt(logoIn(fading()))) << "many shades";
    EXPECT_FALSE(lineArt(sample(u"imagens/3104527.jpg"_s))) << "a photograph";
    EXPECT_FALSE(lineArt(sample(u"imagens/3105206.jpg"_s))) << "that of a black boot";
}

} // namespace etiquetas::test
