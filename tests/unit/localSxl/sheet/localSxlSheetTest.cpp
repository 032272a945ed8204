#include "localSxl/sheet/localSxlSheet.h"

#include <gmock/gmock.h>

#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localSxl/script/localSxlExtension.h"
#include "localSxl/sheet/localSxlNumber.h"
#include "support/language.h"

namespace {

class countingWatcher : public localSxlSheet::Watcher {
public:
    void sheetChanged() noexcept override { ++count; }
    int count = 0;
};

class localSxlSheetTest : public languageTest {
protected:
    localSxlSheet sheet{localContextUTF8::globalContext};
};

TEST_F(localSxlSheetTest, headersAreTheNumbers) {
    EXPECT_EQ(utf8(sheet.cellText({0, 4294967295})), "4294967295");
    EXPECT_EQ(utf8(sheet.cellText({7, 0})), "7");
    EXPECT_EQ(utf8(sheet.cellText({0, 0})), "0");
}

TEST_F(localSxlSheetTest, rowsMayHaveHeightsOfTheirOwn) {
    sheet.rowHeightSet(3, 50);
    sheet.defaultRowHeightSet(15);
    EXPECT_EQ(sheet.rowHeight(3), 50);
    EXPECT_EQ(sheet.rowHeight(2), 15);
    sheet.clear();
    EXPECT_EQ(sheet.rowHeight(3), 20);
}

TEST_F(localSxlSheetTest, aFontKeepsWhatIsNotSaid) {
    localSxlCellFont font;
    EXPECT_EQ(utf8(font.familyInText()), "Sans Serif");
    EXPECT_EQ(font.sizeInText(), 8);
    EXPECT_EQ(font.flagsInText(), 0);
    font.set(u"Arial", 12, localSxlCellFont::bold);
    font.set({}, 0, -1);
    EXPECT_EQ(utf8(font.familyInText()), "Arial");
    EXPECT_EQ(font.sizeInText(), 12);
    EXPECT_EQ(font.flagsInText(), 1);
}

TEST_F(localSxlSheetTest, watchersHearOfEachChange) {
    countingWatcher watcher;
    countingWatcher other;
    sheet.watch(&watcher);
    sheet.watch(&other);
    sheet.cellTextSet({1, 1}, u"x");
    sheet.cellFontSet({1, 1}, u"x", 1, 1);
    sheet.cellColorSet({1, 1}, {});
    sheet.cellAlignmentSet({1, 1}, 1, 1);
    sheet.cellImageSet({1, 1}, QImage());
    sheet.columnWidthSet(1, 1);
    sheet.rowHeightSet(1, 1);
    sheet.defaultRowHeightSet(1);
    EXPECT_EQ(watcher.count, 8);
    sheet.watchEnd(&watcher);
    sheet.clear();
    EXPECT_EQ(watcher.count, 8);
    EXPECT_EQ(other.count, 9);
    sheet.watchEnd(&other);
}

TEST_F(localSxlSheetTest, theContextIsTheInnermostThatStands) {
    localContextUTF8 outer;
    auto inner = std::make_unique<localContextUTF8>(&outer);
    const localSxlSheet made(inner.get());
    EXPECT_EQ(made.context(), inner.get());
    inner.reset();
    EXPECT_EQ(made.context(), &outer);
    EXPECT_EQ(localSxlSheet(nullptr).context(), nullptr);
}

TEST_F(localSxlSheetTest, numbersAreRounded) {
    EXPECT_EQ(localSxlPosition(0.5), 1U);
    EXPECT_EQ(localSxlPosition(0.49), 0U);
    EXPECT_EQ(localSxlPosition(-1), 0U);
    EXPECT_EQ(localSxlPosition(4294967295.0), 4294967295U);
    EXPECT_EQ(localSxlPosition(4294967295.5), 0U);
    EXPECT_EQ(localSxlPosition(std::nan("")), 0U);
    EXPECT_EQ(localSxlPosition(HUGE_VAL), 0U);
    EXPECT_EQ(localSxlInteger(-0.5), -1);
    EXPECT_EQ(localSxlInteger(1e300), 2147483647);
    EXPECT_EQ(localSxlInteger(-1e300), -2147483647 - 1);
    EXPECT_EQ(localSxlInteger(std::nan("")), 0);
}

// --- as a class

class localSxlClassTest : public languageTest {
protected:
    localSxlClassTest() { value.objectBind(sheet, localSxlSheet::classDeclaration()); }

