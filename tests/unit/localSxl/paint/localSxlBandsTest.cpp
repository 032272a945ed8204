#include "localSxl/paint/localSxlBands.h"

#include <gmock/gmock.h>

namespace {

constexpr std::uint32_t last = 4294967295;

std::vector<std::uint32_t> numbersOf(const std::vector<localSxlBand>& bands) {
    std::vector<std::uint32_t> numbers;
    for (const localSxlBand& band : bands) {
        numbers.push_back(band.number);
    }
    return numbers;
}

using testing::ElementsAre;
using testing::IsEmpty;

TEST(localSxlBands, fillTheRoom) {
    const localSxlSheet::Sizes own{{2, 50}, {3, 0}, {5, -7}};
    const localSxlBandSizes sizes{own, 20};
    const auto bands = localSxlBands(sizes, 1, 100);
    EXPECT_THAT(numbersOf(bands), ElementsAre(1, 2, 4, 6));
    EXPECT_EQ(bands[2].at, 70);
    EXPECT_EQ(bands[3].at, 90);
    EXPECT_EQ(bands[1].size, 50);
    EXPECT_THAT(localSxlBands(sizes, 1, 0), IsEmpty());
    EXPECT_THAT(numbersOf(localSxlBands(sizes, 3, 25)), ElementsAre(4, 6));
    EXPECT_THAT(numbersOf(localSxlBands(sizes, last - 1, 1000)), ElementsAre(last - 1, last));
}

TEST(localSxlBands, allHiddenButSome) {
    const localSxlSheet::Sizes own{{7, 10}, {4000000000, 10}};
    const localSxlBandSizes sizes{own, 0};
    EXPECT_THAT(numbersOf(localSxlBands(sizes, 1, 100)), ElementsAre(7, 4000000000));
    EXPECT_EQ(localSxlNextShown(sizes, 7), 4000000000);
    EXPECT_EQ(localSxlNextShown(sizes, 4000000000), 4000000000);
    EXPECT_EQ(localSxlPreviousShown(sizes, last), 4000000000);
    EXPECT_EQ(localSxlPreviousShown(sizes, 7), 7U);
    const localSxlSheet::Sizes none;
    EXPECT_THAT(localSxlBands({none, -5}, 1, 100), IsEmpty());
    EXPECT_EQ(localSxlNextShown({none, 0}, 1), 1U);
}

TEST(localSxlBands, theFirstFromWhichTheLastShows) {
    const localSxlSheet::Sizes own{{9, 50}, {8, 0}};
    const localSxlBandSizes sizes{own, 20};
    EXPECT_EQ(localSxlFirstBefore(sizes, 5, 60), 3U);
    EXPECT_EQ(localSxlFirstBefore(sizes, 5, 1000), 1U);
    EXPECT_EQ(localSxlFirstBefore(sizes, 5, 3), 5U);
    EXPECT_EQ(localSxlFirstBefore(sizes, 10, 95), 7U);
    EXPECT_EQ(localSxlFirstBefore(sizes, last, 45), last - 1);
}

}  // namespace
