#include "desktop/printing/ShapedTexts.h"

#include "desktop/printing/LabelFont.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

template <typename Draw>
QImage drawn(const Draw& draw) {
    QImage image(1200, 100, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(10, 60);
    painter.scale(0.02, 0.02); // label fonts are large
    draw(painter);
    return image;
}

} // namespace

TEST(ShapedTexts, drawsEachTextInEachFontAsThePainterDoesHoweverOften) {
    const LabelFont plain({u"Liberation Sans"_s}, false);
    const LabelFont bold({u"Liberation Sans"_s}, true);
    ShapedTexts texts;
    for (int round = 1; round <= 2; ++round) {
        for (const QString& text : {u"TÊNIS fi 139,99"_s, u"  AVTo "_s, u"a\tb\u00ADc\u00A0d"_s,
                                    u"€ 5 – 6"_s, u"שלום"_s, QString()}) {
            for (const LabelFont* const font : {&plain, &bold}) {
                const QImage by_painter = drawn([&](QPainter& painter) {
                    painter.setFont(font->font());
                    painter.drawText(QPointF(), text);
                });
                const QImage shaped =
                    drawn([&](QPainter& painter) { texts.draw(painter, font->font(), text); });
                EXPECT_EQ(shaped, by_painter) << qPrintable(text) << ", round " << round;
            }
        }
    }
}

} // namespace etiquetas
