#include "config/Profile.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace etiquetas {

namespace {

constexpr std::string_view line_end = "\r\n";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

char upperAscii(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

bool sameName(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return upperAscii(a) == upperAscii(b); });
}

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// One line of a file, with its place in it: content without blanks around, start, and the start of
// the next line.
struct Line {
    std::string_view content;
    std::size_t start = 0;
    std::size_t next = 0;

    [[nodiscard]] bool isSection() const { return !content.empty() && content.front() == '['; }

    // The name ends at the first "]"; a missing one is accepted.
    [[nodiscard]] std::string_view sectionName() const {
        return withoutBlanks(content.substr(1, content.find(']') - 1));
    }

    [[nodiscard]] bool isKey() const {
        return !content.empty() && content.front() != ';' && !isSection() &&
               content.find('=') != std::string_view::npos;
    }

    [[nodiscard]] std::string_view key() const {
        return withoutBlanks(content.substr(0, content.find('=')));
    }

    [[nodiscard]] std::string_view value() const {
        return withoutQuotes(withoutBlanks(content.substr(content.find('=') + 1)));
    }
};

// Walks the lines of a file; they end in CR LF, LF or CR, the last one with or without an end.
class Lines {
  public:
    explicit Lines(std::string_view file) : file_(file) {
        if (file.substr(0, byte_order_mark.size()) == byte_order_mark) {
            at_ = byte_order_mark.size();
        }
    }

    std::optional<Line> next() {
        if (at_ >= file_.size()) {
            return std::nullopt;
        }
        const std::size_t start = at_;
        const std::size_t end = std::min(file_.find_first_of(line_end, start), file_.size());
        const bool pair = file_.substr(end, line_end.size()) == line_end;
        at_ = std::min(end + (pair ? 2 : 1), file_.size());
        return Line{withoutBlanks(file_.substr(start, end - start)), start, at_};
    }

    // Moves past the line that opens the section, and returns it; nothing where there is none.
    std::optional<Line> findSection(std::string_view section) {
        auto line = next();
        while (line && !(line->isSection() && sameName(line->sectionName(), section))) {
            line = next();
        }
        return line;
    }

  private:
    std::string_view file_;
    std::size_t at_ = 0;
};

std::string keyLine(std::string_view key, std::string_view value) {
    std::string line(key);
    line += '=';
    std::copy_if(value.begin(), value.end(), std::back_inserter(line),
                 [](char character) { return line_end.find(character) == std::string_view::npos; });
    return line.append(line_end);
}

bool lacksLineEnd(std::string_view text) {
    return !text.empty() && text != byte_order_mark &&
           line_end.find(text.back()) == std::string_view::npos;
}

// The file with the bytes from `start` to `end` replaced by whole lines.
std::string spliced(std::string_view file, std::size_t start, std::size_t end,
                    std::string_view lines) {
    std::string result(file.substr(0, start));
    if (lacksLineEnd(result)) {
        result.append(line_end);
    }
    return result.append(lines).append(file.substr(end));
}

} // namespace

bool isUtf16(std::string_view file) {
    return file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF");
}

std::optional<std::string> profileValue(std::string_view file, std::string_view section,
                                        std::string_view key) {
    Lines lines(file);
    if (!lines.findSection(section)) {
        return std::nullopt;
    }
    for (auto line = lines.next(); line && !line->isSection(); line = lines.next()) {
        if (line->isKey() && sameName(line->key(), key)) {
            return std::string(line->value());
        }
    }
    return std::nullopt;
}

std::string withProfileValue(std::string_view file, std::string_view section, std::string_view key,
                             std::string_view value) {
    Lines lines(file);
    const auto header = lines.findSection(section);
    if (!header) {
        std::string lines_to_add = "[";
        lines_to_add.append(section).append("]").append(line_end).append(keyLine(key, value));
        return spliced(file, file.size(), file.size(), lines_to_add);
    }
    std::size_t after_last_key = header->next;
    for (auto line = lines.next(); line && !line->isSection(); line = lines.next()) {
        if (line->isKey() && sameName(line->key(), key)) {
            return spliced(file, line->start, line->next, keyLine(line->key(), value));
        }
        after_last_key = line->isKey() ? line->next : after_last_key;
    }
    return spliced(file, after_last_key, after_last_key, keyLine(key, value));
}

} // namespace etiquetas
