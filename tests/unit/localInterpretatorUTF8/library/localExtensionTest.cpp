// What libraries above bring. What is filled stays filled, so most of these run in processes of
// their own.
#include "localInterpretatorUTF8/library/localExtension.h"

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/library/localModule.h"
#include "support/countedClass.h"

namespace {

class localExtensionTest : public libraryTest {
protected:
    static localClassDeclarations counted() {
        static localClassDeclaration* const declarations[] = {countedClass()};
        return declarations;
    }
    // Two classes that come together, the second under a name that CLASSLOAD does not know.
    static localClassDeclarations countedAndCompanion() {
        static constexpr localMethodRow rows[] = {{u"TREESHOW", u"", "", localBroughtFromAbove}};
        static constexpr localClassTable companion = {
            .nameEng = u"COMPANION",
            .nameRus = u"СПУТНИК",
            .description = u"",
            .nativeName = u"companion",
            .native = countedTable.native,
            .methods = rows,
            .attributes = {},
        };
        static localClassDeclaration* const declarations[] = {countedClass(),
                                                              localTableClass<companion>()};
        return declarations;
    }

    static void fillFunction(std::u16string_view english, localHandler handler) {
        const localExtensionFunction functions[] = {{english, handler}};
        localExtensionAdd({.name = u"lower", .functions = functions});
    }
    static void fillClass(std::u16string_view nameEng, localClassDeclarations (*declare)()) {
        const localExtensionClass classes[] = {{nameEng, declare}};
        localExtensionAdd({.name = u"lower", .classes = classes});
    }
    static void fillStartClass(std::u16string_view nameEng, localClassDeclarations (*declare)()) {
        const localExtensionClass classes[] = {{nameEng, declare}};
        localExtensionAdd({.name = u"lower", .startClasses = classes});
    }
    static void fillMethod(std::u16string_view className, std::u16string_view english) {
        const localExtensionMethod methods[] = {
            {className, english, [](localCall& facts) { return facts.give(7.0); }}};
        localExtensionAdd({.name = u"upper", .methods = methods});
    }
    static void fillCounter(std::string_view name) {
        const localCounter counters[] = {{name, nullptr}};
        localExtensionAdd({.name = u"lower", .counters = counters});
    }
    static void offer(const localModuleOffer& names) {
        // An offer is kept for good.
        localModuleAdd(*new localModuleOffer(names));
    }

    // The value's text, or the status of a failure.
    std::string valueOf(std::string_view expression) {
        const evaluated outcome = evaluate(expression, localContextUTF8::globalContext);
        return outcome.status == localErrorTypeOK ? outcome.text : std::to_string(outcome.status);
    }
    // The same for a method of a new object.
    template <class... Values>
    std::string methodOf(std::u16string_view className, std::u16string_view method,
                         const Values&... values) {
        int status = localErrorTypeOK;
        localSlot object;
        localContextUTF8& context = *localContextUTF8::globalContext;
        if (!context.createObj(status, className, object.asResult())) {
            return std::to_string(status);
        }
        std::vector<localSlot> held;
        (held.push_back(argument(values)), ...);
        std::vector<localValueDescription*> pointers;
        for (const localSlot& slot : held) {
            pointers.push_back(slot.get());
        }
        const localArguments args(pointers);
        localSlot result;
        return object->valueMethodExec(status, &context, method, &args, result.asResult())
                   ? utf8(result->toString())
                   : std::to_string(status);
    }
};

bool giveOne(localCall& call) {
    return call.give(1.0);
}
bool giveTwo(localCall& call) {
    return call.give(2.0);
}

TEST_F(localExtensionTest, whatComesLaterReplacesWhatCameBefore) {
    EXPECT_IN_FRESH_PROCESS({
        fillFunction(u"COLOR", giveOne);
        EXPECT_EQ(valueOf("ЦВЕТ(\"red\")"), "1");
        fillFunction(u"COLOR", giveTwo);
        EXPECT_EQ(valueOf("ЦВЕТ(\"red\")"), "2");
        EXPECT_EQ(valueOf("COLOR(1)"), "33");
    });
}

TEST_F(localExtensionTest, aFunctionOfTheLanguageCanBeReplaced) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(valueOf("___TEST(\"x\")"), "26");
        fillFunction(u"___TEST", giveTwo);
        EXPECT_EQ(valueOf("___TEST(\"x\")"), "2");
    });
}

TEST_F(localExtensionTest, aClassComesWithClassload) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(valueOf("CLASSLOAD(\"V77\")"), "26");
        fillClass(u"V77", counted);
        EXPECT_EQ(valueOf("CREATEOBJECT(\"COUNTED\")"), "14");
        EXPECT_EQ(valueOf("CLASSLOAD(\"v77\")"), "ИСТИНА");
        EXPECT_EQ(valueOf("CLASSLOADED(\"COUNTED\")"), "ИСТИНА");
        EXPECT_EQ(methodOf(u"COUNTED", u"ADD", 1.0, 2.0), "3");
    });
}

