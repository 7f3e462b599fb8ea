#include "base/CodePage.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(CodePageTest, EveryByteSurvivesTheRoundTrip) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) {
        bytes.push_back(static_cast<char>(code));
    }
    EXPECT_EQ(toCodePage1252(fromCodePage1252(bytes)), bytes);
}

TEST(CodePageTest, BytesAboveAsciiAreTheirCharacters) {
    EXPECT_EQ(fromCodePage1252("A\xE7\xE3o \xC9\xBA \xD7\xFF"), u"Ação Éº ×ÿ");
    EXPECT_EQ(fromCodePage1252("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"),
              u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(fromCodePage1252("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              u"‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(fromCodePage1252("\x81\x8D\x8F\x90\x9D\xA0"), u"\x81\x8D\x8F\x90\x9D\xA0");
}

TEST(CodePageTest, OtherCharactersBecomeQuestionMarks) {
    EXPECT_EQ(toCodePage1252(u"aΩ\u0080漢ÿĀ"), "a???\xFF?");
}

} // namespace etiquetas::test
