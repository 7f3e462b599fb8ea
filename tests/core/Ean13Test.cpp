#include "barcodes/EAN13and8.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

constexpr std::size_t module_count = 95;

// Widths of the four elements of a digit, from light to dark, in the left half.
constexpr std::array<std::string_view, 10> widths{"3211", "2221", "2122", "1411", "1132",
                                                  "1231", "1114", "1312", "1213", "3112"};
// By first digit: the digits of the left half that are mirrored, the leftmost as the highest bit.
constexpr std::array<unsigned, 10> mirrored{0x00, 0x0B, 0x0D, 0x0E, 0x13,
                                            0x19, 0x1C, 0x15, 0x16, 0x1A};

static std::size_t digitAt(TextView code, std::size_t at) {
    return static_cast<std::size_t>(code[at] - u'0');
}

static char16_t checkDigit(TextView code) {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < 12; ++i) {
        sum += digitAt(code, i) * (i % 2 == 0 ? 1 : 3);
    }
    return static_cast<char16_t>(u'0' + (1000 - sum) % 10);
}

static void addElements(std::string& modules, std::string elements, bool dark) {
    for (const char width : elements) {
        modules.append(static_cast<std::size_t>(width - '0'), dark ? '1' : '0');
        dark = !dark;
    }
}

static std::string modulesOf(TextView code) {
    const Text full = Text(code) + checkDigit(code);
    std::string modules = "101";
    for (std::size_t i = 1; i < full.size(); ++i) {
        std::string elements(widths[digitAt(full, i)]);
        if (i == 7) {
            modules += "01010";
        }
        if (i < 7 && (mirrored[digitAt(full, 0)] >> (6 - i) & 1U) != 0) {
            std::reverse(elements.begin(), elements.end());
        }
        addElements(modules, elements, i > 6);
    }
    return modules + "101";
}

static Raster symbolOf(TextView code, int width, int height, int bar) {
    Raster raster{width, height,
                  std::vector<Pixel>(static_cast<std::size_t>(width * height), white_pixel)};
    const std::string modules = modulesOf(code);
    for (std::size_t i = 0; i < module_count; ++i) {
        const bool guard = i < 3 || (i >= 45 && i < 50) || i >= 92;
        for (int y = 0; modules[i] == '1' && y < bar + (guard ? 5 : 0); ++y) {
            raster.pixels[static_cast<std::size_t>(y * width + 11) + i] = black_pixel;
        }
    }
    return raster;
}

class Ean13Test : public testing::Test, protected FakePlatform {
  protected:
    PictureBox box{pictures};
};

TEST_F(Ean13Test, PixelsOfAllFirstDigits) {
    const Text digits = u"01234567890123456789";
    for (std::size_t first = 0; first < 10; ++first) {
        for (std::size_t turn = 0; turn < 10; ++turn) {
            const Text code = digits.substr(first, 1) + digits.substr(turn, 7) +
                              digits.substr((turn * 3 + first) % 10, 4);
            SCOPED_TRACE(utf8(code));
            DesenhaEan13(box, 1, code, false);
            const Raster expected = symbolOf(code, 141, 27, 10);
            EXPECT_EQ(box.Picture()->width, 141);
            EXPECT_EQ(box.Picture()->height, 27);
            EXPECT_TRUE(box.Picture()->pixels == expected.pixels);
        }
    }
    EXPECT_EQ(log, Log()); // no digits under the bars
}

TEST_F(Ean13Test, ScaleIsTheHeight) {
    DesenhaEan13(box, 2, u"204455667788", false);
    EXPECT_EQ(box.Picture()->height, 36);
    EXPECT_TRUE(box.Picture()->pixels == symbolOf(u"204455667788", 141, 36, 20).pixels);
    EXPECT_EQ(failureOf([&] { DesenhaEan13(box, 3276, u"204455667788", false); }), 0);
    EXPECT_EQ(failureOf([&] { DesenhaEan13(box, 3277, u"204455667788", false); }),
              failure_number::overflow);
    EXPECT_EQ(box.Picture(), nullptr);
}

TEST_F(Ean13Test, DigitsUnderTheBars) {
    DesenhaEan13(box, 2, u"204455667788", true);
    EXPECT_EQ(log, (Log{"letters 044556", "letters 677888"}));
    Raster expected = symbolOf(u"204455667788", 141, 36, 20);
    for (int y = 30; y < 36; ++y) {
        for (const int left : {23, 68}) {
            std::fill_n(expected.pixels.begin() + y * 141 + left, 36, black_pixel);
        }
    }
    EXPECT_TRUE(box.Picture()->pixels == expected.pixels);
}

TEST_F(Ean13Test, PictureKeepsOnlyWhatItIsToldTo) {
    box.Width(150);
    box.Height(150);
    box.Line(0, 0, 5, 0, black_pixel);
    EXPECT_EQ(box.Image()->at(0, 0), white_pixel);
    box.AutoRedraw(true);
    box.Line(8, 2, 20, 2, black_pixel); // runs over the edge
    const Picture drawn = box.Image();
    EXPECT_EQ(std::count(drawn->pixels.begin(), drawn->pixels.end(), black_pixel), 2);
    EXPECT_EQ(failureOf([&] { box.Line(0, 0, 3, 3, black_pixel); }), failure_number::invalid_call);
    EXPECT_EQ(failureOf([&] { box.ScaleMode(ScaleMode::millimetres); }),
              failure_number::invalid_call);
}

TEST_F(Ean13Test, Refusals) {
    using Case = std::tuple<TextView, TextView>;
    for (const auto& [text, description] :
         {Case{u"20445566778", u"Should be 12 Digit Numbers"},
          {u"2044556677888", u"Should be 12 Digit Numbers"},
          {u"", u"Should be 12 Digit Numbers"},
          {u"2044A5667788", u"An Invalid Character Found in Bar Text"},
          {u"20445566778 ", u"An Invalid Character Found in Bar Text"}}) {
        SCOPED_TRACE(utf8(text));
        DesenhaEan13(box, 1, u"204455667788", false);
        try {
            DesenhaEan13(box, 1, text, false);
            ADD_FAILURE() << "not refused";
        } catch (const Failure& failure) {
            EXPECT_EQ(static_cast<std::uint32_t>(failure.number()), 0x80040201U);
            EXPECT_EQ(failure.source(), u"EAN-13");
            EXPECT_EQ(failure.description(), description);
        }
        EXPECT_EQ(box.Picture(), nullptr);
        const Picture left = box.Image();
        EXPECT_EQ(left->width, 377);
        EXPECT_EQ(left->height, 156);
        EXPECT_EQ(std::count(left->pixels.begin(), left->pixels.end(), black_pixel), 0);
    }
}

} // namespace etiquetas::test
