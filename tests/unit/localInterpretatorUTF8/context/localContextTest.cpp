#include "localInterpretatorUTF8/context/localContextUTF8.h"

#include <gmock/gmock.h>

#include <optional>

#include "localInterpretatorUTF8/text/localRandom.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"
#include "support/countedClass.h"
#include "support/language.h"

namespace {

class localContextTest : public languageTest {
protected:
    static void declare(localContextUTF8& context, std::u16string_view name, double value) {
        context.varDeclare(name).value->setVal(value);
    }

    // A compiled body that ends with a status, and gives a number when that is a normal end.
    static std::shared_ptr<localOperatorCompiled> body(localExecuteFunction function) {
        auto made = std::make_shared<localOperatorCompiled>(function);
        made->type = localCompiledOperatorTypeBLOCK;
        made->name = localText(u"BODY");
        return made;
    }
    template <int end, int number = 1>
    static bool endsWith(int& status, localContextUTF8*, const localOperatorCompiled&,
                         const localArguments&, localValueDescription*& result) {
        status = end;
        if (end != localErrorTypeOK && end != localErrorTypeRETURN) {
            return end == localErrorTypeBREAK || end == localErrorTypeCONTINUE;
        }
        result = localMemoryManager::manager->reserveSlot();
        result->setVal(double{number});
        return true;
    }

    // Calls a function by name. Gives the status, which is 54 before the call.
    static int call(localContextUTF8& context, std::u16string_view name,
                    std::string* text = nullptr) {
        int status = localErrorTypeOK;
        localSlot result;
        const localArguments none;
        const bool done = context.funcExec(status, name, none, result.asResult());
        EXPECT_EQ(done, status == localErrorTypeOK);
        if (done && text != nullptr) {
            *text = utf8(result->toString());
        }
        return status;
    }
};

using contextTest = localContextTest;

// Chain and life
// -----------------------------------------------------------------------------------

TEST_F(contextTest, everyContextIsCountedAndHangsOnTheGlobalOne) {
    const std::int64_t before = localContextUTF8::counterStaticTotal;
    {
        localContextUTF8 first;
        localContextUTF8 second(&first);
        localContextUTF8 third(nullptr);
        EXPECT_EQ(localContextUTF8::counterStaticTotal, before + 3);
        EXPECT_EQ(first.parent(), localContextUTF8::globalContext);
        EXPECT_EQ(second.parent(), &first);
        EXPECT_EQ(third.parent(), localContextUTF8::globalContext);
        EXPECT_FALSE(first.caseSensitive);
        EXPECT_TRUE(first.variables().empty());
        EXPECT_TRUE(first.functions().empty());
        EXPECT_TRUE(first.classes().empty());
        EXPECT_EQ(first.creator(), nullptr);
    }
    EXPECT_EQ(localContextUTF8::counterStaticTotal, before);
    EXPECT_EQ(localContextUTF8::globalContext->parent(), nullptr);
}

TEST_F(contextTest, itIsKnownWhichContextsStand) {
    EXPECT_TRUE(localContextUTF8::isAlive(localContextUTF8::globalContext));
    auto first = std::make_unique<localContextUTF8>();
    auto second = std::make_unique<localContextUTF8>();
    auto third = std::make_unique<localContextUTF8>();
    const void* const address = second.get();
    second.reset();
    EXPECT_FALSE(localContextUTF8::isAlive(address));
    EXPECT_TRUE(localContextUTF8::isAlive(first.get()));
    EXPECT_TRUE(localContextUTF8::isAlive(third.get()));
    first.reset();
    third.reset();
    EXPECT_TRUE(localContextUTF8::isAlive(localContextUTF8::globalContext));
    EXPECT_FALSE(localContextUTF8::isAlive(nullptr));
}

TEST_F(contextTest, aSecondGlobalContextHalts) {
    int status = localErrorTypeOK;
    EXPECT_HALT(localContextUTF8::createGlobal(status),
                "Error!!!  localContextUTF8::globalContext cannot be reinit");
}

TEST_F(contextTest, theOwnerIsNamedOnce) {
    localContextUTF8 context;
    int owner = 0;
    context.ceatorSet(&owner);
    EXPECT_EQ(context.creator(), &owner);
    EXPECT_HALT(context.ceatorSet(&owner), "localContextUTF8::ceatorSet() creator already set!");
}

TEST_F(contextTest, theMessageFunctionWritesALine) {
    localContextUTF8 context;
    ASSERT_NE(context.messageFunction, nullptr);
    context.messageFunction(&context, u"Привет");
    EXPECT_EQ(output.text(), "Привет\n");
}

TEST_F(contextTest, initBringsAContextToItsFirstState) {
    localContextUTF8 context;
    int owner = 0;
    declare(context, u"x", 1);
    context.ceatorSet(&owner);
    int status = localErrorTypeSYNTAX;
    EXPECT_TRUE(context.init(status));
    EXPECT_EQ(status, 54);
    EXPECT_TRUE(context.variables().empty());
    EXPECT_EQ(context.creator(), nullptr);
}

TEST_F(contextTest, contextsMadeWithinOneSecondRepeatTheRandomSequence) {
    const auto sequence = [] {
        const localContextUTF8 context;
        std::vector<int> numbers;
        for (int i = 0; i < 10; ++i) {
            numbers.push_back(localRandom());
        }
        return numbers;
    };
    std::vector<int> first;
    std::vector<int> second;
    std::time_t began = 0;
    do {
        began = std::time(nullptr);
        first = sequence();
        second = sequence();
    } while (std::time(nullptr) != began);
    EXPECT_EQ(first, second);
}

TEST(localContextStart, theFirstContextBecomesTheGlobalOne) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(localContextUTF8::globalContext, nullptr);
        {
            const localContextUTF8 first;
            EXPECT_EQ(localContextUTF8::globalContext, &first);
            EXPECT_EQ(first.parent(), nullptr);
            EXPECT_GT(first.functions().size(), 100U);
        }
        EXPECT_EQ(localContextUTF8::globalContext, nullptr);
    });
}

