#include "localInterpretatorUTF8/value/localMethodTable.h"

#include <gmock/gmock.h>

#include <limits>

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
        {"?", "", 54},       {"?", "snbo", 54},
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
    EXPECT_THAT(names, testing::ElementsAre("", "~", "TOSTRING", "СТРОКА", "FAIL", "ОТКАЗ", "ADD",
                                            "СЛОЖИТЬ"));
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
        .construct = nullptr,
        .destroy = [](void*) {},
        .link = nullptr,
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
