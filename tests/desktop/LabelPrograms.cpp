#include "tests/desktop/LabelPrograms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <cups/raster.h>
#include <memory>
#include <utility>

namespace etiquetas::test {

namespace {

// Takes a program of a printer to pieces.
class Program {
  public:
    explicit Program(QByteArray text) : text_(std::move(text)) {}

    // Goes behind the next such word; false where there is none.
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

QImage paper(int width, int height) {
    QImage dots(width, height, QImage::Format_Mono);
    dots.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    dots.fill(1);
    return dots;
}

} // namespace

// EPL2: rows of bytes, a bit being paper, each with its place; blank ones are left out.
QImage eplDots(const QByteArray& text, const QSize& size) {
    Program program(text);
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

// EPL1: all rows from the top, each behind the number of its bytes in three digits; a bit is ink.
QImage epl1Dots(const QByteArray& text, const QSize& size) {
    QImage dots = paper(size.width(), size.height());
    qsizetype at = text.indexOf("\x1Bg");
    for (int y = 0; y < size.height() && text.mid(at, 2) == "\x1Bg"; ++y) {
        const int bytes = text.mid(at + 2, 3).toInt();
        for (int i = 0; i < bytes; ++i) {
            dots.scanLine(y)[i] = static_cast<uchar>(~text[at + 5 + i]);
        }
        at += 5 + bytes;
    }
    return dots;
}

// CPCL: as EPL2, a bit being ink.
QImage cpclDots(const QByteArray& text, const QSize& size) {
    Program program(text);
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
QImage zplDots(const QByteArray& text, const QSize& size) {
    Program program(text);
    QImage dots = paper(size.width(), size.height());
    EXPECT_TRUE(program.find("~DGR:CUPS.GRF,"));
    const int all_bytes = program.number();
    const int bytes = program.number();
    const int digits = bytes * 2;
    for (int y = 0; y < std::min(all_bytes / bytes, size.height()); ++y) {
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

static ssize_t takeFrom(void* job, unsigned char* bytes, std::size_t count) {
    auto& rest = *static_cast<QByteArray*>(job);
    const auto taken = std::min(static_cast<std::size_t>(rest.size()), count);
    std::memcpy(bytes, rest.constData(), taken);
    rest.remove(0, static_cast<qsizetype>(taken));
    return static_cast<ssize_t>(taken);
}

// A row of bits, of which one is ink, or of bytes, of which 0 is ink.
static bool isInk(const std::vector<uchar>& row, const cups_page_header2_t& page, int x) {
    const auto at = static_cast<std::size_t>(x);
    return page.cupsBitsPerPixel == 1 ? (row.at(at / 8) >> (7 - at % 8) & 1) != 0 : row.at(at) == 0;
}

std::vector<QImage> rasterPages(QByteArray job, const QSize& size) {
    const std::unique_ptr<cups_raster_t, decltype(&cupsRasterClose)> raster(
        cupsRasterOpenIO(takeFrom, &job, CUPS_RASTER_READ), cupsRasterClose);
    std::vector<QImage> pages;
    for (cups_page_header2_t page{}; cupsRasterReadHeader2(raster.get(), &page) != 0;) {
        const QSize got(static_cast<int>(page.cupsWidth), static_cast<int>(page.cupsHeight));
        if (got != got.boundedTo(size)) {
            ADD_FAILURE() << "a page of " << got.width() << " by " << got.height() << " dots";
            break;
        }
        QImage& dots = pages.emplace_back(paper(size.width(), size.height()));
        std::vector<uchar> row(page.cupsBytesPerLine);
        for (int y = 0; y < got.height(); ++y) {
            EXPECT_EQ(cupsRasterReadPixels(raster.get(), row.data(), page.cupsBytesPerLine),
                      page.cupsBytesPerLine);
            for (int x = 0; x < got.width(); ++x) {
                dots.setPixel(x, y, isInk(row, page, x) ? 0 : 1);
            }
        }
    }
    return pages;
}

} // namespace etiquetas::test
