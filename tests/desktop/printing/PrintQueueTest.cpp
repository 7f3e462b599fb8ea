#include "barcodes/EAN13and8.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/printing/DotPage.h"
#include "desktop/printing/JobPulse.h"
#include "desktop/printing/LabelFont.h"
#include "desktop/printing/PictureMarks.h"
#include "desktop/printing/PrintJob.h"
#include "support/Cases.h"
#include "tests/desktop/PrintServer.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

/// Takes a program of a printer to pieces.
class Program {
  public:
    explicit Program(const QByteArray& text) : text_(text) {}

    /// Goes behind the next such word; false where there is none.
    bool find(const char* word) {
        const auto place = text_.indexOf(word, at_);
        at_ = place < 0 ? text_.size() : place + static_cast<qsizetype>(qstrlen(word));
        return place >= 0;
    }
    int number() {
        int value = 0;
        while (at_ < text_.size() && std::isdigit(text_[at_]) != 0) {
            value = value * 10 + text_[at_++] - '0';
        }
        ++at_; // what ends it
        return value;
    }
    [[nodiscard]] char next() { return text_[at_++]; }

  private:
    QByteArray text_;
    qsizetype at_ = 0;
};

static QImage paper(int width, int height) {
    QImage dots(width, height, QImage::Format_Mono);
    dots.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    dots.fill(1);
    return dots;
}

// EPL2: rows of bytes, a bit being paper, each with its place; blank ones are left out.
static QImage eplDots(Program program, const QSize& size) {
    QImage dots = paper(size.width(), size.height());
    while (program.find("\nGW0,")) {
        uchar* const row = dots.scanLine(program.number());
        const int bytes = program.number();
        program.number();
        for (int i = 0; i < bytes; ++i) {
            row[i] = static_cast<uchar>(program.next());
        }
    }
    return dots;
}

// CPCL: the same, a bit being ink.
static QImage cpclDots(Program program, const QSize& size) {
    QImage dots = paper(size.width(), size.height());
    while (program.find("\nCG ")) {
        const int bytes = program.number();
        program.number();
        program.number();
        uchar* const row = dots.scanLine(program.number());
        for (int i = 0; i < bytes; ++i) {
            row[i] = static_cast<uchar>(~program.next());
        }
    }
    return dots;
}

// ZPL: rows of hexadecimal digits, a bit being ink. A letter repeats the digit after it, a comma
// ends a row in paper, a colon repeats the row before.
static QImage zplDots(Program program, const QSize& size) {
    QImage dots = paper(size.width(), size.height());
    EXPECT_TRUE(program.find("~DGR:CUPS.GRF,"));
    program.number();
    const int digits = program.number() * 2;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0, count = 0; x < digits;) {
            const char each = program.next();
            if (each == ':') {
                memcpy(dots.scanLine(y), dots.constScanLine(y - 1),
                       static_cast<std::size_t>(dots.bytesPerLine()));
                break;
            }
            if (each == ',') {
                break;
            }
            if (each >= 'G' && each <= 'Y') {
                count += each - 'F';
            } else if (each >= 'g' && each <= 'z') {
                count += (each - 'f') * 20;
            } else if (std::isxdigit(each) != 0) {
                const int ink = QByteArray(1, each).toInt(nullptr, 16);
                for (const int end = x + std::max(1, count); x < end; ++x) {
                    dots.scanLine(y)[x / 2] &= static_cast<uchar>(~(ink << (x % 2 == 0 ? 4 : 0)));
                }
                count = 0;
            }
        }
    }
    return dots;
}

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

struct LabelPrinter {
    const char* name;
    QString driver;
    QImage (*dots)(Program program, const QSize& size);
    int width = 0; // dots of its head, or of the page
};

class LabelPrinterTest : public testing::TestWithParam<LabelPrinter> {};

TEST_P(LabelPrinterTest, getsTheVeryDotsOnce) {
    PrintServer server;
    if (!server.isRunning()) {
        GTEST_SKIP() << "no print server can be started here";
    }
    server.addQueue(u"Etiquetas"_s, GetParam().driver);
    const LabelPage page = samplePage();
    JobPulse pulse;
    PrintJob({.name = u"Etiquetas"_s}, pulse, {page, page}).send();
    const QByteArray program = server.printed();
    EXPECT_EQ(PrintServer::jobs(u"Etiquetas"_s), 1);
    const QImage drawn = DotPages(203).draw(page, builtInPage());
    const QImage expected = drawn.copy(0, 0, GetParam().width, drawn.height());
    const QImage got = GetParam().dots(Program(program), expected.size());
    EXPECT_EQ(got, expected);
}

INSTANTIATE_TEST_SUITE_P(Drivers, LabelPrinterTest,
                         testing::Values(LabelPrinter{"epl", u"zebraep2"_s, eplDots, 812},
                                         LabelPrinter{"cpcl", u"zebracpl"_s, cpclDots, 809},
                                         LabelPrinter{"zpl", u"zebra"_s, zplDots, 1269}),
                         CaseName());

} // namespace etiquetas::test
