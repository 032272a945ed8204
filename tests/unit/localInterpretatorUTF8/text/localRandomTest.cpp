#include "localInterpretatorUTF8/text/localRandom.h"

#include <gmock/gmock.h>

#include <set>
#include <vector>

namespace {

std::vector<int> sequenceOf(std::uint32_t seed, int length) {
    localRandomSeed(seed);
    std::vector<int> numbers;
    for (int i = 0; i < length; ++i) {
        numbers.push_back(localRandom());
    }
    return numbers;
}

TEST(localRandom, aSeedFixesTheSequence) {
    EXPECT_EQ(sequenceOf(5, 100), sequenceOf(5, 100));
    EXPECT_NE(sequenceOf(5, 100), sequenceOf(6, 100));
}

TEST(localRandom, numbersFillFifteenBits) {
    EXPECT_EQ(localRandomMax, 32767);
    const std::vector<int> numbers = sequenceOf(1, 1'000'000);
    EXPECT_THAT(numbers, testing::Each(testing::AllOf(testing::Ge(0), testing::Le(32767))));
    const std::set<int> different(numbers.begin(), numbers.end());
    EXPECT_EQ(different.size(), 32768U);
}

}  // namespace
