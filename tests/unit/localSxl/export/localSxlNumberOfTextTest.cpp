#include "export/localSxlNumberOfText.h"

#include <gmock/gmock.h>

#include "localInterpretatorUTF8/text/localNumberText.h"
#include "support/language.h"

namespace {

TEST(localSxlNumberOfText, whatStringWritesIsTheSameNumber) {
    for (const double value : {0.0, 1.0, -1.0, 0.5, 0.1, -0.1, 1234.5, 999999999999999.0, 1e20,
                               -1e20, 1.5e300, 1e-7, 1.0 / 3.0, 123456789.125}) {
        const auto found = localSxlNumberOfText(numberToString(value));
        ASSERT_TRUE(found) << value;
        EXPECT_EQ(found->value, value);
    }
}

TEST(localSxlNumberOfText, whatFormatWritesIsTheSameNumber) {
    for (const char16_t* const format :
         {u"Ч15.2", u"N15.2", u"Ч15.2.,", u"Ч15.2,'", u"Ч20.2,.", u"Ч15.2,"}) {
        for (const double value : {0.25, 1.5, -1.5, 1234.75, -1234567.25}) {
            const std::u16string text = numberFormat(value, format);
            const auto found = localSxlNumberOfText(text);
            // A point that groups would be taken for one that does not.
            const bool isOther = std::u16string_view(format) == u"Ч20.2,.";
            ASSERT_TRUE(found || isOther) << utf8(text);
            EXPECT_TRUE(isOther || found->value == value) << utf8(text);
            EXPECT_TRUE(isOther || found->decimals == 2) << utf8(text);
        }
    }
    EXPECT_TRUE(localSxlNumberOfText(u"1,234,567")->isGrouped);
    EXPECT_EQ(localSxlNumberOfText(u"1,234,567")->value, 1234567.0);
    EXPECT_EQ(localSxlNumberOfText(u"1 234")->value, 1234.0);
    EXPECT_EQ(localSxlNumberOfText(u"1.234")->value, 1.234);
    EXPECT_EQ(localSxlNumberOfText(u"12,5")->value, 12.5);
}

TEST(localSxlNumberOfText, whatWouldLoseStaysAText) {
    for (const char16_t* const text : {u"",
                                       u" ",
                                       u"-",
                                       u"00042",
                                       u"-0005",
                                       u"007.5",
                                       u"1234567890123456",
                                       u"=1+1",
                                       u"1x",
                                       u"x1",
                                       u"1e5",
                                       u"1e+",
                                       u"1E+20",
                                       u"1,234",
                                       u"1.",
                                       u".5",
                                       u"1,,2",
                                       u"1 2",
                                       u"12 34",
                                       u"1.2.3",
                                       u"1,2,3",
                                       u"+1",
                                       u"--1",
                                       u"1 234,567,890",
                                       u"0x10",
                                       u"inf",
                                       u"nan",
                                       u"1,234,56",
                                       u"#FORMAT ERROR",
                                       u"21.11.2026",
                                       u"12:30"}) {
        EXPECT_FALSE(localSxlNumberOfText(text)) << utf8(text);
    }
}

}  // namespace
