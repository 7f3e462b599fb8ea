#include "base/Failure.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace etiquetas::test {

TEST(FailureTest, SkipTellsWhetherTheStepWentThrough) {
    bool ran = false;
    EXPECT_TRUE(skip([&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_FALSE(skip([] { throw overflow(); }));
}

TEST(FailureTest, SkipPassesOverFailuresOnly) {
    EXPECT_THROW(skip([] { throw std::logic_error("a fault of the program"); }), std::logic_error);
}

} // namespace etiquetas::test
