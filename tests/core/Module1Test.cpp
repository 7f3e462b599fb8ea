#include "support/Module1.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(Module1Test, KeysThatPass) {
    for (const KeyCode key : TextView(u"09\b-")) {
        EXPECT_EQ(SoNumero(key), key);
        EXPECT_EQ(SoDecimal(key), key);
    }
    for (const KeyCode key : TextView(u"\x01\r+ aE½")) {
        EXPECT_EQ(SoNumero(key), 0);
        EXPECT_EQ(SoDecimal(key), 0);
    }
    for (const KeyCode key : TextView(u",.")) {
        EXPECT_EQ(SoNumero(key), 0);
        EXPECT_EQ(SoDecimal(key), u',');
    }
}

TEST(Module1Test, BlanksStayOutOfTheSelection) {
    TextField field{.text = u"12  ", .selection = {3, 1}};
    SelecionaTexto(field);
    EXPECT_EQ(field.selection, (Selection{0, 2}));
}

} // namespace etiquetas::test
