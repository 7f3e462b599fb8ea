#include "config/Profile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace etiquetas::test {

// "|" stands for CR LF, so that a file fits a line.
static std::string unfolded(std::string_view text) {
    std::string file;
    for (const char character : text) {
        file += character == '|' ? "\r\n" : std::string(1, character);
    }
    return file;
}

TEST(ProfileTest, Reading) {
    using Case = std::tuple<std::string_view, std::string_view, std::string_view,
                            std::optional<std::string>>;
    for (const auto& [file, section, key, value] : {
             Case{"[A]|k=1|[B]|k=2|", "b", "K", "2"},
             {"[A]|[A]|k=1|", "A", "k", {}},
             {"[ A ]|  k  =  x y  |", "A", "k", "x y"},
             {"\t[\tA\t]|\tk\t=\tx\ty\t|", "A", "k", "x\ty"},
             {"[A|k=1|", "A", "k", "1"},
             {"[A] trailing]|k=1", "A", "k", "1"},
             {"[A]|;k=1|k=a=b|", "A", "k", "a=b"},
             {"[A]|  ;k=1|", "A", ";k", {}},
             {"", "A", "k", {}},
             {"k=1|[B]|k=2|", "A", "k", {}},
             {"[A]|j=1|[B]|k=2|", "A", "k", {}},
             {"[A]|k=|", "A", "k", ""},
             {"[A]|k=   |", "A", "k", ""},
             {"[A]|k=\"\"|", "A", "k", ""},
             {"[A]|k=\"  a \"|", "A", "k", "  a "},
             {"[A]|k=' a '|", "A", "k", " a "},
             {"[A]|k=\"\"a\"\"|", "A", "k", "\"a\""},
             {"[A]|k=5\"|", "A", "k", "5\""},
             {"[A]|k=\"5'|", "A", "k", "\"5'"},
             {"[A]|k=\"|", "A", "k", "\""},
             {"[A]|k|k=2|", "A", "k", "2"},
             {"[A]|k=1|K=2|", "A", "k", "1"},
             {"[A]|k=v ; c|", "A", "k", "v ; c"},
             {"[A]|#k=1|//k=2|", "A", "#k", "1"},
             {"[A]|#k=1|//k=2|", "A", "//k", "2"},
             {"[A]|k=\xA0x\xA0|", "A", "k", "\xA0x\xA0"},
             {"[\xC7]|\xE3=\x81\xFF|", "\xC7", "\xE3", "\x81\xFF"},
             {"[\xC7]|\xE3=1|", "\xE7", "\xE3", {}},
             {"[A]\nk=1\rj=2\n\r\ri=3", "A", "i", "3"},
             {"[A]\nk=1\rj=2", "A", "k", "1"},
             {"\xEF\xBB\xBF[A]|k=1|", "A", "k", "1"},
         }) {
        EXPECT_EQ(profileValue(unfolded(file), section, key), value) << file;
    }
}

TEST(ProfileTest, Writing) {
    using Case = std::tuple<std::string_view, std::string_view, std::string_view, std::string_view,
                            std::string_view>;
    for (const auto& [before, section, key, value, after] : {
             Case{"[A]|k=1||; end|[B]|z=9|", "A", "n", "2", "[A]|k=1|n=2||; end|[B]|z=9|"},
             {"[A]|k=1", "C", "n", "2", "[A]|k=1|[C]|n=2|"},
             {"[a]|K = old|", "A", "k", " new", "[a]|K= new|"},
             {"", "S", "k", "v", "[S]|k=v|"},
             {"[A]|k=1|", "B", "k", "2", "[A]|k=1|[B]|k=2|"},
             {"[A]", "a", "k", "1", "[A]|k=1|"},
             {"[A]|k=1", "A", "j", "2", "[A]|k=1|j=2|"},
             {"[A]|; c||[B]|", "A", "k", "1", "[A]|k=1|; c||[B]|"},
             {"[A]|no key|j=1|;k=0|", "A", "k", "2", "[A]|no key|j=1|k=2|;k=0|"},
             {"[A]|k=1|k=2|", "A", "k", "3", "[A]|k=3|k=2|"},
             {"[A]|[A]|k=1|", "A", "k", "2", "[A]|k=2|[A]|k=1|"},
             {"[A]\nk=1\nj = 2\n", "A", "k", "3", "[A]\nk=3|j = 2\n"},
             {"[A]|k=1", "A", "k", "2", "[A]|k=2|"},
             {"[A]|k=1|", "A", "k", "", "[A]|k=|"},
             {"[A]|", "A", "k", "\"a\" ", "[A]|k=\"a\" |"},
             {"[A]|", "A", "k", "a|b\nc", "[A]|k=abc|"},
             {"\xEF\xBB\xBF", "A", "k", "1", "\xEF\xBB\xBF[A]|k=1|"},
             {"\xEF\xBB\xBF[A]|j=\x81\x9D|", "A", "k", "1", "\xEF\xBB\xBF[A]|j=\x81\x9D|k=1|"},
         }) {
        EXPECT_EQ(withProfileValue(unfolded(before), section, key, unfolded(value)),
                  unfolded(after))
            << before;
    }
}

} // namespace etiquetas::test
