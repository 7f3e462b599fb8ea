#include "Faults.h"
#include "PdfTools.h"
#include "barcodes/EAN13and8.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/printing/QtPrintSurface.h"

#include <QDir>
#include <QTemporaryDir>

namespace etiquetas {

using namespace Qt::StringLiterals;
using namespace test;

class PrintSurfaceTest : public testing::Test {
  protected:
    PrintSurfaceTest() {
        surface.onJobWritten([this](const QString& path) { written = path; });
        surface.Width(9000);
        surface.Height(2660);
    }

    void print(float x, float y, TextView text) {
        surface.CurrentX(x);
        surface.CurrentY(y);
        surface.Print(text);
    }

    /// Ends the job and tells the file that it went to.
    const QString& finished() {
        surface.EndDoc();
        return written;
    }

    [[nodiscard]] QStringList files() const {
        return QDir(folder.filePath(u"impressos"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    QtPrinters printers{{u"Retirada"_s}, QString()};
    QDateTime now{{2024, 3, 5}, {7, 8, 9}};
    QtPrintSurface surface{printers, folder.path(), [this] { return now; }};
    QString written;
};

constexpr Pixel red = 0xFF0000;
constexpr Pixel green = 0x00FF00;
constexpr int ten_dots = 254; // to the millimetre

// The colour at a place in millimetres.
static Pixel colourAt(const QImage& page, double x, double y) {
    return page.pixel(static_cast<int>(x * 10), static_cast<int>(y * 10)) & RGB_MASK;
}

static Picture fourPixels(const std::vector<Pixel>& pixels) {
    return std::make_shared<const Raster>(Raster{2, 2, pixels});
}

TEST_F(PrintSurfaceTest, startsAPageOfTheCurrentSizeWithItsFirstDrawing) {
    print(3, 3, u"A");
    surface.Height(1200);
    print(3, 9, u"B");
    surface.NewPage();
    surface.NewPage();
    print(3, 3, u"C");
    surface.NewPage();
    surface.Height(9000);
    surface.Line(filled_box, 10, 140, 30, 150, red);
    surface.Width(1200);
    surface.NewPage();
    print(3, 3, u"D");
    surface.NewPage();
    const auto pages = pageTexts(finished());
    EXPECT_EQ(pageSizes(written),
              (std::vector<QSizeF>{{450, 133}, {450, 60}, {450, 450}, {60, 450}}));
    EXPECT_EQ(pages.at(0).at(1).text + pages.at(1).at(0).text + pages.at(3).at(0).text, u"BCD"_s);
    EXPECT_EQ(colourAt(renderedPage(written, 3, ten_dots, Tones::colours), 20, 145), red);
    printers.makeCurrent(1); // takes its own page until a size is set
    print(3, 3, u"E");
    EXPECT_EQ(pageSizes(finished()), (std::vector<QSizeF>{{283, 113}}));
    EXPECT_GE(labelPageSize(71, 9000).size(QPageSize::Millimeter).width(), 71 * 25.4 / 1440);
}

TEST_F(PrintSurfaceTest, writesAFileOfItsOwnForEachJobButNoneForEmptyDroppedAndFailedOnes) {
    print(1, 1, u"");
    surface.PaintPicture(nullptr, 1, 1, 10, 10);
    surface.PaintPicture(std::make_shared<const Raster>(), 1, 1, 10, 10);
    surface.NewPage();
    surface.EndDoc();
    print(1, 1, u"A");
    surface.dropJob();
    surface.EndDoc();
    print(1, 1, u"A");
    written = u"the job before"_s;
    onFullDisk([this] { EXPECT_THROW(surface.EndDoc(), Failure); });
    EXPECT_TRUE(written.isEmpty()) << "it must be told";
    EXPECT_TRUE(finished().isEmpty());
    EXPECT_TRUE(files().isEmpty());
    for (int job = 1; job <= 3; ++job) {
        print(1, 1, u"A");
        surface.EndDoc();
    }
    const QString name = u"2024-03-05 07-08-09"_s;
    EXPECT_EQ(files(), (QStringList{name + u" (2).pdf"_s, name + u" (3).pdf"_s, name + u".pdf"_s}));
}

TEST_F(PrintSurfaceTest, keepsAnOpenJobOnItsPrinterAndFailsOnOneThatIsNotThere) {
    print(1, 1, u"A");
    printers.makeCurrent(0);
    print(1, 9, u"B");
    EXPECT_EQ(pageTexts(finished()).at(0).size(), 2U);
    expectFailure(failure_number::printer, u"Retirada", [this] { print(1, 1, u"A"); });
}

// Windows ascents as the fonts of the stand-ins state them, in units of 1/2048 em.
TEST_F(PrintSurfaceTest, placesTextsByTheirCellAndDrawsThemAsWideAsItMeasuresThem) {
    struct Case {
        TextView face;
        float ascent, size, x, y;
    };
    const TextView text = u"AVATAR To Stiefel fino ÇÃ ";
    for (const Case& each :
         std::vector<Case>{{u"Calibri", 1950, 10, 3, 4},
                           {u"Calibri", 1950, 21.9F, 9.5F, 12.25F},
                           {u"Franklin Gothic Medium", 1854, 6.1F, 100.1F, 30.7F},
                           {u"Malgun Gothic Semilight", 2189 * 0.974F, 14, 2, 2}}) {
        SCOPED_TRACE(each.size);
        const auto width = [this](TextView part) { return surface.TextWidth(part); };
        surface.FontName(each.face);
        surface.FontBold(each.size > 20);
        surface.FontSize(100);
        const float large = width(text);
        surface.FontSize(each.size);
        EXPECT_NEAR(width(text), large * each.size / 100, 0.0005) << "a rounded size";
        EXPECT_NEAR(width(u"AVTo"), width(u"A") + width(u"V") + width(u"T") + width(u"o"), 0.001);
        print(each.x, each.y, Text(text) + u"X");
        const PdfText drawn = pageTexts(finished()).at(0).at(0);
        const double baseline = each.y + each.ascent / 2048 * each.size * 25.4 / 72;
        EXPECT_EQ(drawn.text, toQString(text) + u'X') << "each letter stands by itself";
        EXPECT_NEAR(drawn.origins.front().x(), each.x, 0.02);
        EXPECT_NEAR(drawn.origins.front().y(), baseline, 0.02);
        EXPECT_NEAR(drawn.origins.back().x(), each.x + width(text), 0.02);
    }
    const float millimetres = surface.TextWidth(u"A");
    surface.ScaleMode(ScaleMode::pixels);
    EXPECT_NEAR(surface.TextWidth(u"A"), millimetres * 1200 / 25.4F, 0.001) << "dots of the device";
    print(30 * 1200 / 25.4F, 0, u"A");
    EXPECT_NEAR(pageTexts(finished()).at(0).at(0).origins.at(0).x(), 30, 0.02);
}

TEST(PictureMarks, cropsAPictureWithinItsEdges) {
    const Raster picture{40, 10, {}};
    EXPECT_EQ(cropOf(picture, {.x = 20, .width = 300}), QRect(20, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.x = -20, .width = 40}), QRect(0, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.y = 5, .height = 3}), QRect(0, 5, 40, 3));
    EXPECT_TRUE(cropOf(picture, {.x = 50}).isEmpty());
}

TEST_F(PrintSurfaceTest, drawsOpaqueBoxesAndPicturesAndBarsThatScan) {
    QtPictures pictures;
    PictureBox bars(pictures);
    DesenhaEan13(bars, 1, u"200468135790", false);
    const Picture logo = fourPixels({0x202020, 0x606060, 0xA0A0A0, 0xE0E0E0});
    surface.Line(filled_box, 150, 40, 50, 5, green); // from its end to its start
    surface.PaintPicture(bars.Picture(), 57.37F, 20, 43.71F, 16.2F);
    surface.PaintPicture(logo, 55, 6, 10, 10);
    surface.PaintPicture(logo, 75, 6, 10, 10, {.x = 1, .y = 1});
    surface.PaintPicture(fourPixels({red, red, red, red}), 95, 6, 10, 10);
    surface.NewPage();
    surface.PaintPicture(logo, 5, 5, 10, 10);
    const QImage page = renderedPage(finished(), 1, ten_dots, Tones::colours);
    const auto expectColour = [&page](Pixel colour, const std::vector<QPointF>& places) {
        constexpr Pixel high_bits = 0xC0C0C0; // the others may get lost in a picture
        for (const auto [x, y] : places) {
            EXPECT_EQ(colourAt(page, x, y) & high_bits, colour & high_bits) << x << ' ' << y;
        }
    };
    expectColour(green, {{50.2, 5.2}, {149.8, 39.8}, {65.5, 11}, {54.5, 11}});
    expectColour(white_pixel, {{49.8, 20}, {150.2, 20}, {100, 4.8}, {100, 40.2}});
    expectColour(0x202020, {{57, 8}});
    expectColour(0x606060, {{63, 8}});
    expectColour(0xA0A0A0, {{57, 14}});
    expectColour(0xE0E0E0, {{63, 14}, {76, 7}, {84, 15}});
    expectColour(red, {{100, 11}});
    for (int y = 0; y < 27; ++y) {
        for (int x = 0; x < 141; ++x) {
            const Pixel colour = colourAt(page, 57.37 + (x + 0.5) * 0.31, 20 + (y + 0.5) * 0.6);
            ASSERT_EQ(colour, bars.Picture()->at(x, y)) << x << ' ' << y;
        }
    }
    for (const int dpi : {203, 300}) {
        const QImage printed = renderedPage(written, 1, dpi, Tones::black_and_white);
        EXPECT_EQ(symbolsIn(printed), QStringList{u"2004681357901"_s}) << dpi;
    }
    QFile pdf(written);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.readAll().count("/Subtype /Image"), 3 + 2) << "each picture once, two bar rows";
}

} // namespace etiquetas
