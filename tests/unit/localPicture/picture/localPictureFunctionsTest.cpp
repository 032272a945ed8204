// The functions of the language on colours and pictures, in a process that does not stand on the
// toolkit: pictures are converted by the library beside the programs where that is built.
#include "localPicture/picture/localPictureInstall.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "picture/localPictureModule.h"

namespace {

#ifdef KORVO_PICTURE_MODULE
std::u16string binFolder() {
    const char* const folder = std::getenv("KORVO_BIN_DIR");
    return folder == nullptr ? u"." : localString::fromUtf8(folder);
}
#endif

struct outcome {
    int status;
    localSlot result;
};

localSlot argument(double number) {
    localSlot slot = localSlot::reserve();
    slot->setVal(number);
    return slot;
}
localSlot argument(std::u16string_view text) {
    localSlot slot = localSlot::reserve();
    slot->setVal(localText(text));
    return slot;
}

template <class... Values>
outcome call(std::u16string_view name, const Values&... values) {
    localContextUTF8 context;
    std::vector<localSlot> slots;
    (slots.push_back(argument(values)), ...);
    std::vector<localValueDescription*> pointers;
    for (const localSlot& slot : slots) {
        pointers.push_back(slot.get());
    }
    const localArguments args(pointers);
    outcome out{localErrorTypeOK, {}};
    const bool done = localLibrary::call(out.status, &context, name, &args, out.result.asResult());
    EXPECT_EQ(done, out.status == localErrorTypeOK);
    return out;
}

// Records what it is asked and answers with fixed texts.
class recordingConverter final : public localPictureConverter {
public:
    std::u16string pngAsBase64(std::string_view bytes) const override {
        file = bytes;
        return u"PNG";
    }
    std::optional<std::u16string> partAsBase64(std::u16string_view wanted,
                                               const localPictureArea& wantedArea) const override {
        picture = wanted;
        area = wantedArea;
        return inside ? std::optional<std::u16string>(u"PART") : std::nullopt;
    }

    mutable std::string file;
    mutable std::u16string picture;
    mutable localPictureArea area;
    bool inside = true;
};

class localPictureFunctionsTest : public testing::Test {
protected:
    void SetUp() override { localPictureInstall(converter); }

    static recordingConverter converter;
};

recordingConverter localPictureFunctionsTest::converter;

TEST_F(localPictureFunctionsTest, colorGivesANumber) {
    EXPECT_EQ(call(u"COLOR", u"white").result->num, 16777215.0);
    EXPECT_EQ(call(u"COLOR", u"тёмно-красный").result->num, 0x800000);
    EXPECT_EQ(call(u"COLOR", u"MAGENTA").result->num, 0xff00ff);
    EXPECT_EQ(call(u"ЦВЕТ", u"Синий").result->num, 255.0);
    EXPECT_EQ(call(u"COLOR", u"no such colour").result->num, 0.0);
    EXPECT_EQ(call(u"COLOR").status, 31);
    EXPECT_EQ(call(u"COLOR", 1.0).status, 33);
}

TEST_F(localPictureFunctionsTest, aFileIsHandedOverWhole) {
    std::ofstream("picture.bin", std::ios::binary) << std::string("a\0b\r\n\xFF", 6);
    const outcome out = call(u"PIXMAPASBASE64FROMFILEGET", u"picture.bin");
    EXPECT_EQ(out.status, localErrorTypeOK);
    EXPECT_EQ(out.result->wStr.view(), u"PNG");
    EXPECT_EQ(converter.file, std::string("a\0b\r\n\xFF", 6));
}

TEST_F(localPictureFunctionsTest, aFileThatIsNotThereIsStatus23) {
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"missing.png").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u".").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET").status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", 1.0).status, 33);
}

