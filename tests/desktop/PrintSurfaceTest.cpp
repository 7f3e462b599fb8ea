#include "Faults.h"
#include "PdfTools.h"
#include "barcodes/EAN13and8.h"
#include "desktop/QtPictures.h"
#include "desktop/QtPrintSurface.h"

#include <QDir>
#include <QTemporaryDir>

namespace etiquetas {

using namespace Qt::StringLiterals;
using namespace test;

namespace {

constexpr int resolution = 254; // ten dots to the millimetre
constexpr Pixel red = 0xE02020;
constexpr Pixel green = 0x20E020;
constexpr Pixel blue = 0x2020E0;

class PrintSurfaceTest : public testing::Test {
  protected:
    PrintSurfaceTest() {
        surface.onJobWritten([this](const QString& path) { written.append(path); });
        surface.PaperSize(user_defined_paper);
        pageSize(9000, 2660);
    }

    void pageSize(int width, int height) {
        surface.Width(width);
        surface.Height(height);
    }

    void print(float x, float y, TextView text) {
        surface.CurrentX(x);
        surface.CurrentY(y);
        surface.Print(text);
    }

    /// Ends the job and tells the file that it went to; nothing where it wrote none.
    QString finished() {
        surface.EndDoc();
        return written.isEmpty() ? QString() : written.takeLast();
    }

