#include "barcodes/EAN13and8.h"

#include "barcodes/BarFailure.h"
#include "base/Numbers.h"

#include <array>
#include <cstddef>

namespace etiquetas {

namespace {

using Elements = std::array<TextView, 10>;

// Element tables and left-half parities ("O" takes table L, "E" table G) of the EAN-13 symbology,
// by digit; "1" is a dark module. Source: GS1 General Specifications, section on EAN/UPC symbols.
constexpr Elements table_l{u"0001101", u"0011001", u"0010011", u"0111101", u"0100011",
                           u"0110001", u"0101111", u"0111011", u"0110111", u"0001011"};
constexpr Elements table_g{u"0100111", u"0110011", u"0011011", u"0100001", u"0011101",
                           u"0111001", u"0000101", u"0010001", u"0001001", u"0010111"};
constexpr Elements table_r{u"1110010", u"1100110", u"1101100", u"1000010", u"1011100",
                           u"1001110", u"1010000", u"1000100", u"1001000", u"1110100"};
constexpr Elements parities{u"OOOOOO", u"OOEOEE", u"OOEEOE", u"OOEEEO", u"OEOOEE",
                            u"OEEOOE", u"OEEEOO", u"OEOEOE", u"OEOEEO", u"OEEOEO"};
constexpr TextView outer_guard = u"101";
constexpr TextView centre_guard = u"01010";

constexpr std::size_t digit_count = 12;
constexpr std::size_t first_right_digit = 8;
constexpr int quiet_pixels = 10;
constexpr int guard_pixels = 5;

void checkText(TextView texto) {
    if (texto.size() != digit_count) {
        throw barFailure(u"EAN-13", u"Should be 12 Digit Numbers");
    }
    if (texto.find_first_not_of(u"0123456789") != TextView::npos) {
        throw barFailure(u"EAN-13", invalid_character);
    }
}

// Draws the symbol from left to right; the pen moves on by one pixel with each module.
class Symbol {
  public:
    Symbol(PictureBox& pic, TextView texto, int bar_height)
        : pic_(pic), texto_(texto), bar_height_(bar_height) {}

    void draw() {
        guard(outer_guard);
        pic_.CurrentY(bar_height_ + 15);
        for (std::size_t i = 1; i <= digit_count; ++i) {
            weigh(i);
            if (i == first_right_digit) {
                guard(centre_guard);
            }
            if (i > 1) {
                plain(elementOf(i));
            }
        }
        plain(table_r[check_digit()]);
        guard(outer_guard);
    }

    void printText() {
        constexpr int left_half_x = 23;
        constexpr int right_half_x = 68;
        printAt(left_half_x, Text(mid(texto_, 2, 6)));
        printAt(right_half_x,
                Text(mid(texto_, 8, 5)) + numberText(static_cast<std::int32_t>(check_digit())));
    }

  private:
    [[nodiscard]] std::size_t digit(std::size_t i) const {
        return static_cast<std::size_t>(texto_[i - 1] - u'0');
    }

    void weigh(std::size_t i) { weighted_sum_ += (13 - i) % 2 == 0 ? digit(i) : 3 * digit(i); }

    [[nodiscard]] std::size_t check_digit() const { return (10 - weighted_sum_ % 10) % 10; }

    // The first digit has no bars of its own; its parities carry it.
    [[nodiscard]] TextView elementOf(std::size_t i) const {
        if (i >= first_right_digit) {
            return table_r[digit(i)];
        }
        const bool even = parities[digit(1)][i - 2] == u'E';
        return even ? table_g[digit(i)] : table_l[digit(i)];
    }

    void guard(TextView modules) { modulesDown(modules, bar_height_ + guard_pixels); }
    void plain(TextView modules) { modulesDown(modules, bar_height_); }

    void modulesDown(TextView modules, int bottom) {
        for (const char16_t module : modules) {
            ++cursor_;
            const int x = cursor_ + quiet_pixels;
            pic_.Line(x, 0, x, bottom, module == u'1' ? black_pixel : white_pixel);
        }
    }

    void printAt(int x, const Text& text) {
        pic_.CurrentX(x);
        pic_.CurrentY(bar_height_ + 10);
        pic_.Print(text);
    }

    PictureBox& pic_;
    TextView texto_;
    int bar_height_;
    int cursor_ = 0;
    std::size_t weighted_sum_ = 0;
};

// 27 pixels high at scale 1, and about 141 wide.
void setSize(PictureBox& pic, int bar_height, std::size_t characters) {
    pic.Height(PictureBox::twips_per_pixel * (bar_height + 20) * 0.9);
    pic.Width(static_cast<double>(characters) * 8 * 20 * 1.1);
}

} // namespace

void DesenhaEan13(PictureBox& pic, std::int16_t escala, TextView texto, bool mostra_texto) {
    pic.Picture({});
    pic.Width(5655);
    pic.Height(2340);
    checkText(texto);
    const int bar_height = toInteger16(std::int32_t{escala} * 10);
    pic.BackColor(white_pixel);
    pic.AutoRedraw(true);
    pic.ScaleMode(ScaleMode::pixels);
    setSize(pic, bar_height, texto.size());
    Symbol symbol(pic, texto, bar_height);
    symbol.draw();
    if (mostra_texto) {
        symbol.printText();
    }
    pic.Picture(pic.Image());
}

} // namespace etiquetas
