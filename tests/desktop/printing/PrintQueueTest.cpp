#include "barcodes/EAN13and8.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/printing/DotPage.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/LabelFont.h"
#include "desktop/printing/PictureMarks.h"
#include "desktop/printing/PrintJob.h"
#include "support/Cases.h"
#include "tests/desktop/LabelPrograms.h"
#include "tests/desktop/PrintServer.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

static LabelPage samplePage() {
    QtPictures pictures;
    PictureBox box(pictures);
    DesenhaEan13(box, 1, u"231045270199", false);
    QImage photograph(40, 40, QImage::Format_RGB32);
    photograph.fill(qRgb(128, 128, 128));
    const FontChoice face = chooseFont(u"Calibri", false, installedFamilies());
    const LabelFont font(face, false);
    LabelPage page{.size = labelPageSize(9000, 2660)};
    page.marks = {TextMark{{3, 10}, u"SANDÁLIA"_s, font.font(), font.scaleFor(2.5)},
                  ImageMark{{60, 5, 20, 20}, photograph}, BoxMark{{95, 5, 60, 0.3}, Qt::black}};
    PictureMarks().stamp(page, box.Picture(), QRect(0, 0, 141, 27), QRectF(20, 12, 35, 8));
    return page;
}

class PrintQueueTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!server.isRunning()) {
            GTEST_SKIP() << "no print server can be started here";
        }
    }
    [[nodiscard]] QByteArray printed(const QString& driver, LabelPages pages) {
        server.addQueue(u"Etiquetas"_s, driver);
        JobPulse pulse;
        PrintJob({.name = u"Etiquetas"_s}, pulse, std::move(pages)).send();
        return server.printed(u"Etiquetas"_s);
    }

    PrintServer server;
};

struct LabelPrinter {
    const char* name;
    QString driver;
    QImage (*dots)(const QByteArray& program, const QSize& size);
    int width = 0; // dots of its head, or of the page
};

class LabelPrinterTest : public PrintQueueTest, public testing::WithParamInterface<LabelPrinter> {};

TEST_P(LabelPrinterTest, getsTheVeryDotsOnce) {
    const LabelPage page = samplePage();
    const QByteArray program =
        printed(u"drv:///sample.drv/%1.ppd"_s.arg(GetParam().driver), {page, page});
    EXPECT_EQ(PrintServer::jobs(u"Etiquetas"_s), 1);
    const QImage drawn = DotPages(203).draw(page, builtInPage());
    const QImage expected = drawn.copy(0, 0, GetParam().width, drawn.height());
    const QImage got = GetParam().dots(program, expected.size());
    EXPECT_EQ(got, expected);
}

INSTANTIATE_TEST_SUITE_P(Drivers, LabelPrinterTest,
                         testing::Values(LabelPrinter{"epl", u"zebraep2"_s, eplDots, 812},
                                         LabelPrinter{"cpcl", u"zebracpl"_s, cpclDots, 809},
                                         LabelPrinter{"zpl", u"zebra"_s, zplDots, 1269}),
                         CaseName());

TEST_F(PrintQueueTest, getsThePartOfAPageWithinTheMarginsOfItsDriver) {
    const auto driver = QStringLiteral(ETIQUETAS_JOURNEYS "/desktop/printing/margins.ppd");
    const LabelPage page = samplePage();
    const QSize head(1750, 425); // 420 by 102 points at 300 dots to the inch
    const auto got = rasterPages(printed(driver, {page}), head);
    ASSERT_EQ(got.size(), 1U);
    const QImage drawn = DotPages(300).draw(page, builtInPage());
    const QImage expected = drawn.copy(QRect(QPoint(50, 75), head)); // 12 and 18 points
    EXPECT_EQ(got[0], expected);
}

TEST_F(PrintQueueTest, getsEachPageOfAJobInItsOwnSize) {
    LabelPage strip = samplePage();
    LabelPage carton = strip;
    carton.size = labelPageSize(9000, 9000);
    const QByteArray program = printed(u"drv:///sample.drv/zebra.ppd"_s, {strip, carton, strip});
    QList<int> bytes;
    for (qsizetype at = 0; (at = program.indexOf("~DGR:CUPS.GRF,", at)) >= 0; ++at) {
        bytes << program.mid(at).split(',').at(1).toInt();
    }
    constexpr int row = 159; // bytes
    EXPECT_EQ(bytes, (QList{row * 375, row * 1269, row * 375}));
}

} // namespace etiquetas::test
