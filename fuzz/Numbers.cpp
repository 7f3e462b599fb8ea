// What is a number and which one, against another reading of the same rules.
//
// Input: the text, once as code page 1252 and once as UTF-16.

#include "base/Numbers.h"

#include "Check.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <optional>
#include <regex>

namespace etiquetas::fuzz {

namespace {

// The longest text that the reading by regular expressions, which recurses, is asked about.
constexpr std::size_t longest_text = 200;

// Characters beyond code page 1252 have no part in a number: all of them stand for one that has
// none. The no-break space becomes a plain blank.
std::string narrowed(TextView text) {
    std::string bytes;
    for (const char16_t character : text) {
        bytes += character == u'\u00A0' ? ' '
                 : character < 0x80     ? static_cast<char>(character)
                                        : '?';
    }
    return bytes;
}

std::string withoutPoints(std::string text) {
    std::erase(text, '.');
    std::replace(text.begin(), text.end(), ',', '.');
    std::replace_if(
        text.begin(), text.end(), [](char mark) { return std::strchr("DdE", mark) != nullptr; },
        'e');
    return text;
}

// A number as the C library reads it.
struct Reading {
    std::string plain; // of a decimal number, for the C library
    bool negative = false;
    bool bits = false;
    unsigned long long bit_value = 0;
};

const std::string blanks = R"([ \t\r\n\v\f]*)";

std::optional<Reading> bitReading(const std::string& text) {
    static const std::regex pattern(blanks + "&(?:[Hh]([0-9A-Fa-f]+)|[Oo]([0-7]+))" + blanks);
    std::smatch match;
    if (!std::regex_match(text, match, pattern)) {
        return std::nullopt;
    }
    const bool hexadecimal = match[1].matched;
    return Reading{.bits = true,
                   .bit_value = std::strtoull(match[hexadecimal ? 1 : 2].str().c_str(), nullptr,
                                              hexadecimal ? 16 : 8)};
}

std::optional<Reading> readingOf(TextView text) {
    const std::string bytes = narrowed(text);
    if (auto bits = bitReading(bytes)) {
        return bits;
    }
    // The sign or currency that may stand twice in front and twice behind, each once in all.
    static const std::string mark = R"((?:([-+]|R\$))" + blanks + ")?";
    static const std::regex pattern(
        blanks + R"((\()?)" + blanks + mark + mark +
        "((?:,[0-9][0-9.]*|[0-9][0-9.]*(?:,[0-9.]*)?)(?:[EeDd][-+]?[0-9]+)?)" + blanks + mark +
        mark + R"((\))?)" + blanks);
    std::smatch match;
    if (!std::regex_match(bytes, match, pattern) || match[1].matched != match[7].matched) {
        return std::nullopt;
    }
    int signs = match[1].matched ? 1 : 0;
    int currencies = 0;
    bool negative = match[1].matched;
    for (const std::size_t place : {2U, 3U, 5U, 6U}) {
        const std::string found = match[place].str();
        signs += found == "-" || found == "+" ? 1 : 0;
        currencies += found == "R$" ? 1 : 0;
        negative = negative || found == "-";
    }
    if (signs > 1 || currencies > 1) {
        return std::nullopt;
    }
    return Reading{.plain = withoutPoints(match[4].str()), .negative = negative};
}

void checkSingle(TextView text, const Reading& reading) {
    const float expected = reading.bits ? static_cast<float>(reading.bit_value)
                                        : std::strtof(reading.plain.c_str(), nullptr);
    float value = 0;
    if (!goesThrough([&] { value = toSingle(text); })) {
        require(std::isinf(expected), "Only what is beyond a float overflows");
        return;
    }
    require(std::abs(value) == expected, "A float is read correctly rounded");
    require(value == 0 || (value < 0) == reading.negative, "A float has its sign");
}

void checkInteger(TextView text, const Reading& reading) {
    std::int16_t value = 0;
    const bool fits = goesThrough([&] { value = toInteger16(text); });
    if (reading.bits) {
        require(fits == (reading.bit_value <= 0xFFFF), "16 bits are as many as fit");
        require(!fits || value == static_cast<std::int16_t>(reading.bit_value), "Bits are read");
        return;
    }
    const double magnitude = std::strtod(reading.plain.c_str(), nullptr);
    const double exact = reading.negative ? -magnitude : magnitude;
    constexpr double lowest = -32768.5;
    constexpr double beyond = 32767.5;
    if (exact == lowest || exact == beyond) {
        return; // the digits beyond a double decide
    }
    require(fits == (exact > lowest && exact < beyond), "What fits 16 bits is read");
    if (fits) {
        const double distance = std::abs(exact - value);
        require(distance <= 0.5, "The nearest whole number is taken");
        const bool is_short = reading.plain.size() < std::numeric_limits<double>::digits10;
        require(distance < 0.5 || !is_short || value % 2 == 0, "A half goes to the even neighbour");
    }
}

void checkText(TextView text) {
    if (text.size() > longest_text) {
        static_cast<void>(isNumeric(text));
        return;
    }
    const auto reading = readingOf(text);
    require(isNumeric(text) == reading.has_value(), "What is a number");
    if (reading) {
        checkSingle(text, *reading);
        checkInteger(text, *reading);
    } else {
        require(!goesThrough([&] { static_cast<void>(toSingle(text)); }), "A float needs a number");
        require(!goesThrough([&] { static_cast<void>(toInteger16(text)); }), "So do 16 bits");
    }
}

// A number that is printed is read back, and printed as the C library does.
void checkPrinting(std::int32_t value) {
    requireEqual(toCodePage1252(numberText(value)), std::to_string(value), "Plain digits");
    requireEqual(signedNumberText(value), (value < 0 ? u"" : u" ") + numberText(value), "Sign");
    std::array<char, 16> printed{};
    std::snprintf(printed.data(), printed.size(), value < 0 ? "%05d" : "%04d", value);
    requireEqual(toCodePage1252(formatted(value, u"#0000")), printed.data(), "Zeros in front");
    const bool fits = value == static_cast<std::int16_t>(value);
    require(goesThrough([&] { require(toInteger16(value) == value, "16 bits stay"); }) == fits,
            "16 bits are all that fit");
    require(!fits || toInteger16(signedNumberText(value)) == value, "Digits are read back");
}

Text utf16Of(std::string_view bytes) {
    Text text(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    return text;
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas;
    using namespace etiquetas::fuzz;
    const std::string_view bytes = bytesOf(data, size);
    checkText(fromCodePage1252(bytes));
    checkText(utf16Of(bytes));
    std::int32_t value = 0;
    std::memcpy(&value, bytes.data(), std::min(bytes.size(), sizeof value));
    checkPrinting(value);
    return 0;
}
