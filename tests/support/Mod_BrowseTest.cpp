#include "support/Mod_Browse.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class ModBrowseTest : public testing::Test, protected FakePlatform {};

TEST_F(ModBrowseTest, PathEndsBeforeItsFirstZeroCharacter) {
    picked = Text(u"/pedidos\0/x", 11);
    EXPECT_EQ(BrowseFolder(*this, u"Pasta"), u"/pedidos");
    EXPECT_EQ(log, Log{"pick Pasta"});
}

TEST_F(ModBrowseTest, NothingIsPickedWhereThePickerFails) {
    picked = u"/pedidos";
    failing = {"pick"};
    EXPECT_EQ(BrowseFolder(*this, u"Pasta"), u"");
}

} // namespace etiquetas::test
