#include "barcodes/Code39.h"

#include "barcodes/BarFailure.h"
#include "barcodes/Modules.h"

#include <array>

namespace etiquetas {

namespace {

// Characters in the order of their values, and their patterns: twelve modules each, a wide element
// being two. Source: ISO/IEC 16388, tables of the character set.
constexpr TextView characters = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*";
constexpr std::array<TextView, 44> patterns{
    u"101001101101", u"110100101011", u"101100101011", u"110110010101", u"101001101011",
    u"110100110101", u"101100110101", u"101001011011", u"110100101101", u"101100101101",
    u"110101001011", u"101101001011", u"110110100101", u"101011001011", u"110101100101",
    u"101101100101", u"101010011011", u"110101001101", u"101101001101", u"101011001101",
    u"110101010011", u"101101010011", u"110110101001", u"101011010011", u"110101101001",
    u"101101101001", u"101010110011", u"110101011001", u"101101011001", u"101011011001",
    u"110010101011", u"100110101011", u"110011010101", u"100101101011", u"110010110101",
    u"100110110101", u"100101011011", u"110010101101", u"100110101101", u"100100100101",
    u"100100101001", u"100101001001", u"101001001001", u"100101101101"};
constexpr std::size_t start_and_stop = 43; // value of "*"

Text cleaned(TextView text) {
    return upperCase(replaceAll(text, u"*", u""));
}

void checkText(TextView text) {
    if (text.find_first_not_of(characters) != TextView::npos) {
        throw barFailure(u"Bar 39", invalid_character);
    }
}

// The sum of the values, modulo the 43 characters beside "*".
std::size_t checkValue(TextView text) {
    constexpr std::size_t modulus = 43;
    std::size_t sum = 0;
    for (const char16_t character : text) {
        sum += characters.find(character);
    }
    return sum % modulus;
}

// A character, and the narrow gap after it.
Text modulesOf(std::size_t value) {
    return Text(patterns[value]).append(u"0");
}

// The characters between start and stop.
Text modulesOf(TextView text, bool with_check_character) {
    Text modules = modulesOf(start_and_stop);
    for (const char16_t character : text) {
        modules.append(modulesOf(characters.find(character)));
    }
    if (with_check_character) {
        modules.append(modulesOf(checkValue(text)));
    }
    return modules.append(modulesOf(start_and_stop));
}

constexpr std::size_t character_modules = 13; // gap included

// Blank rows above the bars and at the bottom, and those between the bars and a text under them.
constexpr int rows_above = 10;
constexpr int rows_below = 10;
constexpr int rows_before_text = 5;
// Two pixels more than the quiet zone of 10 modules that Code 39 asks for.
constexpr int first_module_x = 12;

// Twips. By the calibration of this system a character counts 12 pixels, one less than are drawn,
// with 20 for the edges, and a pixel 16 twips, one more than the raster has. The longer the symbol,
// the less is left blank after it; up to 54 characters stand whole.
double widthOf(std::size_t drawn_characters) {
    return (static_cast<double>(drawn_characters) * 12 + 20) * 16;
}

void setSize(PictureBox& pic, std::size_t drawn_characters, int rows) {
    pic.Height(PictureBox::twips_per_pixel * rows);
    pic.Width(widthOf(drawn_characters));
}

// Centred one pixel left of the middle of the bars, by the same calibration.
void printText(PictureBox& pic, TextView text, std::size_t module_count, int y) {
    const double middle = first_module_x + (static_cast<double>(module_count) - 3) / 2;
    printAt(pic, middle - pic.TextWidth(text) / 2.0, y, text);
}

} // namespace

void DesenhaCode39(PictureBox& pic, std::int16_t escala, Text& texto, bool com_digito,
                   bool mostra_texto) {
    pic.Picture({});
    texto = cleaned(texto);
    checkText(texto);
    const int bar_height = barHeight(escala);
    const int bars_end = rows_above + bar_height;
    const int text_y = bars_end + rows_before_text;
    const Text modules = modulesOf(texto, com_digito);
    beginSymbol(pic);
    const int last_end = mostra_texto ? text_y + pic.TextHeight(texto) : bars_end;
    setSize(pic, modules.size() / character_modules, last_end + rows_below);
    const auto draw_bars = [&] {
        pic.columns(first_module_x, rows_above, bar_height, pixelsOf(modules));
    };
    if (mostra_texto) {
        draw_bars();
        printText(pic, texto, modules.size(), text_y);
        pic.showDrawing();
    } else {
        showSymbol(pic, u"Code 39", escala, modules, draw_bars);
    }
}

} // namespace etiquetas
