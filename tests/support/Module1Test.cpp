#include "support/Module1.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(Module1Test, NumbersTakeDigitsAndSigns) {
    for (const KeyCode key : {u'0', u'9', key::backspace, u'-'}) {
        EXPECT_EQ(SoNumero(key), key);
    }
    for (const KeyCode key : {key::select_all, key::enter, u'a', u'E', u',', u'.'}) {
        EXPECT_EQ(SoNumero(key), key::none);
    }
}

} // namespace etiquetas::test
