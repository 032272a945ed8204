// The function of the language on colours.
#include "localPicture/color/localPictureExtension.h"

#include "library/libraryCall.h"

namespace {

using localPictureExtensionTest = libraryTest;

TEST_F(localPictureExtensionTest, colorGivesANumber) {
    localExtensionAdd(localPictureExtension);
    EXPECT_EQ(call(u"COLOR", u"white").result->num, 16777215.0);
    EXPECT_EQ(call(u"COLOR", u"тёмно-красный").result->num, 0x800000);
    EXPECT_EQ(call(u"COLOR", u"MAGENTA").result->num, 0xff00ff);
    EXPECT_EQ(call(u"ЦВЕТ", u"Синий").result->num, 255.0);
    EXPECT_EQ(call(u"COLOR", u"no such colour").result->num, 0.0);
    EXPECT_EQ(call(u"COLOR").status, 31);
    EXPECT_EQ(call(u"COLOR", 1.0).status, 33);
}

}  // namespace
