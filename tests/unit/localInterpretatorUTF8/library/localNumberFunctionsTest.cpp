#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/text/localRandom.h"

namespace {

using numberFunctionsTest = libraryTest;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

TEST_F(numberFunctionsTest, randIsTheGeneratorsNumberDividedByItsLargest) {
    // Making the context of the call seeds the generator, so one context serves all calls.
    localContextUTF8 context;
    const localArguments none;
    localRandomSeed(42);
    double drawn[100];
    for (double& number : drawn) {
        int status = localErrorTypeOK;
        localSlot result;
        ASSERT_TRUE(localLibrary::call(status, &context, u"RAND", &none, result.asResult()));
        number = result->num;
    }
    localRandomSeed(42);
    for (const double number : drawn) {
        EXPECT_EQ(number, localRandom() / 32767.0);
    }
}

TEST_F(numberFunctionsTest, intOfWhatIsNoNumberOf32BitsIsTheLowestOne) {
    for (const double number : {infinite, -infinite, notANumber, 1e10, -1e10}) {
        EXPECT_EQ(call(u"INT", number).result->num, -2147483648.0);
    }
    EXPECT_FALSE(std::signbit(call(u"INT", -0.5).result->num));
}

TEST_F(numberFunctionsTest, roundingFollowsItsFormulaForAnyDigits) {
    EXPECT_TRUE(std::isnan(call(u"ROUND", 1.5, infinite).result->num));
    EXPECT_TRUE(std::isnan(call(u"ROUND", 1.5, -infinite).result->num));
    EXPECT_TRUE(std::isnan(call(u"ROUND", 15.0, 1e300).result->num));
    EXPECT_EQ(call(u"ROUND", 1e300, 100.0).result->num, infinite);
    EXPECT_EQ(call(u"ROUND", 2.34567, 1.5).result->num,
              std::round(2.34567 * std::pow(10.0, 1.5)) / std::pow(10.0, 1.5));
    EXPECT_TRUE(std::isnan(call(u"ROUND", notANumber, 2.0).result->num));
    EXPECT_EQ(call(u"ROUND", infinite, 2.0).result->num, infinite);
}

TEST_F(numberFunctionsTest, theFirstOfEqualsStays) {
    EXPECT_TRUE(std::signbit(call(u"MAX", -0.0, 0.0).result->num));
    EXPECT_FALSE(std::signbit(call(u"MIN", 0.0, -0.0).result->num));
    EXPECT_EQ(call(u"MAX", 1.0, notANumber, 2.0).result->num, 2.0);
}

TEST_F(numberFunctionsTest, piIsTheDoubleOfItsDigits) {
    EXPECT_EQ(call(u"PI").result->num, 3.141592653589793);
}

TEST_F(numberFunctionsTest, aTextIsCutAtItsFirstZeroUnit) {
    EXPECT_EQ(call(u"NUMBER", std::u16string_view(u"12\0003", 4)).result->num, 12.0);
    EXPECT_EQ(call(u"NUMBER", u"1e400").result->num, infinite);
    EXPECT_EQ(call(u"NUMBER", u"-1e400").result->num, -infinite);
    EXPECT_EQ(call(u"NUMBER", u"1e-400").result->num, 0.0);
}

}  // namespace
