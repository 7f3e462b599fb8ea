#include "orders/OrderIndex.h"

#include "base/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace etiquetas {

namespace {

constexpr char separator = ';';

LineIndex::Hash mixed(LineIndex::Hash hash, std::uint64_t word) {
    constexpr std::uint64_t golden_ratio = 0x9E37'79B9'7F4A'7C15; // its fraction, as 64 bits
    hash = (hash ^ word) * golden_ratio;
    return hash ^ (hash >> 32);
}

// Eight bytes at a time.
LineIndex::Hash mixed(LineIndex::Hash hash, std::string_view bytes) {
    hash = mixed(hash, bytes.size());
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t count = std::min(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), count);
        hash = mixed(hash, word);
        bytes.remove_prefix(count);
    }
    return hash;
}

LineIndex::Hash hashOf(std::string_view code, std::string_view description,
                       std::string_view colour) {
    return mixed(mixed(mixed(0, code), description), colour);
}

std::string_view codeOf(const OrderBytes& line, const ItemKeyFields& key) {
    return line[key.code].substr(0, key.code_length);
}

LineIndex::Hash hashOf(const OrderBytes& line, const ItemKeyFields& key, std::string_view code) {
    return hashOf(code, trimmed(line[key.description]), trimmed(line[key.colour]));
}

} // namespace

OrderBytes::OrderBytes(std::string_view line) {
    std::size_t start = 0;
    while (count_ < fields_.size()) {
        const auto end = line.find(separator, start);
        fields_[count_++] = line.substr(start, end - start);
        if (end == std::string_view::npos) {
            return;
        }
        start = end + 1;
    }
    rest_ = line.substr(start);
    rest_is_field_ = true;
}

std::size_t OrderBytes::width() const {
    const auto separators = std::count(rest_.begin(), rest_.end(), separator);
    return count_ + (rest_is_field_ ? static_cast<std::size_t>(separators) + 1 : 0);
}

bool hasKey(const OrderBytes& line, const ItemKeyFields& key) {
    return line.has(std::max({key.code, key.description, key.colour}));
}

Text itemKey(const OrderBytes& line, const ItemKeyFields& key) {
    constexpr std::string_view between = " | ";
    const std::string_view code = codeOf(line, key);
    Text text;
    text.reserve(code.size() + line[key.description].size() + line[key.colour].size() +
                 2 * between.size());
    for (const std::string_view part :
         {code, between, line[key.description], between, line[key.colour]}) {
        appendCodePage1252(text, part);
    }
    return text;
}

bool sameKey(const OrderBytes& one, const OrderBytes& other, const ItemKeyFields& key) {
    return codeOf(one, key) == codeOf(other, key) &&
           one[key.description] == other[key.description] && one[key.colour] == other[key.colour];
}

LineIndex::Hash keyHash(const OrderBytes& line, const ItemKeyFields& key) {
    return hashOf(codeOf(line, key), line[key.description], line[key.colour]);
}

LineIndex::Hash itemHash(TextView code, TextView description, TextView colour) {
    return hashOf(toCodePage1252(code), toCodePage1252(description), toCodePage1252(colour));
}

LineIndex::Line indexByItem(LineIndex& index, LineIndex::Line number, const OrderBytes& line,
                            const ItemKeyFields& key) {
    if (!hasKey(line, key)) {
        index.add(short_lines, number);
        return LineIndex::none;
    }
    return index.add(hashOf(line, key, trimmed(codeOf(line, key))), number);
}

void indexByCode(LineIndex& index, LineIndex::Line number, const OrderBytes& line,
                 const ItemKeyFields& key, std::string_view code) {
    if (code != trimmed(codeOf(line, key))) {
        index.add(hashOf(line, key, code), number);
    }
}

} // namespace etiquetas