    [[nodiscard]] QStringList files() const {
        return QDir(folder.filePath(u"impressos"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    QtPrinters printers{{u"Retirada"_s}, QString()};
    QtPrintSurface surface{printers, folder.path(), [] {
                               return QDateTime({2024, 3, 5}, {7, 8, 9});
                           }};
    QStringList written;
};

// What each page tells, its texts joined.
QStringList wordsOf(const QString& pdf) {
    QStringList pages;
    for (const auto& texts : pageTexts(pdf)) {
        pages.append(QString());
        for (const PdfText& text : texts) {
            pages.back() += text.text;
        }
    }
    return pages;
}

// The colour at a place in millimetres.
Pixel colourAt(const QImage& page, double x, double y) {
    return page.pixel(static_cast<int>(x * 10), static_cast<int>(y * 10)) & RGB_MASK;
}

// Rows of bars, of guards alone and of nothing, as they are stamped on labels.
Picture bars() {
    QtPictures pictures;
    PictureBox box(pictures);
    DesenhaEan13(box, 1, u"200468135790", false);
    return box.Picture();
}

Picture quarters(Pixel top_left, Pixel top_right, Pixel bottom_left, Pixel bottom_right) {
    Raster raster{32, 32, {}};
    for (int i = 0; i < 32 * 32; ++i) {
        const bool left = i % 32 < 16;
        raster.pixels.push_back(i / 32 < 16 ? (left ? top_left : top_right)
                                            : (left ? bottom_left : bottom_right));
    }
    return std::make_shared<const Raster>(raster);
}

TEST_F(PrintSurfaceTest, startsAPageOfTheCurrentSizeWithItsFirstDrawing) {
    surface.NewPage();
    print(3, 3, u"A");
    pageSize(9000, 1200);
    print(3, 9, u"B");
    surface.NewPage();
    surface.NewPage();
    print(3, 3, u"C");
    pageSize(9000, 9000);
    surface.NewPage();
    surface.Line(filled_box, 10, 140, 30, 150, red);
    pageSize(1200, 9000);
    surface.NewPage();
    print(3, 3, u"D");
    surface.NewPage();
    const QString pdf = finished();
    EXPECT_EQ(pageSizes(pdf),
              (std::vector{QSizeF(450, 133), QSizeF(450, 60), QSizeF(450, 450), QSizeF(60, 450)}));
    EXPECT_EQ(wordsOf(pdf), (QStringList{u"AB"_s, u"C"_s, u""_s, u"D"_s}));
    EXPECT_EQ(colourAt(renderedPage(pdf, 3, resolution, Tones::colours), 20, 145), red);
}

TEST(LabelPage, isNeverSmallerThanItIsSet) {
    for (const int twips : {1, 71, 72, 2660, 9001}) {
        const double width = labelPageSize(twips, 9000).size(QPageSize::Millimeter).width();
        EXPECT_GE(width, twips * 25.4 / 1440);
        EXPECT_LT(width, twips * 25.4 / 1440 + 0.01);
    }
}

TEST_F(PrintSurfaceTest, writesNothingOfAnEmptyOrDroppedJob) {
    surface.EndDoc();
    print(1, 1, u"");
    surface.PaintPicture(nullptr, 1, 1, 10, 10);
    surface.PaintPicture(std::make_shared<const Raster>(), 1, 1, 10, 10);
    surface.NewPage();
    EXPECT_TRUE(finished().isEmpty());
    print(1, 1, u"PERDIDO");
    surface.NewPage();
    surface.dropJob();
    EXPECT_TRUE(finished().isEmpty());
    EXPECT_TRUE(files().isEmpty());
    print(1, 1, u"NOVO");
    EXPECT_EQ(wordsOf(finished()), QStringList{u"NOVO"_s});
}

TEST_F(PrintSurfaceTest, leavesNoFileWhereTheDiskIsFull) {
    print(1, 1, u"A");
    {
        const auto disk = smallDisk(2000);
        EXPECT_THROW(surface.EndDoc(), Failure);
    }
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(finished().isEmpty()) << "the failed job is over";
}

TEST_F(PrintSurfaceTest, namesJobsByTheirTimeAndOverwritesNone) {
    QStringList jobs;
    for (const TextView text : {TextView(u"UM"), TextView(u"DOIS"), TextView(u"TRES")}) {
        print(1, 1, text);
        jobs += wordsOf(finished());
    }
    EXPECT_EQ(files(),
              (QStringList{u"2024-03-05 07-08-09 (2).pdf"_s, u"2024-03-05 07-08-09 (3).pdf"_s,
                           u"2024-03-05 07-08-09.pdf"_s}));
    EXPECT_EQ(jobs, (QStringList{u"UM"_s, u"DOIS"_s, u"TRES"_s}));
}

TEST_F(PrintSurfaceTest, keepsAnOpenJobOnItsPrinterAndFailsOnOneThatIsNotThere) {
    print(1, 1, u"A");
    printers.makeCurrent(0);
    print(1, 9, u"B");
    EXPECT_EQ(wordsOf(finished()), QStringList{u"AB"_s});
    expectFailure(failure_number::printer, u"Retirada", [this] { print(1, 1, u"A"); });
    EXPECT_TRUE(finished().isEmpty());
}

TEST_F(PrintSurfaceTest, refusesCallsThatMeanNothing) {
    EXPECT_THROW(surface.PaperSize(9), Failure);
    EXPECT_THROW(surface.Width(0), Failure);
    EXPECT_THROW(surface.FontSize(0), Failure);
    EXPECT_THROW(surface.Line(0, 1, 1, 2, 2, 0), Failure);
    EXPECT_THROW(static_cast<void>(surface.Fonts(surface.FontCount())), Failure);
}

TEST_F(PrintSurfaceTest, placesTextsByTheirCellAndDrawsThemAsWideAsItMeasuresThem) {
    // Windows ascents as the fonts of the stand-ins state them, in units of 1/2048 em.
    struct Case {
        TextView face;
        double ascent;
        float size;
        bool bold;
        float x, y;
    };
    const TextView text = u"AVATAR To Stiefel fino ÇÃ ";
    for (const Case& each : {Case{u"Calibri", 1950, 10, false, 3, 4},
                             Case{u"Calibri", 1950, 21.9F, true, 9.5F, 12.25F},
                             Case{u"Franklin Gothic Medium", 1854, 5.3F, true, 0, 0},
                             Case{u"Liberation Sans", 1854, 6.1F, false, 100.1F, 30.7F},
                             Case{u"Malgun Gothic Semilight", 2189 * 0.974, 14, false, 2, 2}}) {
        SCOPED_TRACE(toQString(each.face).toStdString() + " " + std::to_string(each.size));
        surface.FontName(each.face);
        surface.FontBold(each.bold);
        surface.FontSize(100);
        const float large = surface.TextWidth(text);
        surface.FontSize(each.size);
        EXPECT_EQ(surface.FontSize(), each.size);
        const float width = surface.TextWidth(text);
        EXPECT_NEAR(width, large * each.size / 100, 0.0005) << "a rounded size";
        float letters = 0;
        for (const char16_t& letter : text) {
            letters += surface.TextWidth(TextView(&letter, 1));
        }
        EXPECT_NEAR(width, letters, 0.001) << "kerning";

        print(each.x, each.y, Text(text) + u"X");
        const PdfText drawn = pageTexts(finished()).at(0).at(0);
        EXPECT_EQ(drawn.text, toQString(text) + u'X') << "each letter stands by itself";
        EXPECT_NEAR(drawn.origins.front().x(), each.x, 0.02);
        EXPECT_NEAR(drawn.origins.front().y(), each.y + each.ascent / 2048 * each.size * 25.4 / 72,
                    0.02);
        EXPECT_NEAR(drawn.origins.back().x() - each.x, width, 0.02);
    }
}

TEST_F(PrintSurfaceTest, measuresAndPlacesInDotsFromJobToJob) {
    const float millimetres = surface.TextWidth(u"Etiqueta");
    surface.ScaleMode(ScaleMode::pixels);
    const float dots = surface.TextWidth(u"Etiqueta") / millimetres;
    EXPECT_NEAR(dots * 25.4F, 1200, 0.01) << "the built-in device is a fine printer";
    print(dots * 30, 0, u"A");
    EXPECT_NEAR(pageTexts(finished()).at(0).at(0).origins.at(0).x(), 30, 0.02);
    surface.Print(u"A");
    EXPECT_NEAR(pageTexts(finished()).at(0).at(0).origins.at(0).x(), 30, 0.02);
}

TEST_F(PrintSurfaceTest, fillsBoxesAndCoversThemWithCropsOfPictures) {
    surface.Line(filled_box, 20, 10, 60, 30, red);
    surface.Line(filled_box, 150, 40, 80, 5, green); // the other way round
    surface.PaintPicture(quarters(red, green, blue, 0), 85, 8, 20, 20);
    surface.PaintPicture(quarters(green, red, red, blue), 110, 8, 20, 20, {.x = 16, .y = 16});
    const QImage page = renderedPage(finished(), 1, resolution, Tones::colours);
    struct Case {
        double x, y;
        Pixel colour;
    };
    constexpr Pixel high_bits = 0xC0C0C0; // the others may get lost in a picture
    for (const Case& each :
         {Case{20.2, 10.2, red}, Case{59.8, 29.8, red}, Case{19.8, 20, white_pixel},
          Case{60.2, 20, white_pixel}, Case{40, 9.8, white_pixel}, Case{40, 30.2, white_pixel},
          Case{80.2, 5.2, green}, Case{149.8, 39.8, green}, Case{87, 10, red}, Case{103, 10, green},
          Case{87, 26, blue}, Case{103, 26, 0}, Case{84.5, 18, green}, Case{105.5, 18, green},
          Case{112, 10, blue}, Case{128, 26, blue}}) {
        EXPECT_EQ(colourAt(page, each.x, each.y) & high_bits, each.colour & high_bits)
            << each.x << ' ' << each.y;
    }
}

TEST(Stamps, cropsAPictureWithinItsEdges) {
    const Raster picture{40, 10, {}};
    EXPECT_EQ(cropOf(picture, {}), QRect(0, 0, 40, 10));
    EXPECT_EQ(cropOf(picture, {.width = 20}), QRect(0, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.x = 20, .width = 300}), QRect(20, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.x = -20, .width = 40}), QRect(0, 0, 20, 10));
    EXPECT_EQ(cropOf(picture, {.y = 5, .height = 3}), QRect(0, 5, 40, 3));
    EXPECT_TRUE(cropOf(picture, {.x = 50}).isEmpty());
}

TEST_F(PrintSurfaceTest, stampsBarsOpaqueAndWhereTheRasterHasThem) {
    const Picture symbol = bars();
    surface.Line(filled_box, 0, 0, 158, 46, red);
    surface.PaintPicture(symbol, 10, 10, 141, 27);
    const QImage page = renderedPage(finished(), 1, resolution, Tones::colours);
    for (int y = 0; y < 27; ++y) {
        for (int x = 0; x < 141; ++x) {
            ASSERT_EQ(colourAt(page, x + 10.5, y + 10.5), symbol->at(x, y)) << x << ' ' << y;
        }
    }
}

TEST_F(PrintSurfaceTest, stampsBarsThatScanAtTheResolutionOfALabelPrinter) {
    for (const float x : {9.3F, 12.37F, 51.3F}) {
        surface.PaintPicture(bars(), x, 13, 43.7F, 18);
        surface.NewPage();
    }
    const QString pdf = finished();
    for (const int dpi : {203, 300}) {
        for (const int page : {1, 2, 3}) {
            EXPECT_EQ(symbolsIn(renderedPage(pdf, page, dpi, Tones::black_and_white)),
                      QStringList{u"2004681357901"_s})
                << dpi << " dpi, page " << page;
        }
    }
}

TEST_F(PrintSurfaceTest, storesAPictureOnceInAJob) {
    const Picture logo = quarters(red, green, blue, red);
    for (int label = 0; label < 50; ++label) {
        surface.PaintPicture(logo, 3, 3, 30, 8, {.width = 30});
        surface.PaintPicture(logo, 80, 3, 30, 8);
        surface.NewPage();
    }
    EXPECT_EQ(storedImages(finished()), 2) << "one for each crop";
}

} // namespace
} // namespace etiquetas