TEST(localContextStart, aContextWithAParentMakesTheGlobalOneAndTellsSo) {
    EXPECT_IN_FRESH_PROCESS({
        const capturedOutput output;
        const localContextUTF8 context(nullptr);
        localContextUTF8* const global = localContextUTF8::globalContext;
        EXPECT_NE(global, nullptr);
        EXPECT_NE(global, &context);
        EXPECT_EQ(context.parent(), global);
        EXPECT_EQ(output.lines(), std::vector<std::string>{"глобальным назначен контекст [" +
                                                           utf8(addressText(global)) + "]"});
        EXPECT_THAT(output.text(), testing::HasSubstr(" func: "));
    });
}

TEST(localContextStart, createGlobalTellsTheLengthOfTheStore) {
    EXPECT_IN_FRESH_PROCESS({
        const capturedOutput output;
        int status = localErrorTypeSYNTAX;
        const auto global = localContextUTF8::createGlobal(status);
        EXPECT_EQ(status, 54);
        EXPECT_EQ(localContextUTF8::globalContext, global.get());
        EXPECT_EQ(output.text(),
                  "localMemoryManager::manager->getReservedCount()= " +
                      std::to_string(localMemoryManager::manager->getReservedCount()) + "\n");
    });
}

// Variables
// ----------------------------------------------------------------------------------------

TEST_F(contextTest, aVariableIsFoundInAnyCaseOfLetters) {
    localContextUTF8 context;
    declare(context, u"Счёт", 5);
    for (const char16_t* name : {u"Счёт", u"СЧЁТ", u"счёт"}) {
        EXPECT_NE(context.varFind(name), nullptr) << utf8(name);
    }
    EXPECT_EQ(context.varFind(u"счет"), nullptr);
    EXPECT_EQ(utf8(context.variables()[0].name), "СЧЁТ");
    EXPECT_EQ(context.variables()[0].value->linkCounter, 1U);
}