TEST_F(localExtensionTest, aStartClassStandsInTheGlobalContext) {
    EXPECT_IN_FRESH_PROCESS({
        fillStartClass(u"TABLEDOCUMENT", counted);
        EXPECT_EQ(valueOf("CLASSLOADED(\"COUNTED\")"), "ИСТИНА");
        EXPECT_EQ(methodOf(u"СЧИТАЕМЫЙ", u"TOSTRING"), "counted");
        const std::size_t classes = localContextUTF8::globalContext->classes().size();
        fillStartClass(u"TABLEDOCUMENT", counted);
        int status = localErrorTypeOK;
        localContextUTF8::globalContext->init(status);
        EXPECT_EQ(localContextUTF8::globalContext->classes().size(), classes);
        EXPECT_TRUE(output.lines().empty()) << output.text();
    });
}

TEST_F(localExtensionTest, aStartClassOfAModuleThatIsNotThereIsStatus26) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(valueOf("CREATEOBJECT(\"TABLEDOCUMENT\")"), "14");
        static constexpr std::u16string_view names[] = {u"TABLEDOCUMENT"};
        offer({.file = u"missing", .startClasses = names});
        EXPECT_EQ(valueOf("CREATEOBJECT(\"TABLEDOCUMENT\")"), "26");
        EXPECT_EQ(valueOf("CREATEOBJECT(\"ТабличныйДокумент\")"), "26");
        EXPECT_EQ(valueOf("CLASSLOAD(\"TABLEDOCUMENT\")"), "26");
        EXPECT_EQ(valueOf("CLASSLOADED(\"TABLEDOCUMENT\")"), "ЛОЖЬ");
        EXPECT_EQ(valueOf("CREATEOBJECT(\"NOSUCH\")"), "14");
        localContextUTF8::globalContext->dispClasses(u"");
        EXPECT_EQ(output.lines().size(), 3U);
    });
}

TEST_F(localExtensionTest, aMethodIsFilledFromAbove) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(methodOf(u"VALUETABLE", u"SHOW"), "26");
        fillMethod(u"VALUETABLE", u"SHOW");
        EXPECT_EQ(methodOf(u"VALUETABLE", u"SHOW"), "7");
        EXPECT_EQ(methodOf(u"VALUETABLE", u"ПОКАЗАТЬ"), "7");
        EXPECT_EQ(methodOf(u"VALUETABLE", u"SHOW", 1.0), "31");
    });
}

TEST_F(localExtensionTest, aMethodOfAClassOfALibraryBetweenIsFilledBehindIt) {
    EXPECT_IN_FRESH_PROCESS({
        fillClass(u"DATABASE", countedAndCompanion);
        fillMethod(u"COMPANION", u"TREESHOW");
        EXPECT_EQ(valueOf("CLASSLOAD(\"DATABASE\")"), "ИСТИНА");
        EXPECT_EQ(methodOf(u"COMPANION", u"TREESHOW"), "7");
    });
}

// The words of a halt on a name that nobody declared.
#define UNDECLARED(bringer, kindAndName)                                                           \
    "[" bringer "] brings what nobody declared: " kindAndName "!"

TEST_F(localExtensionTest, aNameThatNobodyDeclaredHalts) {
    EXPECT_HALT(fillFunction(u"NOSUCH", giveOne), UNDECLARED("lower", "function [NOSUCH]"));
    EXPECT_HALT(fillFunction(u"ЦВЕТ", giveOne), UNDECLARED("lower", "function [ЦВЕТ]"));
    EXPECT_HALT(fillClass(u"COUNTED", counted), UNDECLARED("lower", "class [COUNTED]"));
    EXPECT_HALT(fillStartClass(u"БАЗАДАННЫХ", counted), UNDECLARED("lower", "class [БАЗАДАННЫХ]"));
    EXPECT_HALT(fillMethod(u"VALUETABLE", u"TREESHOW"),
                UNDECLARED("upper", "method [VALUETABLE.TREESHOW]"));
    EXPECT_HALT(fillMethod(u"NOSUCH", u"SHOW"), UNDECLARED("upper", "method [NOSUCH.SHOW]"));
    EXPECT_HALT(fillCounter("no::counterStaticTotal"),
                UNDECLARED("lower", "counter [no::counterStaticTotal]"));
}

// The class is known to CLASSLOAD, but the library that has its rows comes later in the list.
TEST_F(localExtensionTest, aMethodOfAClassThatComesLaterHalts) {
    EXPECT_HALT(fillMethod(u"DATABASE", u"TREESHOW"),
                UNDECLARED("upper", "method [DATABASE.TREESHOW]"));
    EXPECT_HALT(
        {
            fillMethod(u"COMPANION", u"TREESHOW");
            fillClass(u"DATABASE", countedAndCompanion);
        },
        UNDECLARED("upper", "method [COMPANION.TREESHOW]"));
}

TEST_F(localExtensionTest, anOfferOfWhatNobodyDeclaredHalts) {
    static constexpr std::u16string_view names[] = {u"NOSUCH"};
    EXPECT_HALT(offer({.file = u"module", .functions = names}),
                UNDECLARED("module", "function [NOSUCH]"));
    EXPECT_HALT(offer({.file = u"module", .classes = names}),
                UNDECLARED("module", "class [NOSUCH]"));
    EXPECT_HALT(offer({.file = u"module", .startClasses = names}),
                UNDECLARED("module", "class [NOSUCH]"));
}

}  // namespace
