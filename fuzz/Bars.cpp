// The bars of any text are read back by a decoder that shares nothing with the system.
//
// Input: a byte for the scale and whether the text shows; then the text.

#include "Machine.h"
#include "barcodes/Code39.h"
#include "barcodes/EAN13and8.h"
#include "orders/Complemento.h"

#include <ZXing/ReadBarcode.h>
#include <vector>

namespace etiquetas::fuzz {

namespace {

constexpr TextView code39_characters = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
constexpr TextView digits = u"0123456789";

// The longest text whose bars stand whole in their picture, start, stop and check digit aside.
constexpr std::size_t longest_code39 = 51;

bool isMadeOf(TextView text, TextView characters) {
    return text.find_first_not_of(characters) == TextView::npos;
}

// What a decoder reads from the last rows of the bars, with white at both sides, as a label has it.
std::string decoded(const Raster& raster, int end_of_bars, const ZXing::DecodeHints& hints) {
    constexpr int enlarged = 2;
    constexpr int margin = 12; // modules
    constexpr int rows = 8;
    const int width = (raster.width + 2 * margin) * enlarged;
    std::vector<std::uint8_t> grey(static_cast<std::size_t>(width) * rows, 0xFF);
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < raster.width * enlarged; ++x) {
            const int pixel = y * width + margin * enlarged + x;
            grey[static_cast<std::size_t>(pixel)] =
                static_cast<std::uint8_t>(raster.at(x / enlarged, end_of_bars - rows + y));
        }
    }
    const ZXing::ImageView view(grey.data(), width, rows, ZXing::ImageFormat::Lum);
    return ZXing::ReadBarcode(view, hints).text();
}

ZXing::DecodeHints hintsFor(ZXing::BarcodeFormat format) {
    return ZXing::DecodeHints()
        .setFormats(format)
        .setBinarizer(ZXing::Binarizer::FixedThreshold)
        .setTryRotate(false)
        .setTryDownscale(false);
}

bool isEmpty(const PictureBox& box) {
    const Picture drawn = box.Image();
    return box.Picture() == nullptr &&
           std::all_of(drawn->pixels.begin(), drawn->pixels.end(),
                       [](Pixel pixel) { return pixel == white_pixel; });
}

void checkEan(Machine& machine, std::int16_t scale, TextView text, bool shows_text) {
    PictureBox box(machine);
    if (!goesThrough([&] { DesenhaEan13(box, scale, text, shows_text); })) {
        require(text.size() != 12 || !isMadeOf(text, digits), "Twelve digits are drawn");
        require(isEmpty(box), "A refused text leaves the picture empty");
        return;
    }
    require(text.size() == 12 && isMadeOf(text, digits), "Nothing but twelve digits is drawn");
    requireEqual(decoded(*box.Picture(), 10 * scale, hintsFor(ZXing::BarcodeFormat::EAN13)),
                 toCodePage1252(Text(text).append(trimmed(DigitoEan(text)))),
                 "EAN-13 is read back");
}

void checkCode39(Machine& machine, std::int16_t scale, TextView text, bool shows_text) {
    Text cleaned = upperCase(replaceAll(text, u"*", u""));
    const bool has_check_digit = !shows_text;
    Text drawn(text);
    PictureBox box(machine);
    if (!goesThrough([&] { DesenhaCode39(box, scale, drawn, has_check_digit, shows_text); })) {
        require(!isMadeOf(cleaned, code39_characters), "What Code 39 holds is drawn");
        require(isEmpty(box), "A refused text leaves the picture empty");
        return;
    }
    require(isMadeOf(cleaned, code39_characters), "Nothing but what Code 39 holds is drawn");
    requireEqual(drawn, cleaned, "The text comes back as it is drawn");
    if (cleaned.size() < 2 || cleaned.size() > longest_code39) {
        return; // too short for the decoder, or cut off
    }
    const auto hints =
        hintsFor(ZXing::BarcodeFormat::Code39).setValidateCode39CheckSum(has_check_digit);
    constexpr int rows_above = 10;
    requireEqual(decoded(*box.Picture(), rows_above + 10 * scale, hints), toCodePage1252(cleaned),
                 "Code 39 is read back");
}

// Twelve digits out of any text, so that each input draws a symbol.
Text twelveDigits(TextView text) {
    Text made(12, u'0');
    for (std::size_t i = 0; i < std::min(made.size(), text.size()); ++i) {
        made[i] = digits[text[i] % digits.size()];
    }
    return made;
}

// Likewise a text of Code 39.
Text code39Text(TextView text) {
    Text made(text);
    for (char16_t& character : made) {
        character = code39_characters[character % code39_characters.size()];
    }
    return made;
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    using namespace etiquetas::fuzz;
    if (size == 0) {
        return 0;
    }
    constexpr int scales = 13;
    constexpr std::size_t longest_text = 60;
    Machine machine;
    const auto scale = static_cast<std::int16_t>(1 + data[0] % scales);
    const bool shows_text = data[0] / scales % 2 == 0;
    const Text text = fromCodePage1252(bytesOf(data + 1, size - 1).substr(0, longest_text));
    checkEan(machine, scale, text, shows_text);
    checkEan(machine, scale, twelveDigits(text), shows_text);
    checkCode39(machine, scale, text, shows_text);
    checkCode39(machine, scale, code39Text(text), shows_text);
    return 0;
}