TEST_F(contextTest, aCaseSensitiveContextKnowsTheExactNameOnly) {
    localContextUTF8 outer;
    outer.caseSensitive = true;
    declare(outer, u"Abc", 1);
    localContextUTF8 inner(&outer);
    declare(inner, u"Xyz", 2);
    EXPECT_NE(outer.varFind(u"Abc"), nullptr);
    EXPECT_EQ(outer.varFind(u"ABC"), nullptr);
    EXPECT_EQ(outer.varFind(u"abc"), nullptr);
    // From a scope inside, each scope of the chain compares in its own way.
    EXPECT_NE(inner.varFind(u"Abc"), nullptr);
    EXPECT_EQ(inner.varFind(u"abc"), nullptr);
    EXPECT_NE(inner.varFind(u"xyz"), nullptr);
    EXPECT_EQ(outer.varFind(u"Xyz"), nullptr);
}

TEST_F(contextTest, theInnermostVariableWins) {
    localContextUTF8 outer;
    localContextUTF8 middle(&outer);
    localContextUTF8 inner(&middle);
    declare(outer, u"x", 1);
    declare(outer, u"y", 10);
    declare(middle, u"X", 2);
    localContextUTF8* holder = nullptr;
    ASSERT_NE(inner.varFind(u"x", &holder), nullptr);
    EXPECT_EQ(holder, &middle);
    EXPECT_EQ(inner.varToString(u"x"), u"2");
    ASSERT_NE(inner.varFind(u"y", &holder), nullptr);
    EXPECT_EQ(holder, &outer);
    EXPECT_EQ(outer.varToString(u"x"), u"1");
    EXPECT_EQ(inner.varFind(u"z", &holder), nullptr);
}

TEST_F(contextTest, variablesKeepTheOrderOfTheirDeclaration) {
    localContextUTF8 context;
    std::vector<std::string> wanted;
    for (int i = 0; i < 40; ++i) {
        const std::string name = "V" + std::to_string(i * 7 % 40);
        declare(context, wide(name), i);
        wanted.push_back(name);
    }
    std::vector<std::string> names;
    for (const localVariableEntry& entry : context.variables()) {
        names.push_back(utf8(entry.name));
        EXPECT_EQ(context.varFind(entry.name)->value.get(), entry.value.get());
    }
    EXPECT_EQ(names, wanted);
}

TEST_F(contextTest, ofEqualNamesTheFirstIsFound) {
    localContextUTF8 context;
    declare(context, u"x", 1);
    declare(context, u"x", 2);
    EXPECT_EQ(context.varToString(u"x"), u"1");
    for (int i = 0; i < 20; ++i) {  // also when there are many
        declare(context, wide("N" + std::to_string(i)), i);
    }
    EXPECT_EQ(context.varToString(u"x"), u"1");
}

TEST_F(contextTest, removingVariables) {
    const std::size_t used = localMemoryManager::manager->getUsedCount();
    localContextUTF8 context;
    for (int i = 0; i < 20; ++i) {
        declare(context, wide("V" + std::to_string(i)), i);
    }
    context.varRemove(0);
    context.varRemove(5);
    EXPECT_EQ(context.variables().size(), 18U);
    EXPECT_EQ(context.varFind(u"V0"), nullptr);
    EXPECT_EQ(context.varFind(u"V6"), nullptr);
    for (const int left : {1, 5, 7, 19}) {
        EXPECT_EQ(utf8(context.varToString(wide("V" + std::to_string(left)))),
                  std::to_string(left));
    }
    EXPECT_EQ(localMemoryManager::manager->getUsedCount(), used + 18);
    context.varRemoveAll();
    EXPECT_TRUE(context.variables().empty());
    EXPECT_EQ(context.varFind(u"V1"), nullptr);
    EXPECT_EQ(localMemoryManager::manager->getUsedCount(), used);
}

