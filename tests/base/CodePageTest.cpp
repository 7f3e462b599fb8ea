#include "base/CodePage.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(CodePageTest, BytesBecomeTheirCharactersAndComeBack) {
    struct Sample {
        std::string_view bytes;
        TextView text;
    };
    for (const Sample& sample :
         {Sample{.bytes = "aA\xE7\xE3o \xC9\xBA \xD7\xFF", .text = u"aAção Éº ×ÿ"},
          Sample{.bytes = "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E",
          .text = u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ"},
          Sample{.bytes = "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F",
          .text = u"‘’“”•–—˜™š›œžŸ"},
          // What the code page leaves undefined, and the no-break space.
          Sample{.bytes = "\x81\x8D\x8F\x90\x9D\xA0", .text = u"\x81\x8D\x8F\x90\x9D\xA0"}}) {
        EXPECT_EQ(fromCodePage1252(sample.bytes), sample.text);
        EXPECT_EQ(toCodePage1252(sample.text), sample.bytes);
    }
}

TEST(CodePageTest, OtherCharactersBecomeQuestionMarks) {
    EXPECT_EQ(toCodePage1252(u"Ω\u0080漢Ā"), "????");
}

} // namespace etiquetas::test
