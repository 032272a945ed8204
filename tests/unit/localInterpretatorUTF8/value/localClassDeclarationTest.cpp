#include "localInterpretatorUTF8/value/localClassDeclaration.h"

#include <gmock/gmock.h>

#include <optional>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "support/countedClass.h"
#include "support/language.h"

namespace {

// What a member function was called with. One at a time is enough: the functions are plain
// pointers.
struct memberCall {
    std::string function;
    std::string name;
    localContextUTF8* context;
    void* object;
    const localArguments* args;
};
std::optional<memberCall> lastCall;

bool methodSeen(int&, localContextUTF8* context, void*& object, std::u16string_view name,
                const localArguments* args, localValueDescription*& result) {
    lastCall = {"method", utf8(name), context, object, args};
    result = localMemoryManager::manager->reserveSlot();
    result->setVal(u"from the method");
    return true;
}
bool fallbackSeen(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
                  const localArguments* args, localValueDescription*& result) {
    lastCall = {"fallback", utf8(name), context, object, args};
    result = localMemoryManager::manager->reserveSlot();
    status = localErrorTypeMETHODUNKNOWN;
    return false;
}
bool getSeen(int&, localContextUTF8* context, void*& object, std::u16string_view name,
             localValueDescription*& result) {
    lastCall = {"get", utf8(name), context, object, nullptr};
    result = localMemoryManager::manager->reserveSlot();
    result->setVal(41.0);
    return true;
}
bool classWideGetSeen(int& status, localContextUTF8* context, void*& object,
                      std::u16string_view name, localValueDescription*& result) {
    lastCall = {"class-wide get", utf8(name), context, object, nullptr};
    result = localMemoryManager::manager->reserveSlot();
    status = localErrorTypeATTRIBUTEWRONG;
    return false;
}
bool setSeen(int&, localContextUTF8* context, void*& object, std::u16string_view name,
             const localValueDescription*) {
    lastCall = {"set", utf8(name), context, object, nullptr};
    return true;
}

class localClassDeclarationTest : public languageTest {
protected:
    localClassDeclarationTest() {
        declaration.nameEng = u"SAMPLE";
        declaration.nameRus = u"ОБРАЗЕЦ";
        declaration.description = u"класс Образец";
        declaration.memberAdd({u"RUN", methodSeen, nullptr, nullptr});
        declaration.memberAdd({u"БЕЖАТЬ", methodSeen, nullptr, nullptr});
        declaration.memberAdd({u"BOTH", nullptr, setSeen, getSeen});
        declaration.memberAdd({u"READ", nullptr, nullptr, getSeen});
        declaration.memberAdd({u"WRITE", nullptr, setSeen, nullptr});
        declaration.memberAdd({u"NOTHING", nullptr, nullptr, nullptr});
        lastCall.reset();
    }

    // The statuses that a call leaves; 54 where it worked.
    int method(void* target, std::u16string_view name) {
        int status = localErrorTypeOK;
        localSlot result;
        const bool done =
            declaration.methodExec(status, context, target, name, &none, result.asResult());
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    }
    int read(void* target, std::u16string_view name) {
        int status = localErrorTypeOK;
        localSlot result;
        const bool done = declaration.attrGet(status, context, target, name, result.asResult());
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    }
    int write(void* target, std::u16string_view name) {
        int status = localErrorTypeOK;
        const localValueDescription value;
        const bool done = declaration.attrSet(status, context, target, name, &value);
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    }

