#include "localInterpretatorUTF8/value/localMethodTable.h"

#include <gmock/gmock.h>

#include <limits>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/countedClass.h"
#include "support/language.h"

namespace {

class localMethodTableTest : public languageTest {
protected:
    localMethodTableTest() {
        cells_['s'].setVal(u"text");
        cells_['n'].setVal(1.0);
        cells_['b'].setBoolean(true);
        cells_['o'].objectBind(&native_, nullptr);
        cells_['l'].objectBind(new localValueList, localValueList::classDeclaration());
        cells_['t'].objectBind(new localValueTable, localValueTable::classDeclaration());
    }

    // What checking arguments of these kinds against a pattern leaves: 54, 31 or 33.
    int checked(std::string_view pattern, std::string_view kinds) {
        std::vector<localValueDescription*> values;
        for (const char kind : kinds) {
            values.push_back(&cells_[static_cast<unsigned char>(kind)]);
        }
        int status = localErrorTypeOK;
        const bool fits = localArgumentsCheck(status, pattern, values);
        EXPECT_EQ(fits, status == localErrorTypeOK);
        return status;
    }

    // Calls a method of the counted class.
    int call(void* object, std::u16string_view name, const localArguments* args,
             localSlot& result) {
        int status = localErrorTypeSYNTAX;
        countedClass()->methodExec(status, nullptr, object, name, args, result.asResult());
        return status;
    }

private:
    int native_ = 0;
    localValueDescription cells_[128];
};

using tableTest = localMethodTableTest;

TEST_F(tableTest, argumentsAreCheckedForNumberFirstThenForType) {
    struct Row {
        std::string_view pattern, kinds;
        int status;
    };
    const Row rows[] = {
        {"", "", 54},        {"", "s", 31},        {"s", "s", 54},       {"s", "n", 33},
        {"s", "", 31},       {"s", "nn", 31},      {"n", "n", 54},       {"n", "b", 33},
        {"b", "b", 54},      {"b", "n", 33},       {"o", "o", 54},       {"o", "s", 33},
        {"v", "s", 54},      {"v", "n", 54},       {"v", "b", 54},       {"v", "o", 54},
        {"v", "", 31},       {"sn", "sn", 54},     {"sn", "ns", 33},     {"sn", "s", 31},
        {"sn", "snn", 31},   {"s|n", "s", 54},     {"s|n", "sn", 54},    {"s|n", "ss", 33},
        {"s|n", "", 31},     {"s|n", "snn", 31},   {"|s", "", 54},       {"|s", "s", 54},
        {"|s", "n", 33},     {"|s", "ss", 31},     {"|sn", "sn", 54},    {"n|vv", "n", 54},
        {"n|vv", "nso", 54}, {"n|vv", "nsos", 31}, {"v+", "", 31},       {"v+", "s", 54},
        {"v+", "snb", 54},   {"sn+", "s", 31},     {"sn+", "sn", 54},    {"sn+", "snnn", 54},
        {"sn+", "snns", 33}, {"s|n+", "s", 54},    {"s|n+", "snnn", 54}, {"s|n+", "snnb", 33},
        {"?", "", 54},       {"?", "snbo", 54},    {"i", "n", 54},       {"i", "s", 33},
        {"i", "b", 33},      {"l", "l", 54},       {"l", "t", 33},       {"l", "o", 33},
        {"l", "s", 33},      {"l", "", 31},        {"t", "t", 54},       {"t", "l", 33},
        {"t", "o", 33},      {"o", "l", 54},       {"|il", "n", 54},     {"|il", "nn", 33},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(checked(row.pattern, row.kinds), row.status)
            << "pattern [" << row.pattern << "] with [" << row.kinds << "]";
    }
}

TEST_F(tableTest, anIndexIsTruncatedAndWhatCannotBeOneIsZero) {
    const std::pair<double, std::uint32_t> rows[] = {
        {1, 1},
        {1.9, 1},
        {2.999999, 2},
        {0, 0},
        {0.9, 0},
        {-1, 0},
        {4294967294.5, 4294967294U},
        {4294967296.0, 0},
        {1e300, 0},
        {-1e300, 0},
        {std::numeric_limits<double>::infinity(), 0},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const auto& [number, index] : rows) {
        EXPECT_EQ(localIndex(number), index) << number;
    }
}

TEST_F(tableTest, theDeclarationHasConstructorDestructorAndBothNames) {
    const localClassDeclaration& declaration = *countedClass();
    EXPECT_EQ(&declaration, countedClass());
    EXPECT_EQ(utf8(declaration.summary()), "СЧИТАЕМЫЙ (COUNTED)  - класс для проверок ");
    std::vector<std::string> names;
    for (const auto& member : declaration.members()) {
        names.push_back(utf8(member->name));
    }
    EXPECT_THAT(names, testing::ElementsAre("", "~", "HELD", "ЗНАЧЕНИЕ", "LINKS", "SECRET",
                                            "TOSTRING", "СТРОКА", "FAIL", "ОТКАЗ", "ADD", "СЛОЖИТЬ",
                                            "LATER", "ПОТОМ"));
}

TEST_F(tableTest, theRoadOfAnObject) {
    const std::int64_t alive = countedObject::alive;
    localSlot made;
    EXPECT_EQ(call(nullptr, u"", nullptr, made), 54);
    EXPECT_EQ(countedObject::alive, alive + 1);
    EXPECT_EQ(made->objectLinks(), 1);
    void* object = made->pointer;

    const localArguments none;
    localSlot result;
    EXPECT_EQ(call(object, u"tostring", &none, result), 54);
    EXPECT_EQ(result->toString().view(), u"counted");
    made.clear();
    EXPECT_EQ(countedObject::alive, alive);
}

TEST_F(tableTest, statuses) {
    localSlot made;
    call(nullptr, u"", nullptr, made);
    void* object = made->pointer;
    localValueDescription number;
    number.setVal(2.0);
    localValueDescription text;
    text.setVal(u"2");
    localValueDescription* const two[] = {&number, &number};
    localValueDescription* const mixed[] = {&number, &text};
    const localArguments none;
    const localArguments twoNumbers(two);
    const localArguments wrongType(mixed);

    localSlot result;
    EXPECT_EQ(call(object, u"add", &twoNumbers, result), 54);
    EXPECT_EQ(result->toString().view(), u"4");
    EXPECT_EQ(call(object, u"сложить", &twoNumbers, result), 54);
    EXPECT_EQ(call(object, u"add", &wrongType, result), 33);
    EXPECT_TRUE(result) << "the slot stays reserved on failure";
    EXPECT_EQ(call(object, u"add", &none, result), 31);
    EXPECT_EQ(call(object, u"add", nullptr, result), 16);
    EXPECT_EQ(call(object, u"fail", &none, result), 7);
    EXPECT_EQ(call(object, u"unknown", &none, result), 27);
    EXPECT_EQ(call(nullptr, u"add", &none, result), 29) << "a static call of a method";
}

TEST_F(tableTest, aClassWithoutConstructorMakesNoObject) {
    static constexpr localClassTable bare = {
        .nameEng = u"BARE",
        .nameRus = u"ГОЛЫЙ",
        .description = u"",
        .nativeName = u"bare",
        .native = {nullptr, [](void*) {}, nullptr},
        .methods = countedMethods,
        .attributes = {},
        .memberNames = localMemberNames::englishOnly,
        .classWideMethods = true,
    };
    localClassDeclaration& declaration = *localTableClass<bare>();
    int status = localErrorTypeOK;
    void* object = nullptr;
    localSlot result;
    EXPECT_FALSE(declaration.methodExec(status, nullptr, object, u"", nullptr, result.asResult()));
    EXPECT_EQ(status, 11);
    // Names of one language only are members, and the class-wide function knows the others.
    EXPECT_EQ(declaration.memberFind(u"СЛОЖИТЬ"), nullptr);
    int native = 0;
    object = &native;
    const localArguments none;
    EXPECT_TRUE(
        declaration.methodExec(status, nullptr, object, u"строка", &none, result.asResult()));
    EXPECT_EQ(result->toString().view(), u"counted");
}

TEST_F(tableTest, anArgumentIsReadAsAnIndex) {
    localValueDescription number;
    number.setVal(2.9);
    localValueDescription* const args[] = {&number};
    localValueDescription result;
    int status = localErrorTypeOK;
    const localCall call{status, nullptr, nullptr, u"", args, result};
    EXPECT_EQ(call.index(0), 2U);
    number.setVal(-1.0);
    EXPECT_EQ(call.index(0), 0U);
}

TEST_F(tableTest, aTypeThatCannotBeMadeOfNothingHasNoConstructor) {
    struct Row {
        explicit Row(int first) : number(first) {}
        int number;
        std::uint32_t linkCounter = 0;
    };
    constexpr localNativeType type = localNativeOf<Row>();
    EXPECT_EQ(type.construct, nullptr);
    void* object = new Row(7);
    EXPECT_EQ(type.link(&object, 2), 2);
    EXPECT_EQ(type.link(&object, -1), 1);
    EXPECT_EQ(type.link(&object, 0), 1);
    type.destroy(object);
    EXPECT_NE(localNativeOf<countedObject>().construct, nullptr);
}

TEST_F(tableTest, aRowWithoutHandlerCannotBeCalled) {
    localSlot made;
    call(nullptr, u"", nullptr, made);
    const localArguments none;
    localSlot result;
    EXPECT_NE(countedClass()->memberFind(u"LATER"), nullptr);
    EXPECT_EQ(call(made->pointer, u"later", &none, result), 27);
    EXPECT_EQ(call(made->pointer, u"потом", &none, result), 27);
    EXPECT_TRUE(result) << "the slot stays reserved on failure";
}

TEST_F(tableTest, attributesAreRowsWithTheRightsOfTheirHandlers) {
    const auto rights = [](const char16_t* name) {
        const localClassMember* const member = countedClass()->memberFind(name);
        return std::string(member->attribGetFunction != nullptr ? "r" : "") +
               (member->attribSetFunction != nullptr ? "w" : "");
    };
    EXPECT_EQ(rights(u"HELD"), "rw");
    EXPECT_EQ(rights(u"ЗНАЧЕНИЕ"), "rw");
    EXPECT_EQ(rights(u"LINKS"), "r");
    EXPECT_EQ(rights(u"SECRET"), "w");
    EXPECT_EQ(countedClass()->memberFind(u"HELD")->methodFunction, nullptr);
}

TEST_F(tableTest, attributesAreReadAndWritten) {
    localSlot made;
    call(nullptr, u"", nullptr, made);
    localValueDescription number;
    number.setVal(7.0);
    const auto set = [&](const char16_t* name, const localValueDescription& value) {
        int status = localErrorTypeOK;
        const bool done = made->setAttr(status, nullptr, name, &value);
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    };
    localSlot result;
    const auto get = [&](const char16_t* name) {
        int status = localErrorTypeOK;
        const bool done = made->getAttr(status, nullptr, name, result.asResult());
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    };
    EXPECT_EQ(set(u"held", number), 54);
    EXPECT_EQ(get(u"Значение"), 54);
    EXPECT_EQ(result->num, 7.0);
    EXPECT_EQ(get(u"links"), 54);
    EXPECT_EQ(result->num, 1.0);
    EXPECT_EQ(set(u"links", number), 9);
    EXPECT_EQ(get(u"secret"), 8);
    EXPECT_EQ(set(u"secret", number), 33) << "a new value of a wrong type";
    number.setVal(u"text");
    EXPECT_EQ(set(u"secret", number), 54);
    EXPECT_EQ(set(u"nosuch", number), 10);
    EXPECT_EQ(get(u"nosuch"), 10);
}

TEST_F(tableTest, theAttributeFunctionsThemselvesKnowTheStatuses) {
    localSlot made;
    call(nullptr, u"", nullptr, made);
    const localClassMember& held = *countedClass()->memberFind(u"HELD");
    int status = localErrorTypeOK;
    localSlot result;
    EXPECT_FALSE(
        held.attribGetFunction(status, nullptr, made->pointer, u"NOSUCH", result.asResult()));
    EXPECT_EQ(status, 10);
    EXPECT_EQ(utf8(result->toString()), "localErrorTypeATTRIBUTEunknown");
    EXPECT_FALSE(
        held.attribGetFunction(status, nullptr, made->pointer, u"SECRET", result.asResult()));
    EXPECT_EQ(status, 8);
    EXPECT_FALSE(held.attribSetFunction(status, nullptr, made->pointer, u"LINKS", result.get()));
    EXPECT_EQ(status, 9);
    localValueDescription cell;
    localValueDescription* taken = &cell;
    EXPECT_HALT(held.attribGetFunction(status, nullptr, made->pointer, u"HELD", taken),
                "countedObject::classImplementationAttribGetFunction() result must be NULL!");
}

TEST_F(tableTest, aResultThatIsNotNullHaltsUnderTheNameOfTheClass) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    void* object = nullptr;
    const localMethodFunction method = countedClass()->memberFind(u"")->methodFunction;
    EXPECT_HALT(method(status, nullptr, object, u"", nullptr, result),
                "countedObject::classImplementationMethodFunction() result must be NULL!");
}

TEST_F(tableTest, waysToAnswer) {
    localValueDescription result;
    int status = localErrorTypeOK;
    localCall call{status, nullptr, nullptr, u"", {}, result};
    EXPECT_TRUE(call.done());
    EXPECT_EQ(result.toString().view(), u"1");
    EXPECT_TRUE(call.give(2.5));
    EXPECT_EQ(result.toString().view(), u"2.5");
    EXPECT_TRUE(call.give(u"text"));
    EXPECT_EQ(result.toString().view(), u"text");
    EXPECT_TRUE(call.giveBoolean(false));
    EXPECT_EQ(utf8(result.toString()), "ЛОЖЬ");
    EXPECT_FALSE(call.fail(32));
    EXPECT_EQ(status, 32);
}

}  // namespace
