#include "orders/OrderFormat.h"

#include "base/Failure.h"

#include <algorithm>
#include <array>

namespace etiquetas {

namespace {

constexpr TextView key_separator = u" | ";

TextView partOf(const std::vector<TextView>& parts, std::size_t index) {
    return index < parts.size() ? trimmed(parts[index]) : TextView{};
}

} // namespace

TextView OrderLine::operator[](std::size_t field) const {
    if (field >= fields_.size()) {
        throw subscriptOutOfRange();
    }
    return fields_[field];
}

std::optional<Text> itemKey(const OrderLine& line, const ItemKeyFields& fields) {
    if (line.width() <= std::max({fields.code, fields.description, fields.colour})) {
        return std::nullopt;
    }
    Text key(left(line[fields.code], fields.code_length));
    key.append(key_separator).append(line[fields.description]);
    key.append(key_separator).append(line[fields.colour]);
    return key;
}

ItemKey::ItemKey(TextView key) {
    const auto parts = split(key, u'|');
    code = partOf(parts, 0);
    description = partOf(parts, 1);
    colour = partOf(parts, 2);
}

std::vector<TextView> linesOf(TextView file) {
    constexpr TextView line_ends = u"\r\n";
    std::vector<TextView> lines;
    while (!file.empty()) {
        const auto end = std::min(file.find_first_of(line_ends), file.size());
        lines.push_back(file.substr(0, end));
        const bool pair = file.substr(end, line_ends.size()) == line_ends;
        file.remove_prefix(std::min(end + (pair ? 2 : 1), file.size()));
    }
    return lines;
}

Text withReducedBlanks(TextView line) {
    constexpr std::array<TextView, 5> runs{u"     ", u"    ", u"   ", u"  ", u"  "};
    Text reduced(line);
    for (const TextView run : runs) {
        if (reduced.find(run) != Text::npos) {
            reduced = replaceAll(reduced, run, u" ");
        }
    }
    return reduced;
}

} // namespace etiquetas
