#include "localInterpretatorUTF8/classes/localClassForTest.h"

#include <gmock/gmock.h>

#include <limits>

#include "support/language.h"

namespace {

using testing::ElementsAre;

class localClassForTestTest : public languageTest {
protected:
    localClassForTestTest() {
        cell.objectBind(new localClassForTest, localClassForTest::classDeclaration());
        context.varDeclare(u"obj").value->assign(cell);
    }
    localClassForTest& object() { return *static_cast<localClassForTest*>(cell.pointer); }
    evaluated value(std::string_view expression) { return evaluate(expression, &context); }

    localContextUTF8 context;
    localValueDescription cell;
};

TEST_F(localClassForTestTest, members) {
    const localClassDeclaration& declaration = *localClassForTest::classDeclaration();
    EXPECT_EQ(
        utf8(declaration.summary()),
        "ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования ");
    std::vector<std::string> names;
    for (const auto& member : declaration.members()) {
        names.push_back(utf8(member->name));
    }
    EXPECT_THAT(names, testing::UnorderedElementsAre("", "~", "SELF", "ATTRIBINT", "TOSTRING",
                                                     "GETINT", "GETINTPLUSONE", "GETINTPLUS"));
    EXPECT_EQ(declaration.classImplementationMethodFunction, nullptr);
}

TEST_F(localClassForTestTest, methods) {
    EXPECT_EQ(value("obj.toString()").text, "объект тестового класса [ТЕСТ] c числом 12121212");
    EXPECT_EQ(value("obj.GetInt()").text, "12121212");
    EXPECT_EQ(value("obj.SELF.GETINT()").text, "12121212");
    EXPECT_EQ(value("obj.SELF.SELF.ATTRIBINT").text, "12121212");
    const evaluated plusOne = value("obj.getIntPlusOne()");
    EXPECT_EQ(plusOne.text, "12121213");
    EXPECT_THAT(plusOne.lines, ElementsAre(" метод GETINTPLUSONE() thisObj->attribInt=12121212"));
    const evaluated plus = value("obj.getIntPlus(0.5)");
    EXPECT_EQ(plus.text, "12121212.5");
    EXPECT_THAT(plus.lines, ElementsAre(" метод GETINTPLUS() thisObj->attribInt=12121212",
                                        " метод GETINTPLUS() количество параметров=1"));
}

TEST_F(localClassForTestTest, faults) {
    const std::pair<const char*, int> rows[] = {
        {"obj.toString(1)", 31},     {"obj.getInt(1)", 31}, {"obj.getIntPlus()", 31},
        {"obj.getIntPlus(1,2)", 31}, {"obj.nosuch()", 27},  {"obj.строка()", 27},
        {"obj.ПолучитьЦелое()", 27}, {"obj.nosuch", 10},    {"obj.GETINT", 8},
    };
    for (const auto& [expression, status] : rows) {
        EXPECT_EQ(value(expression).status, status) << expression;
    }
}

TEST_F(localClassForTestTest, theMethodFunctionKnowsTheRussianNames) {
    const localMethodFunction method =
        localClassForTest::classDeclaration()->memberFind(u"GETINT")->methodFunction;
    int status = localErrorTypeOK;
    const localArguments none;
    localSlot result;
    EXPECT_TRUE(method(status, nullptr, cell.pointer, u"ПОЛУЧИТЬЦЕЛОЕ", &none, result.asResult()));
    EXPECT_EQ(result->toString().view(), u"12121212");
}

TEST_F(localClassForTestTest, writingTruncatesToTheInteger) {
    const std::pair<double, std::int32_t> rows[] = {
        {5.9, 5},
        {-5.9, -5},
        {0, 0},
        {1e300, std::numeric_limits<std::int32_t>::max()},
        {-1e300, std::numeric_limits<std::int32_t>::min()},
    };
    for (const auto& [number, stored] : rows) {
        localValueDescription newValue;
        newValue.setVal(number);
        int status = localErrorTypeOK;
        EXPECT_TRUE(cell.setAttr(status, nullptr, u"AttribInt", &newValue));
        EXPECT_EQ(status, 54);
        EXPECT_EQ(object().attribInt, stored);
    }
    const localValueDescription newValue;
    int status = localErrorTypeOK;
    const localAttribSetFunction set =
        localClassForTest::classDeclaration()->memberFind(u"ATTRIBINT")->attribSetFunction;
    EXPECT_FALSE(set(status, nullptr, cell.pointer, u"NOSUCH", &newValue));
    EXPECT_EQ(status, 10);
}

TEST_F(localClassForTestTest, anUnknownAttributeLeavesItsTextInTheResult) {
    const localAttribGetFunction get =
        localClassForTest::classDeclaration()->memberFind(u"SELF")->attribGetFunction;
    int status = localErrorTypeOK;
    localSlot result;
    EXPECT_FALSE(get(status, nullptr, cell.pointer, u"NOSUCH", result.asResult()));
    EXPECT_EQ(status, 10);
    EXPECT_EQ(utf8(result->toString()), "localErrorTypeATTRIBUTEunknown");
}

TEST_F(localClassForTestTest, aResultThatIsNotNullHalts) {
    localValueDescription other;
    localValueDescription* result = &other;
    int status = localErrorTypeOK;
    const localArguments none;
    const localClassDeclaration& declaration = *localClassForTest::classDeclaration();
    EXPECT_HALT(declaration.memberFind(u"GETINT")->methodFunction(status, nullptr, cell.pointer,
                                                                  u"GETINT", &none, result),
                "localClassForTest::classImplementationMethodFunction() result must be NULL!");
    EXPECT_HALT(declaration.memberFind(u"SELF")->attribGetFunction(status, nullptr, cell.pointer,
                                                                   u"SELF", result),
                "localClassForTest::classImplementationAttribGetFunction() result must be NULL!");
}

TEST(localClassForTestLoading, theClassIsThereAfterItIsLoaded) {
    EXPECT_IN_FRESH_PROCESS({
        localContextUTF8& global = createdGlobal();
        int status = localErrorTypeOK;
        localSlot object;
        EXPECT_FALSE(global.createObj(status, u"TEST", object.asResult()));
        EXPECT_EQ(status, 14);
        EXPECT_TRUE(global.classRegister(localClassForTest::classDeclaration()));
        status = localErrorTypeOK;
        EXPECT_TRUE(global.createObj(status, u"Тест", object.asResult()));
        EXPECT_EQ(utf8(object->typeName()), "ТЕСТ");
    });
}

}  // namespace