    localClassDeclaration declaration;
    localContextUTF8* context = localContextUTF8::globalContext;
    const localArguments none;
    int native = 0;
    void* const object = &native;
    void* const noObject = nullptr;
};

using classTest = localClassDeclarationTest;

TEST_F(classTest, aNewDeclarationIsCountedAndNamedInTheOtherLanguages) {
    const std::int64_t before = localClassDeclaration::counterStaticTotal;
    {
        const localClassDeclaration fresh;
        EXPECT_EQ(localClassDeclaration::counterStaticTotal, before + 1);
        EXPECT_EQ(utf8(fresh.nameEng), "новый класс");
        EXPECT_EQ(utf8(fresh.nameRus), "new class");
        EXPECT_TRUE(fresh.members().empty());
        EXPECT_EQ(fresh.classImplementationLinkFunction, nullptr);
        EXPECT_EQ(fresh.classImplementationMethodFunction, nullptr);
        EXPECT_EQ(fresh.classImplementationAttribGetFunction, nullptr);
    }
    EXPECT_EQ(localClassDeclaration::counterStaticTotal, before);
}

TEST_F(classTest, membersAreFoundByExactNameTheLastOneWins) {
    EXPECT_EQ(declaration.memberFind(u"run"), nullptr);
    EXPECT_EQ(declaration.memberFind(u"RU"), nullptr);
    ASSERT_NE(declaration.memberFind(u"RUN"), nullptr);
    EXPECT_EQ(declaration.memberFind(u"RUN")->methodFunction, methodSeen);
    declaration.memberAdd({u"RUN", fallbackSeen, nullptr, nullptr});
    EXPECT_EQ(declaration.memberFind(u"RUN")->methodFunction, fallbackSeen);
    EXPECT_EQ(declaration.members().size(), 7U);
    EXPECT_EQ(declaration.members().front()->name, u"RUN");
    EXPECT_EQ(declaration.members().back()->name, u"RUN");
}

TEST_F(classTest, aMethodIsCalledByItsNameInCapitals) {
    EXPECT_EQ(method(object, u"бежать"), 54);
    ASSERT_TRUE(lastCall);
    EXPECT_EQ(lastCall->function, "method");
    EXPECT_EQ(lastCall->name, "БЕЖАТЬ");
    EXPECT_EQ(lastCall->context, context);
    EXPECT_EQ(lastCall->object, object);
    EXPECT_EQ(lastCall->args, &none);
}

TEST_F(classTest, methodStatuses) {
    EXPECT_EQ(method(noObject, u""), 11);
    EXPECT_EQ(method(noObject, u"UNKNOWN"), 12);
    EXPECT_EQ(method(noObject, u"READ"), 12);
    EXPECT_EQ(method(object, u"UNKNOWN"), 27);
    EXPECT_EQ(method(object, u"READ"), 27);
    EXPECT_EQ(method(object, u"NOTHING"), 27);
    EXPECT_FALSE(lastCall);
}

TEST_F(classTest, theFallbackServesObjectsAndNeverStaticCalls) {
    declaration.classImplementationMethodFunction = fallbackSeen;
    EXPECT_EQ(method(noObject, u"unknown"), 12);
    EXPECT_EQ(method(noObject, u""), 11);
    EXPECT_FALSE(lastCall);
    EXPECT_EQ(method(object, u"unknown"), 27);
    ASSERT_TRUE(lastCall);
    EXPECT_EQ(lastCall->function, "fallback");
    EXPECT_EQ(lastCall->name, "UNKNOWN");
    lastCall.reset();
    EXPECT_EQ(method(object, u"read"), 27);  // an attribute is no method
    EXPECT_EQ(lastCall->function, "fallback");
    EXPECT_EQ(method(object, u"run"), 54);
    EXPECT_EQ(lastCall->function, "method");
}

TEST_F(classTest, aMemberIsCallableWithoutAnObject) {
    EXPECT_EQ(method(noObject, u"run"), 54);
    EXPECT_EQ(lastCall->object, nullptr);
    declaration.memberAdd({u"", methodSeen, nullptr, nullptr});
    EXPECT_EQ(method(noObject, u""), 54);
    declaration.memberAdd({u"", nullptr, nullptr, nullptr});
    EXPECT_EQ(method(noObject, u""), 11) << "a constructor without function";
}

TEST_F(classTest, readStatuses) {
    EXPECT_EQ(read(object, u"WRITE"), 8);
    EXPECT_EQ(read(object, u"RUN"), 8);
    EXPECT_EQ(read(noObject, u"WRITE"), 8);
    EXPECT_EQ(read(noObject, u"UNKNOWN"), 13);
    EXPECT_EQ(read(object, u"UNKNOWN"), 10);
    EXPECT_EQ(read(object, u"read"), 10) << "the name is looked up as it is given";
    EXPECT_FALSE(lastCall);
}

TEST_F(classTest, readingPassesNoContext) {
    EXPECT_EQ(read(object, u"BOTH"), 54);
    EXPECT_EQ(lastCall->function, "get");
    EXPECT_EQ(lastCall->context, nullptr);
    EXPECT_EQ(lastCall->object, object);
    declaration.classImplementationAttribGetFunction = classWideGetSeen;
    EXPECT_EQ(read(object, u"any Name"), 10);
    EXPECT_EQ(lastCall->function, "class-wide get");
    EXPECT_EQ(lastCall->name, "any Name");
    EXPECT_EQ(lastCall->context, nullptr);
    EXPECT_EQ(read(noObject, u"any Name"), 13);
    EXPECT_EQ(read(object, u"WRITE"), 8);
}

TEST_F(classTest, writeStatuses) {
    declaration.classImplementationAttribGetFunction = classWideGetSeen;
    declaration.classImplementationMethodFunction = fallbackSeen;
    EXPECT_EQ(write(object, u"READ"), 9);
    EXPECT_EQ(write(object, u"RUN"), 9);
    EXPECT_EQ(write(object, u"UNKNOWN"), 10);
    EXPECT_EQ(write(noObject, u"UNKNOWN"), 10);
    EXPECT_FALSE(lastCall);
    EXPECT_EQ(write(object, u"BOTH"), 54);
    EXPECT_EQ(lastCall->function, "set");
    EXPECT_EQ(write(object, u"WRITE"), 54);
}

TEST_F(classTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    void* target = object;
    EXPECT_HALT(declaration.methodExec(status, context, target, u"RUN", &none, result),
                "localClassDeclaration::methodExec() result must be NULL!");
    EXPECT_HALT(declaration.attrGet(status, context, target, u"READ", result),
                "localClassDeclaration::attrGet() result must be NULL!");
}

TEST_F(classTest, destroyingCallsTheDestructorWithAnEmptyArrayAndNoContext) {
    declaration.memberAdd({u"~", methodSeen, nullptr, nullptr});
    int status = localErrorTypeOK;
    void* target = object;
    EXPECT_TRUE(declaration.destroyObject(status, target));
    ASSERT_TRUE(lastCall);
    EXPECT_EQ(lastCall->name, "~");
    EXPECT_EQ(lastCall->context, nullptr);
    EXPECT_NE(lastCall->args, nullptr);
}

TEST_F(classTest, destroyingWithoutDestructorFailsQuietly) {
    int status = localErrorTypeOK;
    void* target = object;
    EXPECT_FALSE(declaration.destroyObject(status, target));
    EXPECT_EQ(status, 27);
    EXPECT_EQ(output.text(), "");
}

TEST_F(classTest, summary) {
    EXPECT_EQ(utf8(declaration.summary()), "ОБРАЗЕЦ (SAMPLE)  - класс Образец ");
}

TEST_F(classTest, listingShowsSortedMembers) {
    declaration.memberAdd({u"", methodSeen, nullptr, nullptr});
    declaration.memberAdd({u"~", methodSeen, nullptr, nullptr});
    EXPECT_EQ(utf8(declaration.listing()), "ОБРАЗЕЦ (SAMPLE)  - класс Образец \n"
                                           ". члены класса ОБРАЗЕЦ (SAMPLE)  - класс Образец \n"
                                           "... 0 <конструктор>\n"
                                           "... 1 BOTH : аттрибут  [readable]  [writeable] \n"
                                           "... 2 NOTHING : аттрибут \n"
                                           "... 3 READ : аттрибут  [readable] \n"
                                           "... 4 RUN() : метод \n"
                                           "... 5 WRITE : аттрибут  [writeable] \n"
                                           "... 6 ~() : метод \n"
                                           "... 7 БЕЖАТЬ() : метод \n");
    const localClassDeclaration empty;
    EXPECT_EQ(utf8(empty.listing()), "new class (новый класс)  -  \n");
}

// The registry of classes, which the global context keeps
// -------------------------------------------

// Declarations stay registered, so each test that registers runs in a process of its own.

TEST(localClassRegistry, aClassIsFoundByBothNamesInAnyCase) {
    EXPECT_IN_FRESH_PROCESS({
        createdGlobal();
        localContextUTF8 inner;
        localClassDeclaration* const declaration = countedClass();
        EXPECT_EQ(inner.classFind(u"COUNTED"), nullptr);
        EXPECT_TRUE(inner.classRegister(declaration));
        for (const char16_t* name : {u"COUNTED", u"counted", u"СЧИТАЕМЫЙ", u"Считаемый"}) {
            EXPECT_EQ(inner.classFind(name), declaration) << utf8(name);
            EXPECT_TRUE(inner.classExists(name)) << utf8(name);
        }
        EXPECT_EQ(inner.classFind(u" COUNTED"), nullptr) << "finding trims nothing";
        EXPECT_TRUE(inner.classExists(u" \t\nCounted"));
        EXPECT_FALSE(inner.classExists(u"Counted "));
        EXPECT_FALSE(inner.classExists(u"\rCounted"));
        EXPECT_FALSE(inner.classExists(u""));
        EXPECT_FALSE(inner.classExists(u" \t"));
        EXPECT_FALSE(inner.classExists(u"COUNTE"));
    });
}

TEST(localClassRegistry, aClassIsRegisteredOnce) {
    EXPECT_IN_FRESH_PROCESS({
        localContextUTF8& global = createdGlobal();
        EXPECT_TRUE(global.classRegister(countedClass()));
        const std::size_t size = global.classes().size();
        EXPECT_TRUE(global.classRegister(countedClass()));
        EXPECT_EQ(global.classes().size(), size);

        localClassDeclaration sameEnglish;
        sameEnglish.nameEng = u"COUNTED";
        sameEnglish.nameRus = u"ДРУГОЙ";
        EXPECT_FALSE(global.classRegister(&sameEnglish));
        localClassDeclaration sameRussian;
        sameRussian.nameEng = u"OTHER";
        sameRussian.nameRus = u"СЧИТАЕМЫЙ";
        EXPECT_FALSE(global.classRegister(&sameRussian));
        EXPECT_EQ(global.classes().size(), size);

        // The English name of one class may be the Russian one of another; the first match wins.
        localClassDeclaration crossed;
        crossed.nameEng = u"СЧИТАЕМЫЙ";
        crossed.nameRus = u"COUNTED";
        EXPECT_TRUE(global.classRegister(&crossed));
        EXPECT_EQ(global.classFind(u"COUNTED"), countedClass());
        EXPECT_EQ(global.classes().size(), size + 1);
    });
}

TEST(localClassRegistry, aClassWithAnEmptyNameMatchesAnEmptyName) {
    EXPECT_IN_FRESH_PROCESS({
        localContextUTF8& global = createdGlobal();
        EXPECT_EQ(global.classFind(u""), nullptr);
        localClassDeclaration nameless;
        nameless.nameEng = u"";
        EXPECT_TRUE(global.classRegister(&nameless));
        EXPECT_EQ(global.classFind(u""), &nameless);
        EXPECT_FALSE(global.classExists(u""));
    });
}

TEST(localClassRegistry, creatingAnObject) {
    EXPECT_IN_FRESH_PROCESS({
        localContextUTF8& global = createdGlobal();
        int status = localErrorTypeOK;
        localSlot result;
        EXPECT_FALSE(global.createObj(status, u"counted", result.asResult()));
        EXPECT_EQ(status, 14);
        EXPECT_TRUE(result) << "the slot stays reserved on failure";

        EXPECT_TRUE(global.classRegister(countedClass()));
        status = localErrorTypeOK;
        EXPECT_TRUE(global.createObj(status, u"counted", result.asResult()));
        EXPECT_EQ(status, 54);
        EXPECT_EQ(countedObject::alive, 1);
        EXPECT_EQ(result->objectLinks(), 1);
        EXPECT_TRUE(isClass(*result, *countedClass()));
        result.clear();
        EXPECT_EQ(countedObject::alive, 0);

        localClassDeclaration withoutConstructor;
        withoutConstructor.nameEng = u"BARE";
        withoutConstructor.nameRus = u"ГОЛЫЙ";
        withoutConstructor.memberAdd({u"", nullptr, nullptr, nullptr});
        EXPECT_TRUE(global.classRegister(&withoutConstructor));
        EXPECT_FALSE(global.createObj(status, u"голый", result.asResult()));
        EXPECT_EQ(status, 11);
        result.clear();
        EXPECT_EQ(localMemoryManager::manager->getUsedCount(), 0U);
    });
}

TEST_F(classTest, creatingIntoAResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    EXPECT_HALT(localContextUTF8::globalContext->createObj(status, u"TEST", result),
                "localContextUTF8::createObj() result must be NULL!");
}

}  // namespace
