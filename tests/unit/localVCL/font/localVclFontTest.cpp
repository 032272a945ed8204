// Fonts by number.
#include "localVCL/font/localVclFont.h"

#include <gmock/gmock.h>

#include <QFontInfo>
#include <QFontMetrics>
#include <QRawFont>

namespace {

TEST(localVclFontTest, familiesAndSizes) {
    const struct {
        int number;
        const char* family;
        int points;
    } rows[] = {
        {0, "MS Sans Serif (Cyrilic)", 8}, {1, "Arial (Cyrilic)", 8},
        {2, "Arial (Cyrilic)", 8},         {3, "Courier (Cyrilic)", 10},
        {4, "MS Sans Serif (Cyrilic)", 8}, {5, "MS Sans Serif (Cyrilic)", 8},
        {6, "Arial (Cyrilic)", 8},
    };
    for (const auto& row : rows) {
        const QFont& font = localVclFont(row.number);
        EXPECT_EQ(font.family().toStdString(), row.family) << row.number;
        EXPECT_EQ(font.pointSize(), row.points) << row.number;
        EXPECT_EQ(font.weight(), QFont::Normal) << row.number;
        EXPECT_FALSE(font.italic()) << row.number;
    }
}

TEST(localVclFontTest, fontsAreShared) {
    EXPECT_EQ(&localVclFont(3), &localVclFont(3));
    EXPECT_NE(&localVclFont(3), &localVclFont(1));
}

TEST(localVclFontTest, otherNumbersMeanTheFirst) {
    EXPECT_EQ(&localVclFont(-1), &localVclFont(0));
    EXPECT_EQ(&localVclFont(7), &localVclFont(0));
}

TEST(localVclFontTest, numberThreeHasAFixedPitch) {
    const QFontMetrics metrics(localVclFont(3));
    EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W'));
    EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'Щ'));
    const QFontMetrics proportional(localVclFont(1));
    EXPECT_NE(proportional.horizontalAdvance(u'i'), proportional.horizontalAdvance(u'W'));
}

TEST(localVclFontTest, allHaveRussianLetters) {
    for (int number = 0; number < localVclFontCount; ++number) {
        const QRawFont font = QRawFont::fromFont(localVclFont(number), QFontDatabase::Cyrillic);
        for (const char16_t letter : u"АЯаяЁё№") {
            EXPECT_TRUE(letter == 0 || font.supportsCharacter(QChar(letter))) << number;
        }
    }
}

}  // namespace