    int statusOf(std::u16string_view name, const localArguments* args, void* object) {
        int status = localErrorTypeOK;
        localSlot result;
        localSxlSheet::classDeclaration()->classImplementationMethodFunction(
            status, localContextUTF8::globalContext, object, name, args, result.asResult());
        return status;
    }

    localSxlSheet* sheet = new localSxlSheet(nullptr);
    localValueDescription value;
};

TEST_F(localSxlClassTest, isDeclared) {
    const localClassDeclaration& declaration = *localSxlSheet::classDeclaration();
    EXPECT_EQ(utf8(declaration.nameEng), "TABLEDOCUMENT");
    EXPECT_EQ(utf8(declaration.nameRus), "ТАБЛИЧНЫЙДОКУМЕНТ");
    EXPECT_EQ(utf8(declaration.nameShort), "Табличный документ");
    EXPECT_EQ(utf8(declaration.description), "класс Табличный документ");
    EXPECT_EQ(localSxlSheet::of(value), sheet);
    EXPECT_EQ(localSxlSheet::of(localValueDescription()), nullptr);
}

TEST_F(localSxlClassTest, callsWithoutObjectArgumentsOrMethodAreRefused) {
    const localArguments none;
    EXPECT_EQ(statusOf(u"CLEAR", &none, nullptr), 29);
    EXPECT_EQ(statusOf(u"CLEAR", nullptr, sheet), 16);
    EXPECT_EQ(statusOf(u"NOTHING", &none, sheet), 27);
    EXPECT_EQ(statusOf(u"SHOW", &none, sheet), 26);
}

TEST_F(localSxlClassTest, aResultThatIsThereHalts) {
    EXPECT_HALT(
        {
            const localArguments none;
            int status = localErrorTypeOK;
            void* object = sheet;
            localValueDescription full;
            localValueDescription* result = &full;
            localSxlSheet::classDeclaration()->classImplementationMethodFunction(
                status, nullptr, object, u"CLEAR", &none, result);
        },
        "localSxl::classImplementationMethodFunction() result must be NULL!");
}

TEST_F(localSxlClassTest, aPictureIsHeldAsAnImage) {
    const std::u16string onePixel =
        u"iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSu"
        u"QmCC";
    for (const auto& [text, isPicture] :
         {std::pair(onePixel, true), std::pair(std::u16string(u"no picture"), false)}) {
        localSlot row = localSlot::reserve();
        row->setVal(1.0);
        localSlot picture = localSlot::reserve();
        picture->setVal(localText(text));
        localValueDescription* const values[] = {&*row, &*row, &*picture};
        const localArguments args = values;
        EXPECT_EQ(statusOf(u"CELLPIXMAPASBASE64SET", &args, sheet), localErrorTypeOK);
        const QImage& image = *sheet->cells().find({1, 1})->image;
        EXPECT_EQ(image.isNull(), !isPicture);
        EXPECT_EQ(image.width(), isPicture ? 1 : 0);
    }
}

TEST_F(localSxlClassTest, theCallingContextIsTheSheets) {
    localContextUTF8 scope;
    int status = localErrorTypeOK;
    localSlot made;
    void* none = nullptr;
    ASSERT_TRUE(localSxlSheet::classDeclaration()->methodExec(status, &scope, none, u"", nullptr,
                                                              made.asResult()));
    EXPECT_EQ(localSxlSheet::of(*made)->context(), &scope);
}

}  // namespace