TEST_F(contextTest, leavingAScopeResetsAlsoWhatOthersHold) {
    localSlot kept;
    {
        localContextUTF8 context;
        localValueDescription& value = *context.varDeclare(u"x").value;
        value.setVal(u"content");
        kept = localSlot::share(value);
    }
    EXPECT_EQ(kept->linkCounter, 1U);
    EXPECT_EQ(kept->toString().view(), u"0");
}

TEST_F(contextTest, leavingAScopeDestroysTheObjectsOfItsVariables) {
    const std::int64_t alive = countedObject::alive;
    {
        localContextUTF8 context;
        context.varDeclare(u"x").value->objectBind(new countedObject, countedClass());
        EXPECT_EQ(countedObject::alive, alive + 1);
    }
    EXPECT_EQ(countedObject::alive, alive);
}

TEST_F(contextTest, aVariableWithoutLinkHaltsWhenItsScopeIsLeft) {
    EXPECT_HALT(
        {
            localContextUTF8 context;
            context.varDeclare(u"x").value->linkCounter = 0;
        },
        "Error!!!  linkCounter cannot be negative!");
}

TEST_F(contextTest, theTextOfAVariable) {
    localContextUTF8 context;
    context.varDeclare(u"Имя").value->setVal(u"значение");
    EXPECT_EQ(utf8(context.varToString(u"имя")), "значение");
    EXPECT_EQ(utf8(context.varToString(u"Нет")), "variable Нет not found!");
    const localValueDescription& value = *context.variables()[0].value;
    EXPECT_EQ(utf8(context.varDisplay(u"имя")),
              "[" + utf8(addressText(&value)) + "] var [ИМЯ] : " + utf8(value.dump()));
    EXPECT_EQ(utf8(context.varDisplay(u"Нет")), "variable [Нет] not found!!! ");
}

// Functions
// ----------------------------------------------------------------------------------------

TEST_F(contextTest, functionsAreFoundByNameInCapitalsWithTheirDistance) {
    localContextUTF8 outer;
    localContextUTF8 inner(&outer);
    int steps = 99;
    EXPECT_EQ(inner.funcFind(u"МОЯ", steps), nullptr);
    EXPECT_EQ(steps, -1);
    outer.funcAdd(u"моя", body(endsWith<localErrorTypeOK>));
    localContextUTF8* holder = nullptr;
    ASSERT_NE(inner.funcFind(u"МОЯ", steps, &holder), nullptr);
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(holder, &outer);
    ASSERT_NE(outer.funcFind(u"МОЯ", steps), nullptr);
    EXPECT_EQ(steps, 0);
    ASSERT_NE(inner.funcFind(u"CREATEOBJECT", steps), nullptr);
    EXPECT_EQ(steps, 2);
    EXPECT_EQ(inner.funcFind(u"моя", steps), nullptr) << "the caller gives capitals";
}

TEST_F(contextTest, aFunctionDefinedAgainHereIsReplaced) {
    localContextUTF8 context;
    context.funcAdd(u"f", body(endsWith<localErrorTypeOK, 1>));
    context.funcAdd(u"F", body(endsWith<localErrorTypeRETURN, 2>));
    EXPECT_EQ(context.functions().size(), 1U);
    std::string text;
    EXPECT_EQ(call(context, u"f", &text), 54);
    EXPECT_EQ(text, "2");
}

TEST_F(contextTest, aFunctionOfAParentIsHiddenAndStays) {
    localContextUTF8 outer;
    localContextUTF8 inner(&outer);
    outer.funcAdd(u"f", body(endsWith<localErrorTypeOK, 1>));
    inner.funcAdd(u"f", body(endsWith<localErrorTypeOK, 2>));
    std::string text;
    EXPECT_EQ(call(inner, u"f", &text), 54);
    EXPECT_EQ(text, "2");
    EXPECT_EQ(call(outer, u"f", &text), 54);
    EXPECT_EQ(text, "1");
}

