// A value set in any file is read back, and nothing else in the file changes.
//
// Input: section, key and value, a line each, then the file. A vertical tab in the value stands for
// a line feed.

#include "config/Profile.h"

#include "Check.h"

#include <algorithm>
#include <map>
#include <vector>

namespace etiquetas::fuzz {

namespace {

using Bytes = std::string_view;

constexpr Bytes byte_order_mark = "\xEF\xBB\xBF";

Bytes trimmedBytes(Bytes text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) {
        text.remove_prefix(1);
    }
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) {
        text.remove_suffix(1);
    }
    return text;
}

bool holdsAnyOf(Bytes text, Bytes characters) {
    return text.find_first_of(characters) != Bytes::npos;
}

bool canBeSection(Bytes name) {
    return trimmedBytes(name) == name && !holdsAnyOf(name, "]\r\n");
}

bool canBeKey(Bytes name) {
    return trimmedBytes(name) == name && !holdsAnyOf(name, "=\r\n") &&
           (name.empty() || !holdsAnyOf(name.substr(0, 1), ";["));
}

// A value as it comes back from the file.
std::string asReadBack(Bytes value) {
    std::string kept(value);
    std::erase_if(kept, [](char character) { return character == '\r' || character == '\n'; });
    const Bytes text = trimmedBytes(kept);
    const bool in_quotes =
        text.size() > 1 && text.front() == text.back() && holdsAnyOf(text.substr(0, 1), "'\"");
    return std::string(in_quotes ? text.substr(1, text.size() - 2) : text);
}

Bytes withoutMark(Bytes file) {
    return file.starts_with(byte_order_mark) ? file.substr(byte_order_mark.size()) : file;
}

// The lines of a file with their ends.
std::vector<Bytes> linesWithEnds(Bytes file) {
    std::vector<Bytes> lines;
    while (!file.empty()) {
        std::size_t length = std::min(file.find_first_of("\r\n"), file.size());
        if (file.substr(length, 2) == "\r\n") {
            length += 2;
        } else if (length < file.size()) {
            ++length;
        }
        lines.push_back(file.substr(0, length));
        file.remove_prefix(length);
    }
    return lines;
}

bool isEnded(Bytes line) {
    return holdsAnyOf(line.substr(line.size() - 1), "\r\n");
}

std::string upperAscii(Bytes name) {
    std::string upper(name);
    for (char& character : upper) {
        character =
            character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
    }
    return upper;
}

using Name = std::pair<std::string, std::string>; // section and key

// All keys of a file under the sections that they stand in, the first of equal ones.
std::map<Name, std::string> valuesOf(Bytes file) {
    std::map<Name, std::string> values;
    std::map<std::string, int> times_begun;
    std::string section;
    bool in_first_of_its_name = false;
    for (Bytes line : linesWithEnds(withoutMark(file))) {
        line = trimmedBytes(line.substr(0, std::min(line.find_first_of("\r\n"), line.size())));
        const std::size_t equals = line.find('=');
        if (line.starts_with('[')) {
            line.remove_prefix(1);
            section = upperAscii(trimmedBytes(line.substr(0, line.find(']'))));
            in_first_of_its_name = ++times_begun[section] == 1;
        } else if (in_first_of_its_name && equals != Bytes::npos && !line.starts_with(';')) {
            const Name name{section, upperAscii(trimmedBytes(line.substr(0, equals)))};
            values.try_emplace(name, asReadBack(line.substr(equals + 1)));
        }
    }
    return values;
}

void requireValues(Bytes file, const std::map<Name, std::string>& values) {
    for (const auto& [name, value] : values) {
        const auto read = profileValue(file, name.first, name.second);
        require(read.has_value(), "A key of the file is found");
        requireEqual(*read, value, "A key of the file has its value");
    }
}

// Before and after differ in one place only: there a line of the key is replaced, or one line is
// added, or two, the section's and the key's.
void requireOneChange(Bytes before, Bytes after, Bytes key) {
    const auto old_lines = linesWithEnds(before);
    const auto new_lines = linesWithEnds(after);
    const auto [old_end, new_end] =
        std::mismatch(old_lines.rbegin(), old_lines.rend(), new_lines.rbegin(), new_lines.rend());
    auto old_line = old_lines.begin();
    auto new_line = new_lines.begin();
    while (old_line != old_end.base() && new_line != new_end.base() &&
           (*old_line == *new_line ||
            (!isEnded(*old_line) && *new_line == std::string(*old_line) + "\r\n"))) {
        ++old_line;
        ++new_line;
    }
    const auto gone = old_end.base() - old_line;
    const auto come = new_end.base() - new_line;
    require(gone <= 1 && come <= 2, "No other line changes");
    if (gone == 1) {
        require(come == 1, "One line takes the place of another");
        require(upperAscii(trimmedBytes(old_line->substr(0, old_line->find('=')))) ==
                    upperAscii(key),
                "The line that is replaced is that of the key");
    }
}

void check(Bytes section, Bytes key, Bytes value, Bytes before) {
    const std::string after = withProfileValue(before, section, key, value);
    if (!canBeSection(section) || !canBeKey(key)) {
        return;
    }
    require(after.starts_with(byte_order_mark) == before.starts_with(byte_order_mark),
            "The byte order mark stays");
    requireOneChange(withoutMark(before), withoutMark(after), key);
    const auto read = profileValue(after, section, key);
    require(read.has_value(), "A value that was set is there");
    requireEqual(*read, asReadBack(value), "A value that was set is read back");

    auto values = valuesOf(before);
    requireValues(before, values);
    values[{upperAscii(section), upperAscii(key)}] = asReadBack(value);
    require(valuesOf(after) == values, "No other key changes");
    requireValues(after, values);
    require(withProfileValue(after, section, key, value) == after, "Once set is set");
}

} // namespace

} // namespace etiquetas::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace etiquetas::fuzz;
    std::string_view file = bytesOf(data, size);
    const std::string_view section = takeLine(file);
    const std::string_view key = takeLine(file);
    std::string value(takeLine(file));
    std::replace(value.begin(), value.end(), '\v', '\n');
    check(section, key, value, file);
    return 0;
}
