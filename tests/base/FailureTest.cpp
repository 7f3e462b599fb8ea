#include "base/Failure.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace etiquetas {

static void fail() {
    throw overflow();
}

TEST(SkipObserver, hearsOfEachFailureThatIsPassedOver) {
    std::vector<std::int32_t> numbers;
    const SkipObserver observer([&](const Failure& failure) {
        EXPECT_EQ(failure.description(), overflow().description());
        numbers.push_back(failure.number());
    });
    EXPECT_FALSE(skip(fail));
    EXPECT_TRUE(skip([] {}));
    EXPECT_THROW(skip([] { throw std::logic_error("a fault of the program"); }), std::logic_error);
    EXPECT_EQ(numbers, std::vector{failure_number::overflow});
}

TEST(SkipObserver, givesWayToALaterOneAndComesBackAfterIt) {
    int first = 0;
    int second = 0;
    {
        const SkipObserver observer([&first](const Failure&) { ++first; });
        {
            const SkipObserver later([&second](const Failure&) { ++second; });
            skip(fail);
        }
        skip(fail);
    }
    EXPECT_FALSE(skip(fail)) << "without any observer";
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
}

TEST(SkipObserver, doesNotBreakAStepByAFaultOfItsOwn) {
    const SkipObserver observer([](const Failure&) { throw std::runtime_error("no log"); });
    EXPECT_FALSE(skip(fail));
}

} // namespace etiquetas
