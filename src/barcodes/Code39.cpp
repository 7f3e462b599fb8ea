#include "barcodes/Code39.h"

#include "barcodes/BarFailure.h"
#include "base/Numbers.h"

#include <array>

namespace etiquetas {

namespace {

// Characters in the order of their values, and their patterns: twelve modules each, a wide element
// being two, "1" dark. Source: ISO/IEC 16388, tables of the character set.
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
constexpr std::size_t check_modulus = 43;

constexpr int bar_top = 10;
constexpr int quiet_pixels = 10;

Text cleaned(TextView text) {
    return upperCase(replaceAll(text, u"*", u""));
}

void checkText(TextView text) {
    if (text.find_first_not_of(characters) != TextView::npos) {
        throw barFailure(u"Bar 39", invalid_character);
    }
}

// Draws the symbol from left to right; the pen moves on by one pixel with each module.
class Symbol {
  public:
    Symbol(PictureBox& pic, int bar_height) : pic_(pic), bar_height_(bar_height) {}

    void draw(TextView texto, bool com_digito) {
        std::size_t sum = 0;
        drawCharacter(start_and_stop);
        for (const char16_t character : texto) {
            const std::size_t value = characters.find(character);
            sum += value;
            drawCharacter(value);
        }
        if (com_digito) {
            drawCharacter(sum % check_modulus);
        }
        drawCharacter(start_and_stop);
    }

    // Under the middle of the bars.
    void printText(TextView texto) {
        pic_.CurrentX((cursor_ + 2 * quiet_pixels) / 2.0 - pic_.TextWidth(texto) / 2.0);
        pic_.CurrentY(bar_height_ + 15);
        pic_.Print(texto);
    }

  private:
    // Twelve modules, and the gap behind them.
    void drawCharacter(std::size_t value) {
        for (const char16_t module : patterns[value]) {
            drawModule(module == u'1' ? black_pixel : white_pixel);
        }
        drawModule(white_pixel);
    }

    void drawModule(Pixel colour) {
        ++cursor_;
        const int x = cursor_ + quiet_pixels;
        pic_.Line(x, bar_top, x, bar_top + bar_height_, colour);
    }

    PictureBox& pic_;
    int bar_height_;
    int cursor_ = 1;
};

void setSize(PictureBox& pic, int bar_height, std::size_t drawn_characters, double text_height) {
    constexpr double pixels_per_character = 12; // one less than are drawn
    pic.Height(PictureBox::twips_per_pixel * (bar_height + text_height));
    pic.Width((static_cast<double>(drawn_characters) * pixels_per_character + 20) * 16);
}

} // namespace

void DesenhaCode39(PictureBox& pic, std::int16_t escala, Text& texto, bool com_digito,
                   bool mostra_texto) {
    pic.Picture({});
    texto = cleaned(texto);
    checkText(texto);
    const int bar_height = toInteger16(std::int32_t{escala} * 10);
    pic.BackColor(white_pixel);
    pic.AutoRedraw(true);
    pic.ScaleMode(ScaleMode::pixels);
    const std::size_t beside_text = com_digito ? 3 : 2;
    setSize(pic, bar_height, texto.size() + beside_text,
            mostra_texto ? pic.TextHeight(texto) + 25.0 : 20.0);
    Symbol symbol(pic, bar_height);
    symbol.draw(texto, com_digito);
    if (mostra_texto) {
        symbol.printText(texto);
    }
    pic.Picture(pic.Image());
}

} // namespace etiquetas
