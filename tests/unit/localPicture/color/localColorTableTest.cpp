// Colours by name.
#include "localPicture/color/localColorTable.h"

#include <gmock/gmock.h>

#include <string>

namespace {

TEST(localColorTableTest, everyRowIsFoundByBothNamesInAnyCase) {
    ASSERT_EQ(localColorTable::rows().size(), 16U);
    for (const localColorRow& row : localColorTable::rows()) {
        EXPECT_EQ(localColorTable::globalColorFind(row.english), row.globalColor);
        EXPECT_EQ(localColorTable::globalColorFind(row.russian), row.globalColor);
    }
    EXPECT_EQ(localColorTable::globalColorFind(u"DARKMAGENTA"), 17);
    EXPECT_EQ(localColorTable::globalColorFind(u"ТЁМНО-ЗЕЛЁНЫЙ"), 14);
    EXPECT_EQ(localColorTable::globalColorFind(u"чёрный"), 2);
}

TEST(localColorTableTest, globalColoursAreDifferent) {
    unsigned seen = 0;
    for (const localColorRow& row : localColorTable::rows()) {
        ASSERT_GE(row.globalColor, 2);
        ASSERT_LE(row.globalColor, 17);
        EXPECT_EQ(seen >> row.globalColor & 1, 0U) << row.globalColor;
        seen |= 1U << row.globalColor;
    }
}

TEST(localColorTableTest, unknownNamesMeanBlack) {
    for (const std::u16string_view name :
         {u"", u"pink", u" white", u"white ", u"#ffffff", u"Темно-зелёный", u"3"}) {
        EXPECT_EQ(localColorTable::globalColorFind(name), 2);
        EXPECT_EQ(localColorTable::rgbFind(name), 0U);
    }
}

TEST(localColorTableTest, textsAndNumbersAgree) {
    for (const localColorRow& row : localColorTable::rows()) {
        const std::string digits(row.text.begin() + 1, row.text.end());
        EXPECT_EQ(row.text.front(), u'#');
        EXPECT_EQ(std::stoul(digits, nullptr, 16), row.number) << digits;
    }
}

// The row of magenta shows the text and number of white; the colour itself is its own.
TEST(localColorTableTest, magentaIsWhiteInTheListOnly) {
    const localColorRow& row = localColorTable::rows()[1];
    EXPECT_EQ(row.english, u"magenta");
    EXPECT_EQ(row.text, u"#ffffff");
    EXPECT_EQ(row.number, 0xffffffU);
    EXPECT_EQ(localColorTable::rgbFind(u"Magenta"), 0xff00ffU);
    EXPECT_EQ(localColorTable::rgbFind(u"gray"), 0xa0a0a4U);
    EXPECT_EQ(localColorTable::rgbFind(u"Красный"), 0xff0000U);
}

}  // namespace
