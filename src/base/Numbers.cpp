#include "base/Numbers.h"

#include "base/Failure.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

namespace etiquetas {

namespace {

// A number as it was written: 0.DIGITS times ten to the power of `point`.
struct Decimal {
    bool negative = false;
    std::string digits; // no zero in front; empty for the number zero
    std::int64_t point = 0;
    bool bits = false; // written in hexadecimal or octal digits
};

bool isDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

bool isEndBlank(char16_t character) {
    constexpr TextView end_blanks = u" \u00A0\t\r\n\v\f";
    return end_blanks.find(character) != TextView::npos;
}

// Reads a number from the front of a text to its end, piece by piece.
class Reader {
  public:
    explicit Reader(TextView text) : rest_(text) {}

    std::optional<Decimal> number() {
        skipBlanks();
        if (taken(u'&')) {
            return bitNumber();
        }
        const bool parenthesised = taken(u'(');
        if (parenthesised) {
            negative_ = true;
            signed_ = true;
        }
        skipBlanks();
        while (signOrCurrency()) {
        }
        if (!mantissa() || !exponent()) {
            return std::nullopt;
        }
        skipBlanks();
        while (signOrCurrency()) {
        }
        if (parenthesised && !taken(u')')) {
            return std::nullopt;
        }
        return finished();
    }

  private:
    bool taken(char16_t character) {
        if (rest_.empty() || rest_.front() != character) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    void skipBlanks() {
        while (!rest_.empty() && isEndBlank(rest_.front())) {
            rest_.remove_prefix(1);
        }
    }

    // One sign or one "R$", each once in a number, and the blanks after it.
    bool signOrCurrency() {
        if (!currency_ && rest_.substr(0, 2) == u"R$") {
            rest_.remove_prefix(2);
            currency_ = true;
        } else if (!signed_ && !rest_.empty() && (rest_.front() == u'-' || rest_.front() == u'+')) {
            negative_ = rest_.front() == u'-';
            signed_ = true;
            rest_.remove_prefix(1);
        } else {
            return false;
        }
        skipBlanks();
        return true;
    }

    bool mantissa() {
        bool digit_seen = false;
        bool comma_seen = false;
        for (; !rest_.empty(); rest_.remove_prefix(1)) {
            const char16_t character = rest_.front();
            if (isDigit(character)) {
                digit_seen = true;
                addDigit(character, comma_seen);
            } else if (character == u',' && !comma_seen) {
                comma_seen = true;
            } else if (character != u'.' || !digit_seen) {
                break;
            }
        }
        return digit_seen;
    }

    void addDigit(char16_t character, bool after_comma) {
        if (character == u'0' && decimal_.digits.empty()) {
            decimal_.point -= after_comma ? 1 : 0;
            return;
        }
        decimal_.digits.push_back(static_cast<char>(character));
        decimal_.point += after_comma ? 0 : 1;
    }

    bool exponent() {
        constexpr TextView marks = u"EeDd";
        if (rest_.empty() || marks.find(rest_.front()) == TextView::npos) {
            return true;
        }
        rest_.remove_prefix(1);
        const bool negative = taken(u'-');
        if (!negative) {
            taken(u'+');
        }
        if (rest_.empty() || !isDigit(rest_.front())) {
            return false;
        }
        constexpr std::int64_t beyond_every_range = 1'000'000'000;
        std::int64_t value = 0;
        for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
            value = std::min(beyond_every_range, value * 10 + (rest_.front() - u'0'));
        }
        decimal_.point += negative ? -value : value;
        return true;
    }

    std::optional<Decimal> bitNumber() {
        const bool hexadecimal = taken(u'H') || taken(u'h');
        if (!hexadecimal && !taken(u'O') && !taken(u'o')) {
            return std::nullopt;
        }
        const TextView allowed = hexadecimal ? u"0123456789abcdefABCDEF" : u"01234567";
        std::string digits;
        for (; !rest_.empty() && allowed.find(rest_.front()) != TextView::npos;
             rest_.remove_prefix(1)) {
            digits.push_back(static_cast<char>(rest_.front()));
        }
        if (digits.empty()) {
            return std::nullopt;
        }
        std::uint64_t value = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                          hexadecimal ? 16 : 8);
        if (read.ec != std::errc{}) {
            value = std::numeric_limits<std::uint64_t>::max();
        }
        decimal_.bits = true;
        decimal_.digits = value == 0 ? "" : std::to_string(value);
        decimal_.point = static_cast<std::int64_t>(decimal_.digits.size());
        return finished();
    }

