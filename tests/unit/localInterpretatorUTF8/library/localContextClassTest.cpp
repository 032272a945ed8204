#include <gmock/gmock.h>

#include <set>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "support/language.h"

namespace {

class localContextClassTest : public languageTest {
protected:
    localClassDeclaration& declaration() { return *localContextUTF8::classDeclaration(); }
    int read(localContextUTF8& context, std::u16string_view name, std::string* text = nullptr) {
        int status = localErrorTypeOK;
        void* object = &context;
        localSlot result;
        if (declaration().attrGet(status, nullptr, object, name, result.asResult()) &&
            text != nullptr) {
            *text = utf8(result->toString());
        }
        return status;
    }
};

using contextClassTest = localContextClassTest;

TEST_F(contextClassTest, itsMembersAreAllGlobalFunctionsAndTheBooleanWords) {
    EXPECT_EQ(utf8(declaration().summary()), "КОНТЕКСТ (CONTEXT)  - это контекст ");
    EXPECT_EQ(declaration().classImplementationLinkFunction, nullptr);
    std::set<std::string> methods;
    std::set<std::string> attributes;
    for (const auto& member : declaration().members()) {
        (member->methodFunction != nullptr ? methods : attributes).insert(utf8(member->name));
    }
    EXPECT_THAT(attributes, testing::ElementsAre("FALSE", "TRUE", "ИСТИНА", "ЛОЖЬ"));
    std::set<std::string> wanted;
    for (const localMethodRow& row : localLibrary::rows()) {
        wanted.insert(utf8(row.english));
        if (!row.russian.empty()) {
            wanted.insert(utf8(row.russian));
        }
    }
    EXPECT_EQ(methods, wanted);
}

TEST_F(contextClassTest, theBooleanWordsComeBeforeVariables) {
    localContextUTF8 context;
    context.varDeclare(u"ИСТИНА").value->setVal(5.0);
    context.varDeclare(u"FALSE").value->setVal(6.0);
    const std::pair<const char16_t*, const char*> rows[] = {
        {u"TRUE", "ИСТИНА"}, {u"true", "ИСТИНА"}, {u"Истина", "ИСТИНА"}, {u"ИСТИНА", "ИСТИНА"},
        {u"FALSE", "ЛОЖЬ"},  {u"False", "ЛОЖЬ"},  {u"ложь", "ЛОЖЬ"},     {u"ЛОЖЬ", "ЛОЖЬ"},
    };
    for (const auto& [name, wanted] : rows) {
        std::string text;
        EXPECT_EQ(read(context, name, &text), 54) << utf8(name);
        EXPECT_EQ(text, wanted) << utf8(name);
        localValueDescription value;
        int status = localErrorTypeOK;
        EXPECT_TRUE(context.nameRead(status, name, value));
        EXPECT_EQ(value.type, localValueTypeBOOLEAN);
    }
}

TEST_F(contextClassTest, attributesAreTheVariables) {
    localContextUTF8 outer;
    localContextUTF8 inner(&outer);
    outer.varDeclare(u"Имя").value->setVal(u"значение");
    std::string text;
    EXPECT_EQ(read(inner, u"имя", &text), 54);
    EXPECT_EQ(text, "значение");
    EXPECT_EQ(read(inner, u"Нет"), 10);
}

TEST_F(contextClassTest, theNameOfAFunctionWrittenInCapitalsCannotBeRead) {
    localContextUTF8 context;
    context.varDeclare(u"abs").value->setVal(3.0);
    EXPECT_EQ(read(context, u"ABS"), 8);
    EXPECT_EQ(read(context, u"abs"), 54);
    EXPECT_EQ(evaluate("ABS", &context).status, 8);
    EXPECT_EQ(evaluate("abs", &context).text, "3");
}

TEST_F(contextClassTest, aContextThatHasGoneIsRefused) {
    localValueDescription cell;
    {
        localContextUTF8 context;
        context.varDeclare(u"x").value->setVal(1.0);
        cell.objectBind(&context, localContextUTF8::classDeclaration());
        int status = localErrorTypeOK;
        localSlot value;
        EXPECT_TRUE(cell.getAttr(status, nullptr, u"x", value.asResult()));
    }
    int status = localErrorTypeOK;
    localSlot value;
    EXPECT_FALSE(cell.getAttr(status, nullptr, u"x", value.asResult()));
    EXPECT_EQ(status, 18);
    const localArguments none;
    EXPECT_FALSE(cell.valueMethodExec(status, localContextUTF8::globalContext, u"CONTEXTGET", &none,
                                      value.asResult()));
    EXPECT_EQ(status, 18);
}

TEST_F(contextClassTest, methodStatuses) {
    localContextUTF8& context = *localContextUTF8::globalContext;
    const auto call = [&](void* object, std::u16string_view name, const localArguments* args) {
        int status = localErrorTypeOK;
        localSlot result;
        const localMethodFunction method = declaration().classImplementationMethodFunction;
        method(status, &context, object, name, args, result.asResult());
        return status;
    };
    const localArguments none;
    EXPECT_EQ(call(&context, u"CONTEXTGET", &none), 54);
    EXPECT_EQ(call(&context, u"contextget", &none), 54);
    EXPECT_EQ(call(&context, u"CONTEXTGET", nullptr), 16);
    EXPECT_EQ(call(&context, u"NOSUCHNAME", &none), 27);
    EXPECT_EQ(call(nullptr, u"CONTEXTGET", &none), 29);
    EXPECT_EQ(call(nullptr, u"", &none), 54);
}

TEST_F(contextClassTest, aResultThatIsNotNullHaltsUnderOneName) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    void* object = localContextUTF8::globalContext;
    const localArguments none;
    EXPECT_HALT(
        declaration().classImplementationAttribGetFunction(status, nullptr, object, u"X", result),
        "localContextUTF8::classImplementationMethodFunction() result must be NULL!");
    EXPECT_HALT(declaration().classImplementationMethodFunction(status, nullptr, object, u"X",
                                                                &none, result),
                "localContextUTF8::classImplementationMethodFunction() result must be NULL!");
}

}  // namespace
