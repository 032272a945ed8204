#include "localInterpretatorUTF8/value/localValueDescription.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "support/countedClass.h"
#include "support/language.h"

namespace {

class localValueDescriptionTest : public languageTest {
protected:
    localValueDescriptionTest() : objectsBefore_(countedObject::alive) {}
    ~localValueDescriptionTest() override {
        EXPECT_EQ(countedObject::alive, objectsBefore_) << "objects left alive";
    }

    // A new object of the counted class in a cell, which is then its only holder.
    static countedObject* bindNew(localValueDescription& cell) {
        auto* object = new countedObject;
        cell.objectBind(object, countedClass());
        return object;
    }

private:
    std::int64_t objectsBefore_;
};

using valueTest = localValueDescriptionTest;

// A class without a link function: its objects are neither counted nor destroyed through a value.
localClassDeclaration& uncountedClass() {
    static localClassDeclaration* const declaration = [] {
        auto* made = new localClassDeclaration;
        made->nameEng = u"UNCOUNTED";
        made->nameRus = u"НЕСЧИТАЕМЫЙ";
        return made;
    }();
    return *declaration;
}

TEST_F(valueTest, aNewCellIsTheNumberZero) {
    const localValueDescription cell;
    EXPECT_EQ(cell.type, localValueTypeNUMBER);
    EXPECT_EQ(cell.num, 0.0);
    EXPECT_EQ(cell.linkCounter, 0U);
    EXPECT_EQ(cell.objClass, nullptr);
    EXPECT_EQ(cell.pointer, nullptr);
    EXPECT_TRUE(cell.wStr.empty());
    EXPECT_EQ(cell.toString().view(), u"0");
}

TEST_F(valueTest, typeCodesAreFixed) {
    EXPECT_EQ(localValueTypeNUMBER, 0);
    EXPECT_EQ(localValueTypeSTRING, 1);
    EXPECT_EQ(localValueTypeBOOLEAN, 2);
    EXPECT_EQ(localValueTypeOBJECT, 3);
}

TEST_F(valueTest, everyCellIsCountedWhileItLives) {
    const std::int64_t before = localValueDescription::counterStaticTotal;
    {
        localValueDescription cell;
        EXPECT_EQ(localValueDescription::counterStaticTotal, before + 1);
        const localValueDescription copy(cell);
        EXPECT_EQ(localValueDescription::counterStaticTotal, before + 2);
        const localValueDescription moved(std::move(cell));
        EXPECT_EQ(localValueDescription::counterStaticTotal, before + 3);
    }
    EXPECT_EQ(localValueDescription::counterStaticTotal, before);
}

TEST_F(valueTest, aCopyHasTheContentAndNoHolders) {
    localValueDescription cell;
    cell.setVal(u"текст");
    cell.linkCounter = 5;
    const localValueDescription copy(cell);
    EXPECT_EQ(copy.type, localValueTypeSTRING);
    EXPECT_EQ(copy.wStr.view(), u"текст");
    EXPECT_EQ(copy.linkCounter, 0U);
    cell.linkCounter = 0;
}

TEST_F(valueTest, aMoveLeavesTheNumberZero) {
    localValueDescription cell;
    cell.setVal(u"текст");
    const localValueDescription moved(std::move(cell));
    EXPECT_EQ(moved.toString().view(), u"текст");
    EXPECT_EQ(cell.type, localValueTypeNUMBER);  // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(cell.toString().view(), u"0");
}

TEST_F(valueTest, textOfEveryKind) {
    localValueDescription cell;
    const auto text = [&] { return utf8(cell.toString()); };
    cell.setVal(2.5);
    EXPECT_EQ(text(), "2.5");
    cell.setVal(u"строка");
    EXPECT_EQ(text(), "строка");
    for (const auto& [number, word] : {std::pair{0.0, "ЛОЖЬ"}, {1.0, "ИСТИНА"}, {-1.0, "ИСТИНА"}}) {
        cell.reset();
        cell.type = localValueTypeBOOLEAN;
        cell.num = number;
        EXPECT_EQ(text(), word);
    }
    cell.num = std::nan("");
    EXPECT_EQ(text(), "ИСТИНА");
    cell.type = 17;
    EXPECT_EQ(text(), " **** Error *** при вызове метода toString() ");
    cell.reset();
    EXPECT_EQ(text(), "0");
}

TEST_F(valueTest, textOfAnObjectIsWhatItsMethodAnswers) {
    localValueDescription cell;
    EXPECT_EQ(utf8(cell.toString()), "0");
    bindNew(cell);
    EXPECT_EQ(utf8(cell.toString()), "counted");
    cell.reset();
    // No class at all, or a class without the method: the call fails and the text is empty.
    int object = 0;
    cell.objectBind(&object, nullptr);
    EXPECT_EQ(utf8(cell.toString()), "");
    cell.reset();
    cell.objectBind(&object, &uncountedClass());
    EXPECT_EQ(utf8(cell.toString()), "");
}

TEST_F(valueTest, numberOfEveryKind) {
    localValueDescription cell;
    cell.setVal(-2.5);
    EXPECT_EQ(cell.toNumber(), -2.5);
    const std::pair<const char16_t*, double> texts[] = {
        {u"12.5abc", 12.5}, {u"abc", 0.0}, {u"", 0.0}, {u" -3", -3.0}, {u"1e2", 100.0}};
    for (const auto& [text, number] : texts) {
        cell.setVal(text);
        EXPECT_EQ(cell.toNumber(), number) << utf8(text);
    }
    cell.setBoolean(true);
    EXPECT_EQ(cell.toNumber(), 1.0);
    cell.num = -7;
    EXPECT_EQ(cell.toNumber(), 1.0);
    cell.setBoolean(false);
    EXPECT_EQ(cell.toNumber(), 0.0);
    cell.type = -1;
    cell.num = 5;
    EXPECT_EQ(cell.toNumber(), 0.0);
    bindNew(cell);
    cell.toNumber();  // has no meaning and does not fail
}

TEST_F(valueTest, typeNames) {
    localValueDescription cell;
    const auto name = [&] { return utf8(cell.typeName()); };
    EXPECT_EQ(name(), "ЧИСЛО");
    cell.setVal(u"");
    EXPECT_EQ(name(), "СТРОКА");
    cell.setBoolean(false);
    EXPECT_EQ(name(), "БУЛЕВО");
    bindNew(cell);
    EXPECT_EQ(name(), "СЧИТАЕМЫЙ");
    cell.reset();
    int object = 0;
    cell.objectBind(&object, nullptr);
    EXPECT_EQ(name(), "ОБЪЕКТ");
    cell.reset();
    cell.type = 4;
    EXPECT_EQ(name(), "неизвестный тип");
}

TEST_F(valueTest, resetKeepsTheStaleText) {
    localValueDescription cell;
    cell.setVal(u"old");
    cell.reset();
    EXPECT_EQ(cell.type, localValueTypeNUMBER);
    EXPECT_EQ(cell.toString().view(), u"0");
    EXPECT_EQ(cell.wStr.view(), u"old");
    cell.setVal(7.0);
    EXPECT_EQ(cell.toString().view(), u"7");
    EXPECT_EQ(cell.wStr.view(), u"old");
}

TEST_F(valueTest, resetKeepsClassAndPointer) {
    localValueDescription cell;
    const countedObject* object = bindNew(cell);
    localValueDescription other(cell);
    cell.reset();
    EXPECT_EQ(cell.objClass, countedClass());
    EXPECT_EQ(cell.pointer, object);
    EXPECT_FALSE(cell.isLive());
    EXPECT_EQ(object->linkCounter, 1);
}

TEST_F(valueTest, assigningCopiesEveryKind) {
    localValueDescription source;
    localValueDescription target;
    target.setVal(u"before");
    source.setVal(3.0);
    target.assign(source);
    EXPECT_EQ(target.toString().view(), u"3");
    source.setVal(u"text");
    target.assign(source);
    EXPECT_EQ(target.toString().view(), u"text");
    source.setBoolean(true);
    target.assign(source);
    EXPECT_EQ(target.type, localValueTypeBOOLEAN);
    EXPECT_EQ(target.toString().view(), u"ИСТИНА");
}

TEST_F(valueTest, aStringCellAssignedToItselfBecomesZero) {
    localValueDescription cell;
    cell.setVal(u"text");
    cell.assign(cell);
    EXPECT_EQ(cell.type, localValueTypeNUMBER);
    EXPECT_EQ(cell.toString().view(), u"0");
}

TEST_F(valueTest, anObjectCountsTheCellsThatHoldIt) {
    localValueDescription first;
    const countedObject* object = bindNew(first);
    EXPECT_TRUE(first.isLive());
    EXPECT_EQ(object->linkCounter, 1);
    EXPECT_EQ(first.objectLinks(), 1);
    {
        const localValueDescription copy(first);
        EXPECT_EQ(object->linkCounter, 2);
    }
    EXPECT_EQ(object->linkCounter, 1);
    localValueDescription assigned;
    assigned.assign(first);
    EXPECT_EQ(object->linkCounter, 2);
    localValueDescription taken;
    taken.take(assigned);
    EXPECT_EQ(object->linkCounter, 2) << "taking changes no count";
    EXPECT_EQ(assigned.type, localValueTypeNUMBER);
    first.setVal(1.0);
    EXPECT_EQ(object->linkCounter, 1);
    const std::int64_t alive = countedObject::alive;
    taken.setVal(u"gone");
    EXPECT_EQ(countedObject::alive, alive - 1);
}

TEST_F(valueTest, everyWriterLetsGoOfTheObject) {
    const std::int64_t alive = countedObject::alive;
    localValueDescription cell;
    const localValueDescription number;
    for (int writer = 0; writer < 6; ++writer) {
        bindNew(cell);
        EXPECT_EQ(countedObject::alive, alive + 1);
        switch (writer) {
            case 0:
                cell.reset();
                break;
            case 1:
                cell.setVal(1.0);
                break;
            case 2:
                cell.setVal(u"text");
                break;
            case 3:
                cell.setBoolean(true);
                break;
            case 4:
                cell.assign(number);
                break;
            default:
                bindNew(cell);
                EXPECT_EQ(countedObject::alive, alive + 1) << "the second object stays";
                cell.reset();
                break;
        }
        EXPECT_EQ(countedObject::alive, alive) << "writer " << writer;
    }
}

TEST_F(valueTest, assigningTheSameObjectToACellThatSharesItKeepsTheCount) {
    localValueDescription first;
    const countedObject* object = bindNew(first);
    localValueDescription second(first);
    second.assign(first);
    EXPECT_EQ(object->linkCounter, 2);
    second.assign(second);  // the count is above 1, so letting go does not destroy
    EXPECT_EQ(object->linkCounter, 1) << "the cell reset itself before it copied itself";
    EXPECT_EQ(second.type, localValueTypeNUMBER);
}

TEST_F(valueTest, theLastHolderAssignedToItselfDestroysTheObject) {
    localValueDescription cell;
    bindNew(cell);
    const std::int64_t alive = countedObject::alive;
    cell.assign(cell);
    EXPECT_EQ(countedObject::alive, alive - 1);
    EXPECT_FALSE(cell.isLive());
}

TEST_F(valueTest, bindingTheSameObjectOnlyChangesItsClass) {
    localValueDescription cell;
    countedObject* object = bindNew(cell);
    cell.objectBind(object, countedClass());
    EXPECT_EQ(object->linkCounter, 1);
    cell.objectBind(object, nullptr);
    EXPECT_EQ(cell.objClass, nullptr);
    EXPECT_EQ(object->linkCounter, 1);
    EXPECT_FALSE(cell.isLive());
    cell.objectBind(object, countedClass());
    EXPECT_EQ(object->linkCounter, 1);
}

TEST_F(valueTest, objectsOfAClassWithoutLinkFunctionAreNeitherCountedNorDestroyed) {
    int object = 12;
    localValueDescription cell;
    cell.objectBind(&object, &uncountedClass());
    EXPECT_FALSE(cell.isLive());
    localValueDescription copy(cell);
    cell.reset();
    copy.reset();
    EXPECT_EQ(object, 12);
}

TEST_F(valueTest, aNullObjectIsNotLive) {
    localValueDescription cell;
    cell.objectBind(nullptr, countedClass());
    EXPECT_EQ(cell.type, localValueTypeOBJECT);
    EXPECT_FALSE(cell.isLive());
    EXPECT_FALSE(isClass(cell, *countedClass()));
}

TEST_F(valueTest, aMillionNestedObjectsAreDestroyed) {
    const std::int64_t alive = countedObject::alive;
    constexpr int depth = 1'000'000;
    {
        localValueDescription outermost;
        for (int i = 0; i < depth; ++i) {
            auto* object = new countedObject;
            object->held.take(outermost);
            outermost.objectBind(object, countedClass());
        }
        EXPECT_EQ(countedObject::alive, alive + depth);
    }
    EXPECT_EQ(countedObject::alive, alive);
}

TEST_F(valueTest, anObjectThatHoldsItselfIsNeverDestroyed) {
    localValueDescription cell;
    countedObject* object = bindNew(cell);
    object->held.assign(cell);
    EXPECT_EQ(object->linkCounter, 2);
    cell.reset();
    EXPECT_EQ(object->linkCounter, 1);
    const localValueDescription holder(object->held);
    object->held.reset();  // the cycle is opened by hand
}

TEST_F(valueTest, equalClassNamesMakeOneClass) {
    localValueDescription cell;
    bindNew(cell);
    localClassDeclaration namesake;
    namesake.nameEng = u"COUNTED";
    EXPECT_TRUE(isClass(cell, *countedClass()));
    EXPECT_TRUE(isClass(cell, namesake));
    namesake.nameEng = u"COUNTED2";
    EXPECT_FALSE(isClass(cell, namesake));
    cell.setVal(u"COUNTED");
    EXPECT_FALSE(isClass(cell, *countedClass()));
}

TEST_F(valueTest, dumpShowsAllFields) {
    localValueDescription cell;
    cell.setVal(u"abc");
    const std::string address = utf8(addressText(&cell));
    EXPECT_EQ(utf8(cell.dump()), " address: [" + address +
                                     "]  Type: [СТРОКА]  num: [0]  pointer: [0x0]  wStr: [abc]  "
                                     "Val: [abc] ");
    cell.setVal(2.5);
    EXPECT_EQ(utf8(cell.dump()), " address: [" + address +
                                     "]  Type: [ЧИСЛО]  num: [2.5]  pointer: [0x0]  wStr: [abc]  "
                                     "Val: [2.5] ");
    const countedObject* object = bindNew(cell);
    EXPECT_EQ(utf8(cell.dump()), " address: [" + address +
                                     "]  Type: [СЧИТАЕМЫЙ]  className: [COUNTED]  num: [0]  "
                                     "pointer: [" +
                                     utf8(addressText(object)) + "]  wStr: [abc]  Val: [counted] ");
    cell.reset();
    int other = 0;
    cell.objectBind(&other, nullptr);
    EXPECT_THAT(utf8(cell.dump()),
                testing::HasSubstr("]  Type: [ОБЪЕКТ]  className: [<unknown class>]  num: [0] "));
}

TEST_F(valueTest, dumpCutsLongTexts) {
    struct Row {
        std::size_t length, shown;
        bool dots;
    };
    for (const Row& row : {Row{30, 30, false}, {31, 31, true}, {50, 50, true}, {60, 50, true}}) {
        localValueDescription cell;
        cell.setVal(std::u16string(row.length, u'ж'));
        const std::string shown = utf8(std::u16string(row.shown, u'ж')) + (row.dots ? "..." : "");
        EXPECT_THAT(utf8(cell.dump()),
                    testing::EndsWith("  wStr: [" + shown + "]  Val: [" + shown + "] "))
            << row.length;
    }
}

TEST_F(valueTest, addressesAreHexadecimal) {
    EXPECT_EQ(addressText(nullptr), u"0x0");
    EXPECT_EQ(addressText(reinterpret_cast<const void*>(0xABC0)), u"0xabc0");
}

TEST_F(valueTest, methodsNeedAnObjectAndAClass) {
    localValueDescription cell;
    int status = localErrorTypeOK;
    const localArguments none;
    localSlot result;
    EXPECT_FALSE(cell.valueMethodExec(status, nullptr, u"toString", &none, result.asResult()));
    EXPECT_EQ(status, 51);
    int object = 0;
    cell.objectBind(&object, nullptr);
    EXPECT_FALSE(cell.valueMethodExec(status, nullptr, u"toString", &none, result.asResult()));
    EXPECT_EQ(status, 14);
    cell.reset();
    bindNew(cell);
    EXPECT_TRUE(cell.valueMethodExec(status, nullptr, u"строка", &none, result.asResult()));
    EXPECT_EQ(result->toString().view(), u"counted");
    EXPECT_FALSE(cell.valueMethodExec(status, nullptr, u"nothing", &none, result.asResult()));
    EXPECT_EQ(status, 27);
}

TEST_F(valueTest, attributesAreReadAndWrittenThroughTheValue) {
    localValueDescription cell;
    int status = localErrorTypeOK;
    localSlot result;
    EXPECT_FALSE(cell.getAttr(status, nullptr, u"attribInt", result.asResult()));
    EXPECT_EQ(status, 51);
    EXPECT_TRUE(result) << "the slot stays reserved on failure";
    localValueDescription newValue;
    newValue.setVal(5.9);
    EXPECT_FALSE(cell.setAttr(status, nullptr, u"attribInt", &newValue));
    EXPECT_EQ(status, 51);

    cell.objectBind(new localClassForTest, localClassForTest::classDeclaration());
    status = localErrorTypeOK;
    EXPECT_TRUE(cell.getAttr(status, nullptr, u"attribInt", result.asResult()));
    EXPECT_EQ(result->toString().view(), u"12121212");
    EXPECT_TRUE(cell.setAttr(status, nullptr, u"attribInt", &newValue));
    EXPECT_TRUE(cell.getAttr(status, nullptr, u"ATTRIBINT", result.asResult()));
    EXPECT_EQ(result->toString().view(), u"5");
    EXPECT_EQ(status, 54);
    EXPECT_FALSE(cell.getAttr(status, nullptr, u"nothing", result.asResult()));
    EXPECT_EQ(status, 10);
    EXPECT_FALSE(cell.setAttr(status, nullptr, u"self", &newValue));
    EXPECT_EQ(status, 9);

    int native = 0;
    cell.objectBind(&native, nullptr);
    EXPECT_FALSE(cell.getAttr(status, nullptr, u"self", result.asResult()));
    EXPECT_EQ(status, 14);
    status = localErrorTypeOK;
    EXPECT_FALSE(cell.setAttr(status, nullptr, u"self", &newValue));
    EXPECT_EQ(status, 14);
}

TEST_F(valueTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription other;
    localValueDescription* result = &other;
    int status = localErrorTypeOK;
    EXPECT_HALT(cell.getAttr(status, nullptr, u"x", result),
                "localContextUTF8localValueDescription::getAttr() result must be NULL!");
}

}  // namespace
