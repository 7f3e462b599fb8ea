#include "desktop/printing/QtPrintSurface.h"

#include "barcodes/EAN13and8.h"
#include "desktop/machine/QtPictures.h"
#include "support/Cases.h"
#include "support/RandomTexts.h"
#include "tests/desktop/Faults.h"
#include "tests/desktop/PdfTools.h"

#include <QDir>
#include <QTemporaryDir>

namespace etiquetas::test {

class QtPrintSurfaceTest : public testing::Test {
  protected:
    QtPrintSurfaceTest() {
        surface.delivery().onEnded([this](const EndedJob& job) { ended = job; });
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
        return ended.file;
    }

    [[nodiscard]] QStringList files() const {
        return QDir(folder.filePath(u"impressos"_s)).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    QtPrinters printers{{u"Retirada"_s}, QString()};
    QtPrintSurface surface{printers, folder.path()};
    EndedJob ended;
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

static std::vector<QStringList> textsOfPages(const QString& pdf) {
    std::vector<QStringList> pages;
    for (const auto& page : pageTexts(pdf)) {
        QStringList& texts = pages.emplace_back();
        for (const PdfText& text : page) {
            texts.append(text.text);
        }
    }
    return pages;
}

static qsizetype imagesIn(const QString& pdf) {
    QFile file(pdf);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().count("/Subtype /Image");
}

TEST_F(QtPrintSurfaceTest, breaksTextsWhereAWalkThroughAllBeginningsBreaksThem) {
    surface.FontName(u"Calibri");
    surface.FontSize(7);
    test::expectBreaksOfAWalk(surface);
}

TEST_F(QtPrintSurfaceTest, startsAPageOfTheCurrentSizeWithItsFirstDrawing) {
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
    const QString pdf = finished();
    EXPECT_EQ(pageSizes(pdf), (std::vector<QSizeF>{{450, 133}, {450, 60}, {450, 450}, {60, 450}}));
    EXPECT_EQ(textsOfPages(pdf),
              (std::vector<QStringList>{{u"A"_s, u"B"_s}, {u"C"_s}, {}, {u"D"_s}}));
    EXPECT_EQ(colourAt(renderedPage(pdf, 3, ten_dots, Tones::colours), 20, 145), red);
}

TEST_F(QtPrintSurfaceTest, takesThePageOfAPrinterUntilASizeIsSetForIt) {
    printers.makeCurrent(1);
    print(3, 3, u"A");
    EXPECT_EQ(pageSizes(finished()), (std::vector<QSizeF>{{283, 113}}));
}

TEST_F(QtPrintSurfaceTest, writesNoFileForEmptyAndDroppedJobs) {
    print(1, 1, u"");
    surface.PaintPicture(nullptr, 1, 1, 10, 10);
    surface.PaintPicture(std::make_shared<const Raster>(), 1, 1, 10, 10);
    surface.NewPage();
    surface.EndDoc();
    print(1, 1, u"A");
    surface.dropJob();
    surface.EndDoc();
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(QtPrintSurfaceTest, tellsOfItsJobsAndForgetsOneThatCouldNotBeWritten) {
    print(1, 1, u"A");
    surface.NewPage();
    print(1, 1, u"B");
    surface.EndDoc();
    EXPECT_EQ(ended.target, (PrintTarget{u"PDF"_s, Device::pdf_file}));
    EXPECT_EQ(ended.pages, 2U);
    EXPECT_TRUE(ended.delivered);
    const QStringList written{QFileInfo(ended.file).fileName()};
    EXPECT_EQ(files(), written);
    print(1, 1, u"A");
    onFullDisk([this] { EXPECT_THROW(surface.EndDoc(), Failure); });
    EXPECT_EQ(ended.pages, 1U);
    EXPECT_TRUE(ended.file.isEmpty());
    EXPECT_FALSE(ended.delivered);
    surface.EndDoc();
    EXPECT_EQ(files(), written);
}

TEST_F(QtPrintSurfaceTest, countsWholeLabelsAndDropsAJobThatIsCancelledWhileItIsDrawn) {
    LabelCount count;
    surface.countBy([&count] { return count; });
    print(1, 1, u"A");
    count = {.begun = 2, .finished = 1}; // the second was cut off
    surface.EndDoc();
    EXPECT_EQ(ended.labels, 1U);
    EXPECT_EQ(ended.cut_off, 1U);
    JobPulse& pulse = surface.delivery().pulse();
    pulse = JobPulse(JobPulse::Milliseconds(0), JobPulse::Milliseconds(0));
    std::size_t labels = 0;
    pulse.onBeat(
        [&labels](const JobProgress& progress) {
            labels = progress.labels;
            return labels < 2 ? JobWish::goes_on : JobWish::ends;
        },
        [] {});
    print(1, 1, u"B");
    count = {.begun = 5, .finished = 4};
    EXPECT_THROW(print(1, 1, u"C"), Failure);
    EXPECT_THROW(print(1, 1, u"D"), Failure);
    EXPECT_EQ(labels, 3U);
    surface.EndDoc();
    EXPECT_TRUE(ended.cancelled);
    EXPECT_EQ(files().size(), 1) << "that of the first job";
}

TEST_F(QtPrintSurfaceTest, keepsAnOpenJobOnItsPrinterAndFailsOnOneThatIsNotThere) {
    print(1, 1, u"A");
    printers.makeCurrent(0);
    print(1, 9, u"B");
    EXPECT_EQ(textsOfPages(finished()), (std::vector<QStringList>{{u"A"_s, u"B"_s}}));
    expectFailure(failure_number::printer, u"Retirada", [this] { print(1, 1, u"A"); });
}

struct PlacedText {
    const char* name;
    TextView face;
    bool bold = false;
    float points = 0;
    float x = 0; // millimetres
    float y = 0;
};

class PlacedTextTest : public QtPrintSurfaceTest, public testing::WithParamInterface<PlacedText> {};

TEST_P(PlacedTextTest, standsByItsCellAndIsAsWideAsItIsMeasured) {
    const PlacedText& placed = GetParam();
    const auto width = [this](TextView text) { return surface.TextWidth(text); };
    const TextView text = u"AVATAR To Stiefel fino ÇÃ ";
    surface.FontName(placed.face);
    surface.FontBold(placed.bold);
    surface.FontSize(100);
    const float large = width(text);
    surface.FontSize(placed.points);
    EXPECT_NEAR(width(text), large * placed.points / 100, 0.0005) << "a rounded size";
    EXPECT_NEAR(width(u"AVTo"), width(u"A") + width(u"V") + width(u"T") + width(u"o"), 0.001);
    print(placed.x, placed.y, Text(text) + u"X");
    const QString pdf = finished();
    EXPECT_EQ(textsOfPages(pdf), std::vector{QStringList{toQString(text) + u'X'}})
        << "each letter stands by itself";
    const PdfText drawn = pageTexts(pdf).at(0).at(0);
    EXPECT_NEAR(drawn.origins.front().x(), placed.x, 0.02);
    EXPECT_NEAR(drawn.origins.front().y(), placed.y + riseOf(toQString(placed.face), placed.points),
                0.02);
    EXPECT_NEAR(drawn.origins.back().x(), placed.x + width(text), 0.02);
}

// clang-format off
static const std::vector<PlacedText> placed_texts{
    // name, face, bold, points, x, y
    {"calibri", u"Calibri", false, 10, 3, 4},
    {"calibri_bold", u"Calibri", true, 21.9F, 9.5F, 12.25F},
    {"franklin_gothic", u"Franklin Gothic Medium", false, 6.1F, 100.1F, 30.7F},
    {"malgun_gothic", u"Malgun Gothic Semilight", false, 14, 2, 2},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Faces, PlacedTextTest, testing::ValuesIn(placed_texts), CaseName());

TEST_F(QtPrintSurfaceTest, countsInDotsOfTheDeviceWhereTheUnitIsAPixel) {
    constexpr float dots_to_millimetre = 1200 / 25.4F;
    surface.FontName(u"Calibri");
    const float millimetres = surface.TextWidth(u"A");
    surface.ScaleMode(ScaleMode::pixels);
    EXPECT_NEAR(surface.TextWidth(u"A"), millimetres * dots_to_millimetre, 0.001);
    print(30 * dots_to_millimetre, 0, u"A");
    EXPECT_NEAR(pageTexts(finished()).at(0).at(0).origins.front().x(), 30, 0.02);
}

TEST_F(QtPrintSurfaceTest, drawsOpaqueBoxesAndPicturesAndStoresEachPictureOnce) {
    const Picture logo = fourPixels({0x202020, 0x606060, 0xA0A0A0, 0xE0E0E0});
    surface.Line(filled_box, 150, 40, 50, 5, green); // from its end to its start
    surface.PaintPicture(logo, 55, 6, 10, 10);
    surface.PaintPicture(logo, 75, 6, 10, 10, {.x = 1, .y = 1});
    surface.PaintPicture(fourPixels({red, red, red, red}), 95, 6, 10, 10);
    surface.NewPage();
    surface.PaintPicture(logo, 5, 5, 10, 10);
    const QImage page = renderedPage(finished(), 1, ten_dots, Tones::colours);
    const auto expect_colour = [&page](Pixel colour, const std::vector<QPointF>& places) {
        constexpr Pixel high_bits = 0xC0C0C0; // the others may get lost in a picture
        for (const auto [x, y] : places) {
            EXPECT_EQ(colourAt(page, x, y) & high_bits, colour & high_bits) << x << ' ' << y;
        }
    };
    expect_colour(green, {{50.2, 5.2}, {149.8, 39.8}, {65.5, 11}, {54.5, 11}});
    expect_colour(white_pixel, {{49.8, 20}, {150.2, 20}, {100, 4.8}, {100, 40.2}});
    expect_colour(0x202020, {{57, 8}});
    expect_colour(0x606060, {{63, 8}});
    expect_colour(0xA0A0A0, {{57, 14}});
    expect_colour(0xE0E0E0, {{63, 14}, {76, 7}, {84, 15}});
    expect_colour(red, {{100, 11}});
    EXPECT_EQ(imagesIn(ended.file), 3) << "the logo, a part of it, and the red one";
}

TEST_F(QtPrintSurfaceTest, drawsBarsWhereTheirRasterHasThem) {
    QtPictures pictures;
    PictureBox bars(pictures);
    DesenhaEan13(bars, 1, u"200468135790", false);
    surface.Line(filled_box, 50, 5, 150, 40, green);
    surface.PaintPicture(bars.Picture(), 57.37F, 20, 43.71F, 16.2F);
    const QImage page = renderedPage(finished(), 1, ten_dots, Tones::colours);
    for (int y = 0; y < 27; ++y) {
        for (int x = 0; x < 141; ++x) {
            const Pixel colour = colourAt(page, 57.37 + (x + 0.5) * 0.31, 20 + (y + 0.5) * 0.6);
            ASSERT_EQ(colour, bars.Picture()->at(x, y)) << x << ' ' << y;
        }
    }
    EXPECT_EQ(imagesIn(ended.file), 2) << "long and short bars";
}

TEST_F(QtPrintSurfaceTest, writesTheSameLabelsAsTheSameBytesWithPlainBlanksAndEqualBarsOnce) {
    QtPictures pictures;
    const auto written = [&] {
        for (const float y : {5.0F, 15.0F, 25.0F}) {
            PictureBox bars(pictures);
            DesenhaEan13(bars, 1, u"200468135790", false);
            surface.PaintPicture(bars.Picture(), 60, y, 35, 8);
            for (const TextView face : {u"Calibri", u"Estrangelo Edessa"}) {
                surface.FontName(face);
                print(5, y, u"2 TIRAS – COR CAFÉ");
            }
        }
        QFile file(finished());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        constexpr qsizetype date = 30; // bytes
        return bytes.remove(bytes.indexOf("/CreationDate"), date);
    };
    const QByteArray bytes = written();
    EXPECT_TRUE(written() == bytes);
    EXPECT_EQ(imagesIn(ended.file), 2) << "long and short bars";
    EXPECT_EQ(bytes.count("<0020>"), 2) << "a blank in the table of each face";
    EXPECT_EQ(bytes.count("<0009>"), 0) << "a tab";
}

} // namespace etiquetas::test
