#include "library/localWhole.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

TEST(whole, cutsTowardZero) {
    EXPECT_EQ(localWhole(1.9), 1);
    EXPECT_EQ(localWhole(-1.9), -1);
    EXPECT_EQ(localWhole(-0.0), 0);
    EXPECT_EQ(localWhole(4294967296.5), 4294967296);
}

TEST(whole, stopsAtTheEndsOf64Bits) {
    EXPECT_EQ(localWhole(1e300), highest);
    EXPECT_EQ(localWhole(-1e300), lowest);
    EXPECT_EQ(localWhole(9223372036854775808.0), highest);
    EXPECT_EQ(localWhole(-9223372036854775808.0), lowest);
    EXPECT_EQ(localWhole(std::numeric_limits<double>::infinity()), highest);
    EXPECT_EQ(localWhole(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace
