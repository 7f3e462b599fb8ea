#include "base/Numbers.h"

#include "support/Failures.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <charconv>

namespace etiquetas::test {

// A number in as many digits as it takes, or how the conversion fails.
template <typename Convert>
static std::string converted(Convert convert) {
    std::string digits(32, ' ');
    const auto failure = failureOf([&] {
        digits.resize(static_cast<std::size_t>(
            std::to_chars(digits.data(), digits.data() + digits.size(), convert()).ptr -
            digits.data()));
    });
    if (failure == failure_number::type_mismatch) {
        return "mismatch";
    }
    return failure == failure_number::overflow ? "overflow" : digits;
}

// The golden file tells of each text what it converts to.
TEST(NumbersTest, TextsConvertToNumbers) {
    Log converted_texts;
    for (const GoldenLine& line : goldenLines(ETIQUETAS_GOLDENS "/numeros.txt")) {
        const std::string quoted = line.text.substr(0, line.text.rfind('"') + 1);
        const Text text = utf16(quoted.substr(1, quoted.size() - 2));
        converted_texts.push_back(quoted + (isNumeric(text) ? " numeric, " : " other, ") +
                                  converted([&] { return toSingle(text); }) + ", 16 bits " +
                                  converted([&] { return toInteger16(text); }));
    }
    EXPECT_TRUE(matchesGolden(converted_texts, "numeros"));
    EXPECT_EQ(toSingle(u"\u00A0\t00012\r\n\v\f"), 12);
}

TEST(NumbersTest, PatternsFillWithZeros) {
    EXPECT_EQ(formatted(7, u"#000"), u"007");
    EXPECT_EQ(formatted(-1, u"#00"), u"-01");
    EXPECT_EQ(formatted(0, u"#0"), u"0");
}

} // namespace etiquetas::test
