#include "support/Module1.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(Module1Test, BlanksAtTheEndsAreNotSelected) {
    TextField field{.text = u"12 ", .selection = {.start = 1, .length = 1}};
    SelecionaTexto(field);
    EXPECT_EQ(field.selection, (Selection{.start = 0, .length = 2}));
}

TEST(Module1Test, NumbersTakeDigitsAndSignsAndDecimalsAPointAsAComma) {
    for (const KeyCode key : {u'0', u'9', key::backspace, u'-'}) {
        EXPECT_EQ(SoNumero(key), key);
        EXPECT_EQ(SoDecimal(key), key);
    }
    for (const KeyCode key : {key::select_all, key::enter, u'a', u'E'}) {
        EXPECT_EQ(SoNumero(key), key::none);
        EXPECT_EQ(SoDecimal(key), key::none);
    }
    for (const KeyCode key : {u',', u'.'}) {
        EXPECT_EQ(SoNumero(key), key::none);
        EXPECT_EQ(SoDecimal(key), u',');
    }
}

} // namespace etiquetas::test
