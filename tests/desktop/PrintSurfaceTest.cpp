#include "PdfTools.h"
#include "SmallDisk.h"
#include "base/Failure.h"
#include "desktop/QtPrintSurface.h"
#include "desktop/QtText.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>

namespace etiquetas {

using namespace Qt::StringLiterals;
namespace {

using namespace test;

constexpr double millimetres_per_point = 25.4 / 72;

class PrintSurfaceTest : public testing::Test {
  protected:
    PrintSurfaceTest() {
        surface.onJobWritten([this](const QString& path) { written.append(path); });
        pageSize(9000, 2660);
    }

    void pageSize(int width, int height) {
        surface.PaperSize(user_defined_paper);
        surface.Width(width);
        surface.Height(height);
    }

    void font(TextView face, float size, bool bold = false) {
        surface.FontName(face);
        surface.FontSize(size);
        surface.FontBold(bold);
    }

    void print(float x, float y, TextView text) {
        surface.CurrentX(x);
        surface.CurrentY(y);
        surface.Print(text);
    }

    /// Ends the job and tells the file that it went to.
    QString finished() {
        surface.EndDoc();
        return written.isEmpty() ? QString() : written.last();
    }

    [[nodiscard]] QStringList files() const {
        return QDir(folder.filePath(u"impressos"_s))
            .entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QTemporaryDir folder;
    QtPrinters printers{{u"Retirada"_s}, QString()};
    QDateTime now{QDate(2024, 3, 5), QTime(7, 8, 9)};
    QtPrintSurface surface{printers, folder.path(), [this] { return now; }};
    QStringList written;
};

Picture filled(int width, int height, Pixel colour) {
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return std::make_shared<const Raster>(Raster{width, height, std::vector(count, colour)});
}

// Red on its left half, blue on its right half, with a grey corner.
Picture redAndBlue() {
    Raster raster{40, 10, {}};
    for (int i = 0; i < 400; ++i) {
        raster.pixels.push_back(i % 40 < 20 ? 0xFF0000 : 0x0000FF);
    }
    raster.pixels.front() = 0x808080;
    return std::make_shared<const Raster>(raster);
}

// The symbol 2004681357901 by the tables of GS1: guard, six digits, centre, six digits, guard.
constexpr std::string_view ean13_modules = "101"
                                           "000110100011010011101000010101101110110011"
                                           "01010"
                                           "100001010011101000100111010011100101100110"
                                           "101";

// Ten blank rows above ten of bars, one pixel to the module, with the quiet zones.
Picture ean13Picture() {
    const std::string row = std::string(11, '0').append(ean13_modules).append(7, '0');
    Raster raster{static_cast<int>(row.size()), 20, std::vector(row.size() * 10, white_pixel)};
    for (int y = 0; y < 10; ++y) {
        std::transform(row.begin(), row.end(), std::back_inserter(raster.pixels),
                       [](char bar) { return bar == '1' ? black_pixel : white_pixel; });
    }
    return std::make_shared<const Raster>(raster);
}

// The colour at a place of a rendered page, in millimetres.
QColor colourAt(const QImage& page, int resolution, double x, double y) {
    return page.pixelColor(static_cast<int>(x / 25.4 * resolution),
                           static_cast<int>(y / 25.4 * resolution));
}

// --- Pages ---

TEST_F(PrintSurfaceTest, makesPagesOfTheExactSizeUpright) {
    struct Case {
        int width, height; // twips
        double points_wide, points_high;
    };
    for (const Case& each : {Case{9000, 1200, 450, 60}, Case{9000, 2660, 450, 133},
                             Case{9000, 9000, 450, 450}, Case{1200, 9000, 60, 450}}) {
        SCOPED_TRACE(each.height);
        pageSize(each.width, each.height);
        print(1, 1, u"A");
        const auto sizes = pageSizes(finished());
        ASSERT_EQ(sizes.size(), 1U);
        EXPECT_EQ(sizes[0], QSizeF(each.points_wide, each.points_high));
    }
}

TEST(LabelPage, isNeverSmallerThanItIsSet) {
    for (const int twips : {1, 71, 72, 1200, 2660, 9000, 9001}) {
        SCOPED_TRACE(twips);
        const QSizeF size = labelPageSize(twips, 9000).size(QPageSize::Millimeter);
        EXPECT_GE(size.width(), twips * 25.4 / 1440);
        EXPECT_LT(size.width(), twips * 25.4 / 1440 + 0.01);
        EXPECT_EQ(size.height(), 158.75);
    }
}

TEST_F(PrintSurfaceTest, breaksPagesOnlyBetweenDrawings) {
    surface.NewPage();
    print(3, 3, u"UM");
    surface.NewPage();
    surface.NewPage();
    print(3, 3, u"DOIS");
    print(3, 9, u"AINDA");
    surface.NewPage();
    const auto pages = pageTexts(finished());
    ASSERT_EQ(pages.size(), 2U);
    ASSERT_EQ(pages[0].size(), 1U);
    ASSERT_EQ(pages[1].size(), 2U);
    EXPECT_EQ(pages[0][0].text, u"UM"_s);
    EXPECT_EQ(pages[1][0].text, u"DOIS"_s);
    EXPECT_EQ(pages[1][1].text, u"AINDA"_s);
}

TEST_F(PrintSurfaceTest, changesThePageSizeFromTheNextPageOn) {
    pageSize(9000, 1200);
    print(3, 3, u"UM");
    pageSize(9000, 9000);
    print(3, 9, u"AINDA");
    surface.NewPage();
    surface.Line(filled_box, 10, 140, 30, 150, 0xFF0000);
    pageSize(9000, 2660);
    surface.NewPage();
    surface.Line(filled_box, 10, 30, 30, 40, 0xFF0000);
    const QString pdf = finished();
    EXPECT_EQ(pageSizes(pdf), (std::vector{QSizeF(450, 60), QSizeF(450, 450), QSizeF(450, 133)}));
    EXPECT_EQ(colourAt(renderedPage(pdf, 2, 100, Tones::colours), 100, 20, 145), Qt::red);
    EXPECT_EQ(colourAt(renderedPage(pdf, 3, 100, Tones::colours), 100, 20, 35), Qt::red);
}

// --- Jobs ---

TEST_F(PrintSurfaceTest, writesNothingWithoutADrawing) {
    surface.EndDoc();
    print(1, 1, u"");
    surface.PaintPicture(nullptr, 1, 1, 10, 10);
    surface.PaintPicture(filled(0, 0, 0), 1, 1, 10, 10);
    surface.NewPage();
    surface.EndDoc();
    EXPECT_TRUE(written.isEmpty());
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(PrintSurfaceTest, namesJobsByTheirTime) {
    QStringList names;
    for (int job = 0; job < 3; ++job) {
        print(1, 1, u"A");
        const QFileInfo file(finished());
        EXPECT_TRUE(file.isFile());
        EXPECT_EQ(file.path(), folder.filePath(u"impressos"_s));
        names.append(file.fileName());
    }
    EXPECT_EQ(names, (QStringList{u"2024-03-05 07-08-09.pdf"_s, u"2024-03-05 07-08-09 (2).pdf"_s,
                                  u"2024-03-05 07-08-09 (3).pdf"_s}));
}

TEST_F(PrintSurfaceTest, forgetsADroppedJob) {
    print(1, 1, u"PERDIDO");
    surface.NewPage();
    surface.dropJob();
    surface.EndDoc();
    EXPECT_TRUE(files().isEmpty());

    print(1, 1, u"NOVO");
    const auto pages = pageTexts(finished());
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_EQ(pages[0].size(), 1U);
    EXPECT_EQ(pages[0][0].text, u"NOVO"_s);
}

TEST_F(PrintSurfaceTest, keepsAnOpenJobOnItsPrinter) {
    print(1, 1, u"UM");
    printers.makeCurrent(0);
    print(1, 9, u"DOIS");
    EXPECT_EQ(pageTexts(finished()).at(0).size(), 2U);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(PrintSurfaceTest, failsOnAPrinterThatIsNotThere) {
    printers.makeCurrent(0);
    try {
        print(1, 1, u"A");
        ADD_FAILURE() << "printed";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), failure_number::printer);
        EXPECT_NE(failure.description().find(u"Retirada"), Text::npos);
    }
    surface.EndDoc();
    printers.makeCurrent(1);
    print(1, 1, u"B");
    EXPECT_EQ(pageTexts(finished()).at(0).at(0).text, u"B"_s);
}

TEST_F(PrintSurfaceTest, leavesNoFileWhereTheDiskIsFull) {
    print(1, 1, u"A");
    {
        const SmallDisk disk(2000);
        EXPECT_THROW(surface.EndDoc(), Failure);
    }
    EXPECT_TRUE(files().isEmpty());
    surface.EndDoc();
    EXPECT_TRUE(written.isEmpty()) << "the failed job is over";
}

TEST_F(PrintSurfaceTest, refusesCallsThatMeanNothing) {
    EXPECT_THROW(surface.PaperSize(9), Failure);
    EXPECT_THROW(surface.Width(0), Failure);
    EXPECT_THROW(surface.Height(-20), Failure);
    EXPECT_THROW(surface.FontSize(0), Failure);
    EXPECT_THROW(surface.Line(0, 1, 1, 2, 2, 0), Failure);
    EXPECT_THROW(static_cast<void>(surface.Fonts(surface.FontCount())), Failure);
    EXPECT_TRUE(finished().isEmpty());
}

// --- Texts ---

TEST_F(PrintSurfaceTest, placesTheTopOfTheCharacterCell) {
    // Windows ascents as the fonts of the stand-ins state them, in units of 1/2048 em.
    struct Case {
        TextView face;
        double ascent;
        float size;
        bool bold;
        float x, y;
    };
    for (const Case& each :
         {Case{u"Calibri", 1950, 10, false, 3, 4}, Case{u"Calibri", 1950, 30, true, 40.5F, 12.25F},
          Case{u"Franklin Gothic Medium", 1854, 5.3F, true, 0, 0},
          Case{u"Liberation Sans", 1854, 24, false, 100.1F, 30.7F}}) {
        SCOPED_TRACE(each.size);
        font(each.face, each.size, each.bold);
        print(each.x, each.y, u"Etiqueta");
        const auto pages = pageTexts(finished());
        const QPointF origin = pages.at(0).at(0).origins.at(0);
        const double size = each.size * millimetres_per_point;
        EXPECT_NEAR(origin.x(), each.x, 0.02);
        EXPECT_NEAR(origin.y(), each.y + each.ascent / 2048 * size, 0.02);
    }
}

// The place of a letter behind a text shows how wide the text was drawn.
TEST_F(PrintSurfaceTest, drawsTextsAsWideAsItMeasuresThem) {
    const TextView text = u"AVATAR Tofino Stiefel ÇÃO 1234 ";
    for (const TextView face : {TextView(u"Calibri"), TextView(u"Franklin Gothic Medium"),
                                TextView(u"Malgun Gothic Semilight")}) {
        for (const float size : {5.0F, 6.1F, 14.0F}) {
            SCOPED_TRACE(toQString(face).toStdString() + " " + std::to_string(size));
            font(face, size, size > 6);
            print(2, 2, Text(text) + u"X");
            const float width = surface.TextWidth(text);
            const auto pages = pageTexts(finished());
            const PdfText& drawn = pages.at(0).at(0);
            EXPECT_EQ(drawn.text, toQString(text) + u'X') << "each letter stands by itself";
            EXPECT_NEAR(drawn.origins.back().x() - drawn.origins.front().x(), width, 0.02);
        }
    }
}

TEST_F(PrintSurfaceTest, measuresATextAsTheSumOfItsLetters) {
    for (const TextView face : {TextView(u"Calibri"), TextView(u"Franklin Gothic Medium")}) {
        font(face, 14);
        const TextView text = u"AVATAR To Stiefel fino";
        float sum = 0;
        for (const char16_t& letter : text) {
            sum += surface.TextWidth(TextView(&letter, 1));
        }
        EXPECT_NEAR(surface.TextWidth(text), sum, 0.001);
    }
}

TEST_F(PrintSurfaceTest, doesNotRoundSizes) {
    font(u"Calibri", 100);
    const TextView text = u"BOTA INFANTIL";
    const float whole = surface.TextWidth(text);
    for (const float size : {6.0F, 6.1F, 6.2F, 24.0F - 0.3F * 7}) {
        surface.FontSize(size);
        EXPECT_EQ(surface.FontSize(), size);
        EXPECT_NEAR(surface.TextWidth(text), whole * size / 100, 0.0005);
    }
    EXPECT_GT(whole, 100);
}

TEST_F(PrintSurfaceTest, measuresAndPlacesInDots) {
    font(u"Calibri", 10);
    const float millimetres = surface.TextWidth(u"Etiqueta");
    surface.ScaleMode(ScaleMode::pixels);
    const float dots_per_millimetre = surface.TextWidth(u"Etiqueta") / millimetres;
    EXPECT_GE(dots_per_millimetre * 25.4F, 600) << "the built-in device is a fine printer";
    EXPECT_NEAR(dots_per_millimetre * 25.4F, std::round(dots_per_millimetre * 25.4F), 0.01);
    print(dots_per_millimetre * 30, dots_per_millimetre * 20, u"Etiqueta");
    const QPointF origin = pageTexts(finished()).at(0).at(0).origins.at(0);
    EXPECT_NEAR(origin.x(), 30, 0.02);
    EXPECT_NEAR(origin.y(), 20 + 1950.0 / 2048 * 10 * millimetres_per_point, 0.02);
}

TEST_F(PrintSurfaceTest, keepsItsStateFromJobToJob) {
    font(u"Calibri", 12, true);
    print(3, 4, u"A");
    const auto first = pageTexts(finished());
    surface.Print(u"A");
    const auto second = pageTexts(finished());
    EXPECT_EQ(second.at(0).at(0).origins, first.at(0).at(0).origins);
    EXPECT_EQ(surface.FontSize(), 12);
}

// --- Boxes and pictures ---

TEST_F(PrintSurfaceTest, fillsBoxesFromCornerToCorner) {
    surface.Line(filled_box, 20, 10, 60, 30, 0x008000);
    surface.Line(filled_box, 100, 30, 80, 10, 0x0000FF);
    const QString pdf = finished();
    constexpr int resolution = 254; // ten dots to the millimetre
    const QImage page = renderedPage(pdf, 1, resolution, Tones::colours);
    struct Case {
        double x, y;
        QColor colour;
    };
    for (const Case& each :
         {Case{20.3, 10.3, QColor(0, 128, 0)}, Case{59.7, 29.7, QColor(0, 128, 0)},
          Case{19.7, 20, Qt::white}, Case{60.3, 20, Qt::white}, Case{40, 9.7, Qt::white},
          Case{40, 30.3, Qt::white}, Case{80.3, 10.3, Qt::blue}, Case{99.7, 29.7, Qt::blue}}) {
        SCOPED_TRACE(std::to_string(each.x) + " " + std::to_string(each.y));
        EXPECT_EQ(colourAt(page, resolution, each.x, each.y), each.colour);
    }
}

TEST_F(PrintSurfaceTest, stampsBarsThatScanAtTheResolutionOfALabelPrinter) {
    for (const float x : {9.3F, 12.37F, 51.3F}) {
        surface.PaintPicture(ean13Picture(), x, 13, 35, 8);
        surface.NewPage();
    }
    const QString pdf = finished();
    for (const int resolution : {203, 300}) {
        for (const int page : {1, 2, 3}) {
            SCOPED_TRACE(std::to_string(resolution) + " dpi, page " + std::to_string(page));
            EXPECT_EQ(symbolsIn(renderedPage(pdf, page, resolution, Tones::black_and_white)),
                      QStringList{u"2004681357901"_s});
        }
    }
}

TEST_F(PrintSurfaceTest, stampsBarsWhereTheRasterHasThem) {
    surface.PaintPicture(ean13Picture(), 10, 10, 113, 20);
    constexpr int resolution = 254;
    const QImage page = renderedPage(finished(), 1, resolution, Tones::colours);
    for (std::size_t module = 0; module < ean13_modules.size(); ++module) {
        SCOPED_TRACE(module);
        const double x = 10 + 11 + static_cast<double>(module) + 0.5;
        const QColor bar = ean13_modules[module] == '1' ? Qt::black : Qt::white;
        EXPECT_EQ(colourAt(page, resolution, x, 20.5), bar);
        EXPECT_EQ(colourAt(page, resolution, x, 29.5), bar);
        EXPECT_EQ(colourAt(page, resolution, x, 19.5), Qt::white);
        EXPECT_EQ(colourAt(page, resolution, x, 30.5), Qt::white);
    }
}

TEST_F(PrintSurfaceTest, coversWhatLiesUnderAStamp) {
    surface.Line(filled_box, 5, 5, 150, 40, 0xFF0000);
    surface.PaintPicture(ean13Picture(), 10, 10, 113, 20);
    surface.PaintPicture(redAndBlue(), 130, 10, 10, 10);
    const QImage page = renderedPage(finished(), 1, 254, Tones::colours);
    EXPECT_EQ(colourAt(page, 254, 8, 15), Qt::red);
    EXPECT_EQ(colourAt(page, 254, 60, 15), Qt::white) << "rows without ink";
    EXPECT_EQ(colourAt(page, 254, 15, 25), Qt::white) << "blanks between bars";
    EXPECT_EQ(colourAt(page, 254, 21.5, 25), Qt::black);
    EXPECT_GT(colourAt(page, 254, 138, 15).blue(), 200);
}

TEST_F(PrintSurfaceTest, cropsAPictureWithinItsEdges) {
    struct Case {
        SourceArea source;
        bool red_left, red_right;
    };
    for (const Case& each : {Case{{}, true, false}, Case{{.width = 20.0F}, true, true},
                             Case{{.x = 20.0F}, false, false}, Case{{.width = 300.0F}, true, false},
                             Case{{.x = 20.0F, .width = 300.0F}, false, false},
                             Case{{.x = -20.0F, .width = 40.0F}, true, true},
                             Case{{.y = 5.0F, .height = 5.0F}, true, false}}) {
        SCOPED_TRACE(std::to_string(each.source.x.value_or(-1)) + " " +
                     std::to_string(each.source.width.value_or(-1)));
        surface.PaintPicture(redAndBlue(), 10, 10, 40, 20, each.source);
        const QImage page = renderedPage(finished(), 1, 100, Tones::colours);
        EXPECT_EQ(colourAt(page, 100, 15, 20).red() > 128, each.red_left);
        EXPECT_EQ(colourAt(page, 100, 45, 20).red() > 128, each.red_right);
        EXPECT_EQ(colourAt(page, 100, 52, 20), Qt::white) << "scaled into its box";
    }
    surface.PaintPicture(redAndBlue(), 10, 10, 40, 20, {.x = 50.0F});
    surface.EndDoc();
    EXPECT_EQ(written.size(), 7) << "a crop beyond the picture draws nothing";
}

TEST_F(PrintSurfaceTest, storesAPictureOnceInAJob) {
    const Picture logo = redAndBlue();
    for (int label = 0; label < 50; ++label) {
        surface.PaintPicture(logo, 3, 3, 30, 8, {.width = 30.0F});
        surface.PaintPicture(logo, 80, 3, 30, 8);
        surface.NewPage();
    }
    const QString pdf = finished();
    EXPECT_EQ(pageSizes(pdf).size(), 50U);
    EXPECT_EQ(storedImages(pdf), 2) << "one for each crop";
}

TEST_F(PrintSurfaceTest, doesNotMistakeAPictureForAnother) {
    const Picture red = filled(8, 8, 0xFF0000);
    const Picture green = filled(8, 8, 0x00FF00);
    surface.PaintPicture(red, 10, 10, 20, 20);
    surface.PaintPicture(green, 40, 10, 20, 20);
    const QImage page = renderedPage(finished(), 1, 100, Tones::colours);
    EXPECT_GT(colourAt(page, 100, 20, 20).red(), 200);
    EXPECT_GT(colourAt(page, 100, 50, 20).green(), 200);
}

} // namespace
} // namespace etiquetas
