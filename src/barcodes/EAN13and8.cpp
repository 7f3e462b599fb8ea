#include "barcodes/EAN13and8.h"

#include "barcodes/BarFailure.h"
#include "barcodes/Modules.h"
#include "base/Numbers.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace etiquetas {

namespace {

using ByDigit = std::array<TextView, 10>;

// The modules of a digit in the three sets of EAN-13, and, by the first digit, the sets that the
// other six of the left half take: "O" set L, "E" set G. Source: GS1 General Specifications,
// section on EAN/UPC symbols.
constexpr ByDigit set_l{u"0001101", u"0011001", u"0010011", u"0111101", u"0100011",
                        u"0110001", u"0101111", u"0111011", u"0110111", u"0001011"};
constexpr ByDigit set_g{u"0100111", u"0110011", u"0011011", u"0100001", u"0011101",
                        u"0111001", u"0000101", u"0010001", u"0001001", u"0010111"};
constexpr ByDigit set_r{u"1110010", u"1100110", u"1101100", u"1000010", u"1011100",
                        u"1001110", u"1010000", u"1000100", u"1001000", u"1110100"};
constexpr ByDigit parities{u"OOOOOO", u"OOEOEE", u"OOEEOE", u"OOEEEO", u"OEOOEE",
                           u"OEEOOE", u"OEEEOO", u"OEOEOE", u"OEOEEO", u"OEEOEO"};
constexpr TextView outer_guard = u"101";
constexpr TextView centre_guard = u"01010";

constexpr std::size_t digit_count = 12; // without the check digit
constexpr std::size_t last_left_digit = 7;

void checkText(TextView texto) {
    if (texto.size() != digit_count) {
        throw barFailure(u"EAN-13", u"Should be 12 Digit Numbers");
    }
    if (texto.find_first_not_of(u"0123456789") != TextView::npos) {
        throw barFailure(u"EAN-13", invalid_character);
    }
}

// The digit at a position, the first one being 1.
std::size_t digitAt(TextView digits, std::size_t position) {
    return static_cast<std::size_t>(digits[position - 1] - u'0');
}

// Fills the sum, in which every second digit weighs three, up to a multiple of ten.
std::size_t checkDigit(TextView digits) {
    std::size_t sum = 0;
    for (std::size_t i = 1; i <= digit_count; ++i) {
        const std::size_t weight = i % 2 == 0 ? 3 : 1;
        sum += weight * digitAt(digits, i);
    }
    return (10 - sum % 10) % 10;
}

// The 95 modules of a symbol: a guard, six digits, the centre guard, six digits, a guard. The first
// of the twelve digits has no modules of its own: the sets of the left half tell it.
Text modulesOf(TextView digits) {
    const TextView sets = parities[digitAt(digits, 1)];
    constexpr std::size_t module_count = 95;
    Text modules;
    modules.reserve(module_count);
    modules.append(outer_guard);
    for (std::size_t i = 2; i <= last_left_digit; ++i) {
        const bool even = sets[i - 2] == u'E';
        modules.append((even ? set_g : set_l)[digitAt(digits, i)]);
    }
    modules.append(centre_guard);
    for (std::size_t i = last_left_digit + 1; i <= digit_count; ++i) {
        modules.append(set_r[digitAt(digits, i)]);
    }
    return modules.append(set_r[checkDigit(digits)]).append(outer_guard);
}

// A guard among the modules of a symbol, the first one being 0.
struct Guard {
    std::size_t first;
    std::size_t count;
};
constexpr std::array<Guard, 3> guards{{{0, 3}, {45, 5}, {92, 3}}};

// A quiet zone of 11 modules, as EAN-13 asks for on the left.
constexpr int first_module_x = 11;

void drawBars(PictureBox& pic, TextView digits, int bar_height) {
    constexpr int longer_guard = 5; // as many pixels as the standard has modules
    const std::vector<Pixel> pixels = pixelsOf(modulesOf(digits));
    pic.columns(first_module_x, 0, bar_height, pixels);
    for (const Guard& guard : guards) {
        pic.columns(first_module_x + static_cast<int>(guard.first), bar_height, longer_guard,
                    std::span(pixels).subspan(guard.first, guard.count));
    }
}

// Either half below its bars, the first digit left out. The places are this system's calibration.
void printDigits(PictureBox& pic, TextView digits, int bar_height) {
    constexpr int left_half_x = 23;
    constexpr int right_half_x = 68;
    const int y = bar_height + 10;
    printAt(pic, left_half_x, y, mid(digits, 2, 6));
    printAt(pic, right_half_x, y,
            Text(mid(digits, 8, 5)) + numberText(static_cast<std::int32_t>(checkDigit(digits))));
}

// What a refused text leaves: 377 by 156 pixels.
void setEmptySize(PictureBox& pic) {
    pic.Width(5655);
    pic.Height(2340);
}

// 141 pixels wide, and nine tenths of 20 pixels more than the bars high, so 27 at scale 1: the size
// that the label layouts, which stretch the picture to their boxes, were calibrated with.
void setSymbolSize(PictureBox& pic, int bar_height) {
    constexpr double twips_per_digit = 8 * 20 * 1.1;
    pic.Height(PictureBox::twips_per_pixel * (bar_height + 20) * 0.9);
    pic.Width(digit_count * twips_per_digit);
}

} // namespace

void DesenhaEan13(PictureBox& pic, std::int16_t escala, TextView texto, bool mostra_texto) {
    pic.Picture({});
    setEmptySize(pic);
    checkText(texto);
    const int bar_height = barHeight(escala);
    beginSymbol(pic);
    setSymbolSize(pic, bar_height);
    if (mostra_texto) {
        drawBars(pic, texto, bar_height);
        printDigits(pic, texto, bar_height);
        pic.showDrawing();
    } else {
        showSymbol(pic, u"EAN-13", escala, texto, [&] { drawBars(pic, texto, bar_height); });
    }
}

} // namespace etiquetas
