#include "platform/Files.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class FilesTest : public testing::Test, protected FakePlatform {};

TEST_F(FilesTest, PathHasOneSeparatorBetweenFolderAndName) {
    EXPECT_EQ(joined(files, u"/p", u"a"), u"/p/a");
    EXPECT_EQ(joined(files, u"/", u"a"), u"/a");
}

TEST_F(FilesTest, FileIsFoundInAnyCaseAndTheExactNameWins) {
    files.bytes = {{u"/p/A.TXT", ""}, {u"/p/a.txt", ""}, {u"/p/B.TXT", ""}};
    EXPECT_EQ(findFile(files, u"/p", u"a.txt"), u"/p/a.txt");
    EXPECT_EQ(findFile(files, u"/p", u"b.txt"), u"/p/B.TXT");
    EXPECT_EQ(findFile(files, u"/p", u"c.txt"), std::nullopt);
}

} // namespace etiquetas::test
