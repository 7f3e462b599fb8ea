#include "config/Profile.h"

#include "support/Golden.h"
#include "support/ProgramGolden.h"

#include <gtest/gtest.h>

#include <optional>

namespace etiquetas::test {

/// What the key "k" of the section "A" has in a file; nothing where it is missing.
struct ProfileReading {
    const char* name;
    const char* file;
    std::optional<std::string> value;
};

// clang-format off
static const ProfileReading profile_readings[] = {
    {"any case",                   "[b]\r\nk=2\r\n[a]\r\nK=1\r\n", "1"},
    {"blanks",                     "[ A ]\r\n  k  =  x y  \r\n", "x y"},
    {"tabs",                       "\t[\tA\t]\r\n\tk\t=\tx\ty\t\r\n", "x\ty"},
    {"bracket missing",            "[A\r\nk=1\r\n", "1"},
    {"text after bracket",         "[A] trailing]\r\nk=1", "1"},
    {"first of equal sections",    "[A]\r\n[A]\r\nk=1\r\n", std::nullopt},
    {"first of equal keys",        "[A]\r\nk\r\nk=2\r\nK=3\r\n", "2"},
    {"section missing",            "k=1\r\n[B]\r\nk=2\r\n", std::nullopt},
    {"key missing",                "[A]\r\nj=1\r\n[B]\r\nk=2\r\n", std::nullopt},
    {"all line ends",              "[A]\nj=1\rk=2\n\r\ri=3", "2"},
    {"byte order mark",            "\xEF\xBB\xBF[A]\r\nk=1\r\n", "1"},
    {"second equals sign",         "[A]\r\n;k=1\r\nk=a=b\r\n", "a=b"},
    {"empty",                      "[A]\r\nk=   \r\n", ""},
    {"double quotes",              "[A]\r\nk=\"  a \"\r\n", "  a "},
    {"single quotes",              "[A]\r\nk=' a '\r\n", " a "},
    {"one pair of quotes",         "[A]\r\nk=\"\"a\"\"\r\n", "\"a\""},
    {"unlike quotes",              "[A]\r\nk=\"5'\r\n", "\"5'"},
    {"one quote",                  "[A]\r\nk=\"\r\n", "\""},
    {"no break space and semicolon", "[A]\r\nk=\xA0x ; c\r\n", "\xA0x ; c"}};
// clang-format on

TEST(ProfileTest, ValuesAreRead) {
    for (const ProfileReading& reading : profile_readings) {
        EXPECT_EQ(profileValue(reading.file, "A", "k"), reading.value) << reading.name;
    }
}

TEST(ProfileTest, CaseOfAccentedLettersCounts) {
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xC7", "\xE3"), "1");
    EXPECT_EQ(profileValue("[\xC7]\n\xE3=1", "\xE7", "\xE3"), std::nullopt);
}

/// A file, and the value that the key "k" of its section "A" takes.
struct ProfileWriting {
    const char* name;
    const char* file;
    const char* value;
};

// clang-format off
constexpr ProfileWriting profile_writings[] = {
    {"after the last key",           "[A]\r\nj=1\r\n\r\n; end\r\n[B]\r\nz=9\r\n", "2"},
    {"before comments without keys", "[A]\r\n; c\r\n\r\n[B]\r\n", "1"},
    {"lines that are no keys",       "[A]\r\nno key\r\nj=1\r\n;k=0\r\n", "2"},
    {"first of equal sections",      "[A]\r\n[A]\r\nk=1\r\n", "2"},
    {"section missing",              "[B]\r\nj=1", "2"},
    {"section without line end",     "[a]", "1"},
    {"empty file",                   "", "v"},
    {"byte order mark alone",        "\xEF\xBB\xBF", "1"},
    {"undefined bytes",              "\xEF\xBB\xBF[A]\r\nj=\x81\x9D\r\n", "1"},
    {"replaced in place",            "[a]\r\nK = old\r\n", " new"},
    {"other line ends stay",         "[A]\nk=1\nj = 2\n", "3"},
    {"empty",                        "[A]\r\nk=1", ""},
    {"quotes and blanks as they stand", "[A]\r\n", "\"a\" "},
    {"line ends are left out",       "[A]\r\n", "a\r\nb\nc"}};
// clang-format on

TEST(ProfileTest, WritingAValueKeepsAllElse) {
    std::vector<std::string> written;
    for (const ProfileWriting& writing : profile_writings) {
        written.push_back(std::string("== ") + writing.name);
        for (const std::string& line :
             programLines(withProfileValue(writing.file, "A", "k", writing.value))) {
            written.push_back(line);
        }
    }
    EXPECT_TRUE(matchesGolden(written, "perfil"));
}

} // namespace etiquetas::test
