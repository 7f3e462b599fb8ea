#include "base/CodePage.h"

#include "support/Cases.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

struct CodePageSample {
    std::string name, bytes;
    Text text;
};

class CodePageTest : public testing::TestWithParam<CodePageSample> {};

TEST_P(CodePageTest, BytesBecomeTheirCharactersAndComeBack) {
    EXPECT_EQ(fromCodePage1252(GetParam().bytes), GetParam().text);
    EXPECT_EQ(toCodePage1252(GetParam().text), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, CodePageTest,
    testing::Values(
        CodePageSample{
            .name = "Letters", .bytes = "aA\xE7\xE3o \xC9\xBA \xD7\xFF", .text = u"aAção Éº ×ÿ"},
        CodePageSample{.name = "From80",
                       .bytes = "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E",
                       .text = u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ"},
        CodePageSample{.name = "From91",
                       .bytes = "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F",
                       .text = u"‘’“”•–—˜™š›œžŸ"},
        CodePageSample{.name = "UndefinedBytesAndNoBreakSpace",
                       .bytes = "\x81\x8D\x8F\x90\x9D\xA0",
                       .text = u"\x81\x8D\x8F\x90\x9D\xA0"}),
    CaseName());

TEST(CodePageTest, OtherCharactersBecomeQuestionMarks) {
    EXPECT_EQ(toCodePage1252(u"Ω\u0080漢Ā"), "????");
}

} // namespace etiquetas::test