    std::optional<Decimal> finished() {
        skipBlanks();
        if (!rest_.empty()) {
            return std::nullopt;
        }
        decimal_.negative = negative_;
        return std::move(decimal_);
    }

    TextView rest_;
    Decimal decimal_;
    bool negative_ = false;
    bool signed_ = false;
    bool currency_ = false;
};

Decimal decimalOf(TextView text) {
    auto decimal = Reader(text).number();
    if (!decimal) {
        throw typeMismatch();
    }
    return *std::move(decimal);
}

// True when the digits after the decimal comma round the whole number before it away from zero.
bool roundsUp(const Decimal& decimal, std::int32_t whole) {
    if (decimal.point < 0) {
        return false;
    }
    const auto fraction =
        std::string_view(decimal.digits)
            .substr(std::min(decimal.digits.size(), static_cast<std::size_t>(decimal.point)));
    if (fraction.empty() || fraction.front() < '5') {
        return false;
    }
    const bool exactly_half =
        fraction.front() == '5' && fraction.find_first_not_of('0', 1) == std::string_view::npos;
    return !exactly_half || whole % 2 != 0;
}

std::int32_t roundedHalfToEven(const Decimal& decimal) {
    constexpr std::int64_t most_digits = 6; // enough to tell that 16 bits do not hold it
    if (!decimal.digits.empty() && decimal.point > most_digits) {
        throw overflow();
    }
    std::int32_t whole = 0;
    for (std::int64_t i = 0; i < decimal.point; ++i) {
        const auto index = static_cast<std::size_t>(i);
        whole = whole * 10 + (index < decimal.digits.size() ? decimal.digits[index] - '0' : 0);
    }
    whole += roundsUp(decimal, whole) ? 1 : 0;
    return decimal.negative ? -whole : whole;
}

} // namespace

bool isNumeric(TextView text) {
    return Reader(text).number().has_value();
}

bool isNumeric(char16_t character) {
    return isDigit(character);
}

std::int16_t toInteger16(TextView text) {
    const Decimal decimal = decimalOf(text);
    const std::int32_t value = decimal.digits.empty() ? 0 : roundedHalfToEven(decimal);
    constexpr std::int32_t all_bits = 0xFFFF;
    if (decimal.bits && value > std::numeric_limits<std::int16_t>::max() && value <= all_bits) {
        return static_cast<std::int16_t>(value - all_bits - 1);
    }
    return toInteger16(value);
}

float toSingle(TextView text) {
    const Decimal decimal = decimalOf(text);
    if (decimal.digits.empty()) {
        return 0.0F;
    }
    const std::string plain = "0." + decimal.digits + "e" + std::to_string(decimal.point);
    float value = 0.0F;
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ec == std::errc::result_out_of_range && decimal.point > 0) {
        throw overflow();
    }
    return decimal.negative ? -value : value;
}

std::int16_t toInteger16(std::int32_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw overflow();
    }
    return static_cast<std::int16_t>(value);
}

Text numberText(std::int32_t value) {
    return formatted(value, u"#0");
}

Text signedNumberText(std::int32_t value) {
    return value < 0 ? numberText(value) : u" " + numberText(value);
}

Text formatted(std::int32_t value, TextView pattern) {
    const std::string digits = std::to_string(std::abs(static_cast<std::int64_t>(value)));
    const auto zeros = static_cast<std::size_t>(std::count(pattern.begin(), pattern.end(), u'0'));
    Text text(value < 0 ? u"-" : u"");
    text.append(zeros - std::min(zeros, digits.size()), u'0');
    return text.append(digits.begin(), digits.end());
}

} // namespace etiquetas