TEST(localContextStart, aFunctionOfTheProgramTakesThePlaceOfANativeOne) {
    EXPECT_IN_FRESH_PROCESS({
        localContextUTF8& global = createdGlobal();
        int steps = 0;
        const localFunctionEntry* entry = global.funcFind(u"CREATEOBJECT", steps);
        EXPECT_NE(entry->nativeFunction, nullptr);
        EXPECT_EQ(entry->compiled, nullptr);
        const std::size_t size = global.functions().size();
        global.funcAdd(u"CreateObject", std::make_shared<localOperatorCompiled>());
        entry = global.funcFind(u"CREATEOBJECT", steps);
        EXPECT_EQ(entry->nativeFunction, nullptr);
        EXPECT_NE(entry->compiled, nullptr);
        EXPECT_EQ(global.functions().size(), size);
    });
}

TEST_F(contextTest, aModuleOverridesEarlierDefinitionsInOrder) {
    localContextUTF8 context;
    context.funcAdd(u"f", body(endsWith<localErrorTypeOK, 1>));
    localOperatorCompiled module;
    module.functions.emplace_back(localText(u"F"), body(endsWith<localErrorTypeOK, 2>));
    module.functions.emplace_back(localText(u"G"), body(endsWith<localErrorTypeOK, 3>));
    module.functions.emplace_back(localText(u"F"), body(endsWith<localErrorTypeOK, 4>));
    context.moduleImport(module);
    EXPECT_EQ(context.functions().size(), 2U);
    std::string text;
    EXPECT_EQ(call(context, u"f", &text), 54);
    EXPECT_EQ(text, "4");
    EXPECT_EQ(call(context, u"g", &text), 54);
    EXPECT_EQ(text, "3");
}

TEST_F(contextTest, theEndOfAFunctionMapsItsStatus) {
    localContextUTF8 context;
    context.funcAdd(u"ends", body(endsWith<localErrorTypeOK>));
    context.funcAdd(u"returns", body(endsWith<localErrorTypeRETURN>));
    context.funcAdd(u"breaks", body(endsWith<localErrorTypeBREAK>));
    context.funcAdd(u"continues", body(endsWith<localErrorTypeCONTINUE>));
    context.funcAdd(u"fails", body(endsWith<localErrorTypeDIVISIONBYZERO>));
    EXPECT_EQ(call(context, u"ends"), 54);
    EXPECT_EQ(call(context, u"returns"), 54);
    EXPECT_EQ(call(context, u"breaks"), 19);
    EXPECT_EQ(call(context, u"continues"), 20);
    EXPECT_EQ(call(context, u"fails"), 21);
    EXPECT_EQ(call(context, u"unknown"), 24);
}

TEST_F(contextTest, theStatusOfTheCallerComesBack) {
    localContextUTF8 context;
    context.funcAdd(u"returns", body(endsWith<localErrorTypeRETURN, 5>));
    int status = localErrorTypeSYNTAX;
    localSlot result;
    const localArguments none;
    EXPECT_TRUE(context.funcExec(status, u"returns", none, result.asResult()));
    EXPECT_EQ(status, localErrorTypeSYNTAX);
    EXPECT_EQ(result->toString().view(), u"5");
}

TEST_F(contextTest, anEntryWithoutFunctionIsUnknown) {
    localContextUTF8 context;
    context.funcAdd(u"empty", nullptr);
    EXPECT_EQ(call(context, u"empty"), 24);
}

TEST_F(contextTest, aNativeFunctionIsCalledByName) {
    localContextUTF8 context;
    std::string text;
    EXPECT_EQ(call(context, u"contextGet", &text), 54);
    EXPECT_EQ(call(context, u"createObject"), 31) << "too few arguments";
}

TEST_F(contextTest, aBodyWithTooFewArgumentsGivesStatus31) {
    localContextUTF8 context;
    auto needsOne = body(nullptr);
    needsOne->arguments.emplace_back(u"A");
    context.funcAdd(u"needsOne", needsOne);
    EXPECT_EQ(call(context, u"needsOne"), 31);
}

TEST_F(contextTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    const localArguments none;
    EXPECT_HALT(localContextUTF8::globalContext->funcExec(status, u"f", none, result),
                "localContextUTF8::funcExec() result must be NULL!");
}

}  // namespace
