// Colours by name as the toolkit knows them.
#include "localVCL/color/localVclColor.h"

#include <gmock/gmock.h>

#include "localPicture/color/localColorTable.h"

namespace {

TEST(localVclColorTest, namesLeadToGlobalColours) {
    EXPECT_EQ(localVclColor(u"white"), Qt::white);
    EXPECT_EQ(localVclColor(u"ПУРПУРНЫЙ"), Qt::magenta);
    EXPECT_EQ(localVclColor(u"Тёмно-пурпурный"), Qt::darkMagenta);
    EXPECT_EQ(localVclColor(u"lightGray"), Qt::lightGray);
    EXPECT_EQ(localVclColor(u"Жёлтый"), Qt::yellow);
    EXPECT_EQ(localVclColor(u"no such colour"), Qt::black);
}

// What the language tells without the toolkit is what the toolkit draws.
TEST(localVclColorTest, numbersAreThoseOfTheToolkit) {
    for (const localColorRow& row : localColorTable::rows()) {
        EXPECT_EQ(localColorTable::rgbFind(row.english),
                  localVclColorNumber(QColor(localVclColor(row.english))))
            << row.globalColor;
    }
    EXPECT_EQ(localVclColorNumber(QColor(1, 2, 3)), 0x010203U);
}

}  // namespace
