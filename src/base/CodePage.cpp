#include "base/CodePage.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr unsigned first_special = 0x80;

// Bytes 0x80 to 0x9F, from the mapping table that the Unicode Consortium publishes for code page
// 1252; 0x81, 0x8D, 0x8F, 0x90 and 0x9D are undefined there. All other bytes are Latin-1.
constexpr std::array<char16_t, 32> specials{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(char byte) {
    const unsigned code = static_cast<unsigned char>(byte);
    const unsigned special = code - first_special;
    return code >= first_special && special < specials.size() ? specials[special]
                                                              : static_cast<char16_t>(code);
}

char byteOf(char16_t character) {
    const bool latin1 = character < first_special ||
                        (character >= first_special + specials.size() && character <= 0xFF);
    if (latin1) {
        return static_cast<char>(static_cast<unsigned char>(character));
    }
    const auto* const found = std::find(specials.begin(), specials.end(), character);
    if (found == specials.end()) {
        return '?';
    }
    const auto index = static_cast<unsigned>(found - specials.begin());
    return static_cast<char>(static_cast<unsigned char>(first_special + index));
}

} // namespace

Text fromCodePage1252(std::string_view bytes) {
    Text text;
    appendCodePage1252(text, bytes);
    return text;
}

void appendCodePage1252(Text& text, std::string_view bytes) {
    const std::size_t before = text.size();
    text.resize(before + bytes.size());
    std::transform(bytes.begin(), bytes.end(), text.data() + before, characterOf);
}

std::string toCodePage1252(TextView text) {
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(), byteOf);
    return bytes;
}

} // namespace etiquetas