TEST_F(localPictureFunctionsTest, theAreaIsHandedOverInWholePixels) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"AAAA", 1.9, 2.0).result->wStr.view(), u"PART");
    EXPECT_EQ(converter.picture, u"AAAA");
    EXPECT_EQ(converter.area.x, 1);
    EXPECT_EQ(converter.area.y, 2);
    EXPECT_FALSE(converter.area.width);
    EXPECT_FALSE(converter.area.height);
    call(u"PIXMAPASBASE64PARTGET", u"AAAA", 1.0, 2.0, 3.0);
    EXPECT_EQ(converter.area.width, 3);
    EXPECT_FALSE(converter.area.height);
    call(u"PIXMAPASBASE64PARTGET", u"AAAA", 0.0, 0.0, 0.0, 1e300);
    EXPECT_EQ(converter.area.width, 0);
    EXPECT_EQ(converter.area.height, std::numeric_limits<int>::max());
}

TEST_F(localPictureFunctionsTest, numbersBelow0AreStatus32) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", -1.0, 0.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, -1.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, -1.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, 1.0, -1e300).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", std::nan(""), 0.0).status, 32);
}

TEST_F(localPictureFunctionsTest, argumentsAreChecked) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0).status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, 0.0, 0.0, 0.0).status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", 1.0, 0.0, 0.0).status, 33);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", u"0", 0.0).status, 33);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, u"1").status, 33);
}

TEST_F(localPictureFunctionsTest, anAreaOutsideIsStatus32) {
    converter.inside = false;
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"AAAA", 1.0, 2.0).status, 32);
    converter.inside = true;
}

TEST(localPictureModuleTest, aFolderWithoutTheLibraryHasNoConverter) {
    EXPECT_EQ(localPictureModuleLoad(u"."), nullptr);
    EXPECT_EQ(localPictureModuleLoad(u""), nullptr);
    std::ofstream("localPictureModule.so") << "no library";
    EXPECT_EQ(localPictureModuleLoad(u"."), nullptr);
}

#ifdef KORVO_PICTURE_MODULE
// A PNG of 2 by 1 pixels, made by hand so that this test needs no toolkit either.
constexpr std::u16string_view twoPixels = u"iVBORw0KGgoAAAANSUhEUgAAAAIAAAABCAIAAAB7QOjdAAAA"
                                          u"DUlEQVR4nGP4zwAE/wEHAAH/4iOeWQAAAABJRU5ErkJggg==";

TEST(localPictureModuleTest, theLibraryBesideTheProgramsConverts) {
    const localPictureConverter* const converter = localPictureModuleLoad(binFolder());
    ASSERT_NE(converter, nullptr);
    localPictureInstall(*converter);
    const outcome whole = call(u"PIXMAPASBASE64PARTGET", twoPixels, 0.0, 0.0);
    ASSERT_EQ(whole.status, localErrorTypeOK);
    EXPECT_TRUE(whole.result->wStr.view().starts_with(u"iVBORw0KGgo"));
    const outcome part = call(u"PIXMAPASBASE64PARTGET", twoPixels, 1.0, 0.0);
    ASSERT_EQ(part.status, localErrorTypeOK);
    EXPECT_NE(part.result->wStr.view(), whole.result->wStr.view());
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", twoPixels, 3.0, 0.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", twoPixels, 2.0, 1.0).result->wStr.view(), u"");
}

TEST(localPictureModuleTest, aFileBecomesAPng) {
    const localPictureConverter* const converter = localPictureModuleLoad(binFolder());
    ASSERT_NE(converter, nullptr);
    localPictureInstall(*converter);
    std::ofstream("two.png", std::ios::binary) << localString::fromBase64(twoPixels);
    const outcome out = call(u"PIXMAPASBASE64FROMFILEGET", u"two.png");
    ASSERT_EQ(out.status, localErrorTypeOK);
    EXPECT_TRUE(out.result->wStr.view().starts_with(u"iVBORw0KGgo"));
    std::ofstream("text.png", std::ios::binary) << "no picture";
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"text.png").result->wStr.view(), u"");
    std::ofstream("empty.png", std::ios::binary);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"empty.png").result->wStr.view(), u"");
}
#endif

}  // namespace
