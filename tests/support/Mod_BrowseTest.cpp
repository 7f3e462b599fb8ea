#include "support/Mod_Browse.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

TEST(ModBrowseTest, PathEndsBeforeItsFirstZeroCharacter) {
    FakePlatform machine;
    machine.picked = Text(u"/pedidos\0/x", 11);
    EXPECT_EQ(BrowseFolder(machine, u"Pasta"), u"/pedidos");
}

} // namespace etiquetas::test
