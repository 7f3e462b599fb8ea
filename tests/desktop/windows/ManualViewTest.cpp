#include "desktop/windows/ManualView.h"

#include <QTextBlock>
#include <gtest/gtest.h>

namespace etiquetas {

TEST(ManualView, turnsToTheChapterOfEachLinkAndHasAllPictures) {
    ManualView manual;
    manual.openAlone();
    const QTextDocument& text = *manual.document();
    int links = 0;
    int pictures = 0;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor()) {
                ++links;
                EXPECT_TRUE(manual.turnTo(QUrl(format.anchorHref()).fragment()))
                    << format.anchorHref().toStdString();
            }
            if (format.isImageFormat()) {
                ++pictures;
                const QUrl name(format.toImageFormat().name());
                const QVariant found = manual.loadResource(QTextDocument::ImageResource, name);
                EXPECT_FALSE(found.value<QImage>().isNull()) << name.toString().toStdString();
            }
        }
    }
    EXPECT_GE(links, 13);
    EXPECT_GE(pictures, 6);
    EXPECT_FALSE(manual.turnTo(QStringLiteral("capítulo-que-não-há")));
}

} // namespace etiquetas
