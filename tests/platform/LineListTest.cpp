#include "platform/LineList.h"

#include <gtest/gtest.h>

#include <random>

namespace etiquetas::test {

TEST(LineListTest, IsAVectorOfTextsWhateverIsDoneToIt) {
    std::mt19937 random(7);
    LineList list;
    std::vector<Text> expected;
    for (int i = 0; i < 5'000; ++i) {
        const std::size_t at = expected.empty() ? 0 : random() % expected.size();
        const auto offset = static_cast<std::ptrdiff_t>(at);
        const Text line(random() % 9, random() % 500 == 0 ? u'\u0416' : u'\u00C9');
        const auto deed = expected.empty() ? 4'000 : random() % 4'001;
        if (deed == 1) {
            list = expected;
        } else if (deed == 2) {
            list.clear();
            expected.clear();
        } else if (deed == 3) {
            list[at] = expected[at] = line;
        } else if (deed < 1'000) {
            list.erase(list.begin() + offset);
            expected.erase(expected.begin() + offset);
        } else if (deed < 2'000) {
            list.removeAt(at);
            expected.erase(expected.begin() + offset);
        } else {
            list.push_back(line);
            expected.push_back(line);
        }
        ASSERT_EQ(list.size(), expected.size());
        ASSERT_TRUE(expected.empty() ||
                    list.textAt(at % expected.size()) == expected[at % expected.size()]);
    }
    EXPECT_EQ(list, expected);
}

} // namespace etiquetas::test
