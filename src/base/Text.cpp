#include "base/Text.h"

#include <algorithm>

namespace etiquetas {

TextView trimmed(TextView text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == TextView::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

bool isBlank(TextView text) {
    return text.find_first_not_of(u' ') == TextView::npos;
}

TextView left(TextView text, std::size_t count) {
    return text.substr(0, count);
}

TextView right(TextView text, std::size_t count) {
    return text.substr(text.size() - std::min(count, text.size()));
}

TextView mid(TextView text, std::size_t first, std::size_t count) {
    return first > text.size() ? TextView{} : text.substr(first - 1, count);
}

std::vector<TextView> split(TextView text, char16_t separator) {
    std::vector<TextView> parts;
    parts.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), separator)) + 1);
    auto end = text.find(separator);
    while (end != TextView::npos) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
        end = text.find(separator);
    }
    parts.push_back(text);
    return parts;
}

char16_t upperCase(char16_t character) {
    constexpr char16_t division_sign = u'\u00F7';
    constexpr char16_t case_step = u'a' - u'A';
    const bool ascii_letter = character >= u'a' && character <= u'z';
    const bool accented_letter =
        character >= u'\u00E0' && character <= u'\u00FE' && character != division_sign;
    if (ascii_letter || accented_letter) {
        return static_cast<char16_t>(character - case_step);
    }
    switch (character) {
    case u'\u00FF':
        return u'\u0178';
    case u'\u0153':
    case u'\u0161':
    case u'\u017E':
        return static_cast<char16_t>(character - 1);
    default:
        return character;
    }
}

Text upperCase(TextView text) {
    Text upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char16_t character) { return upperCase(character); });
    return upper;
}

bool equalIgnoringCase(TextView one, TextView other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char16_t a, char16_t b) { return upperCase(a) == upperCase(b); });
}

bool sortsBefore(TextView one, TextView other) {
    const Text upper_one = upperCase(one);
    const Text upper_other = upperCase(other);
    return upper_one == upper_other ? one < other : upper_one < upper_other;
}

bool matchesPattern(TextView name, TextView pattern) {
    // A mismatch goes back to the last "*" only, which then takes one character more.
    std::size_t at = 0;
    std::size_t in_pattern = 0;
    std::size_t star = TextView::npos;
    std::size_t star_end = 0;
    while (at < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == u'*') {
            star = in_pattern++;
            star_end = at;
        } else if (in_pattern < pattern.size() &&
                   (pattern[in_pattern] == u'?' ||
                    upperCase(pattern[in_pattern]) == upperCase(name[at]))) {
            ++in_pattern;
            ++at;
        } else if (star != TextView::npos) {
            in_pattern = star + 1;
            at = ++star_end;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', in_pattern) == TextView::npos;
}

Text replaceAll(TextView text, TextView from, TextView to) {
    Text result;
    result.reserve(text.size());
    auto found = text.find(from);
    while (found != TextView::npos) {
        result.append(text.substr(0, found)).append(to);
        text.remove_prefix(found + from.size());
        found = text.find(from);
    }
    return result.append(text);
}

} // namespace etiquetas
