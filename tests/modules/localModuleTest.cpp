// Libraries that come as files beside the program. A loaded module stays loaded, so no test here
// takes for granted that its module is not there yet.
#include "localInterpretatorUTF8/library/localModule.h"

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/value/localCounters.h"

namespace {

constexpr std::u16string_view pictures[] = {u"PIXMAPASBASE64FROMFILEGET", u"PIXMAPASBASE64PARTGET"};
constexpr std::u16string_view bridge[] = {u"V77"};
constexpr std::u16string_view document[] = {u"TABLEDOCUMENT"};
constexpr std::u16string_view color[] = {u"COLOR"};
constexpr std::u16string_view formEdit[] = {u"FORMEDIT"};
constexpr std::u16string_view formOpen[] = {u"FORMOPEN"};
constexpr std::u16string_view network[] = {u"NETWORKREQUESTEXECSYNC"};
constexpr std::u16string_view database[] = {u"DATABASE"};
constexpr std::u16string_view date[] = {u"DATECHOOSEASSTRING"};
constexpr std::u16string_view pixmapShow[] = {u"PIXMAPASBASE64SHOW"};
constexpr std::u16string_view stringShow[] = {u"STRINGSHOW"};

constexpr localModuleOffer offers[] = {
    {.file = u"languageModule", .functions = pictures, .classes = bridge, .startClasses = document},
    {.file = u"missingModule", .functions = color, .classes = database},
    {.file = u"entrylessModule", .functions = formEdit},
    {.file = u"textModule", .functions = formOpen},
    {.file = u"strangerModule", .functions = network},
    {.file = u"refusingModule", .functions = date},
    {.file = u"drawingModule", .functions = pixmapShow},
    {.file = u"otherDrawingModule", .functions = stringShow},
};

class localModuleTest : public libraryTest {
protected:
    localModuleTest() {
        static const bool once = [] {
            localStd::argv0Set(localPlatform::programPath(""));
            for (const localModuleOffer& module : offers) {
                localModuleAdd(module);
            }
            return true;
        }();
        EXPECT_TRUE(once);
    }

    // The value's text, or the status of a failure.
    std::string valueOf(std::string_view expression) {
        const evaluated outcome = evaluate(expression, &context);
        lines = outcome.lines;
        return outcome.status == localErrorTypeOK ? outcome.text : std::to_string(outcome.status);
    }
    // Declares a variable with the value of an expression.
    void set(std::u16string_view name, std::string_view expression) {
        localSlot value;
        int status = localErrorTypeOK;
        std::uint32_t position = 0;
        ASSERT_TRUE(localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
            status, wide(expression), position, value.asResult(), &context, false));
        context.varDeclare(name).value->assign(*value);
    }
    static std::int64_t documents() {
        const std::int64_t* const total = localCounters()[5].total;
        return total == nullptr ? -1 : *total;
    }

    localContextUTF8 context;
    std::vector<std::string> lines;  // of the last valueOf()
};

TEST_F(localModuleTest, aFunctionLoadsItsModuleAndWorksInTheCallingScope) {
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"2*3+1\")"), "7");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"2*3+2\")"), "8");
    set(u"price", "120");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"price/2\")"), "60");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(1)"), "33");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET()"), "31");
}

TEST_F(localModuleTest, aModuleDefinesVariables) {
    EXPECT_EQ(valueOf("PIXMAPASBASE64PARTGET(\"variable\",41,0)"), "1");
    EXPECT_EQ(valueOf("fromTheModule+1"), "42");
    EXPECT_EQ(context.variables().size(), 1U);
}

TEST_F(localModuleTest, aModuleMakesObjectsOfTheLanguageAndCallsTheirMethods) {
    const std::int64_t before = localValueList::counterStaticTotal;
    set(u"list", "PIXMAPASBASE64PARTGET(\"list\",0,0)");
    EXPECT_EQ(localValueList::counterStaticTotal, before + 1);
    EXPECT_EQ(valueOf("list.SIZE()"), "2");
    EXPECT_EQ(valueOf("list.VALUEGET(2)"), "2");
    EXPECT_EQ(valueOf("ISVALUELIST(list)"), "ИСТИНА");
    context.varRemoveAll();
    EXPECT_EQ(localValueList::counterStaticTotal, before);
}

TEST_F(localModuleTest, aClassOfAModuleComesWithClassload) {
    EXPECT_EQ(valueOf("CLASSLOAD(\"V77\")"), "ИСТИНА");
    EXPECT_EQ(valueOf("CLASSLOADED(\"V77\")"), "ИСТИНА");
    const std::int64_t before = documents();
    set(u"kept", "CREATEOBJECT(\"V77\")");
    EXPECT_EQ(documents(), before + 1);
    EXPECT_EQ(valueOf("kept.KEEP(\"value\")"), "1");
    EXPECT_EQ(valueOf("kept.ХРАНИМОЕ()"), "value");
    EXPECT_EQ(valueOf("kept.KEEP()"), "31");
    EXPECT_EQ(valueOf("kept.FAIL(7)"), "7");
    EXPECT_EQ(valueOf("kept.NOSUCH()"), "27");
    EXPECT_EQ(valueOf("kept.ABOVE()"), "77");
    set(u"other", "kept");
    EXPECT_EQ(documents(), before + 1);
    context.varRemoveAll();
    EXPECT_EQ(documents(), before);
}

TEST_F(localModuleTest, aStartClassIsThereWithoutClassload) {
    set(u"document", "CREATEOBJECT(\"ТабличныйДокумент\")");
    EXPECT_EQ(valueOf("document.KEEP(5)"), "1");
    EXPECT_EQ(valueOf("document.KEPT()"), "5");
    EXPECT_EQ(valueOf("CLASSLOADED(\"TABLEDOCUMENT\")"), "ИСТИНА");
    EXPECT_EQ(valueOf("CLASSLOAD(\"TABLEDOCUMENT\")"), "ИСТИНА");
}

TEST_F(localModuleTest, aStartClassIsListed) {
    context.dispClasses(u"TABLEDOC*");
    EXPECT_THAT(output.lines(),
                testing::Contains("ТАБЛИЧНЫЙДОКУМЕНТ (TABLEDOCUMENT)  - класс модуля с начала "));
}

TEST_F(localModuleTest, aModuleFillsMethodsOfClassesBelowIt) {
    valueOf("PIXMAPASBASE64FROMFILEGET(\"1\")");
    set(u"table", "CREATEOBJECT(\"VALUETABLE\")");
    EXPECT_EQ(valueOf("table.SHOW()"), "78");
}

// Behind each the fixture finds the slots as they were.
TEST_F(localModuleTest, failuresInAModuleEndTheCallOnly) {
    EXPECT_EQ(valueOf("PIXMAPASBASE64PARTGET(\"range\",0,0)"), "7");
    EXPECT_EQ(valueOf("PIXMAPASBASE64PARTGET(\"memory\",0,0)"), "16");
    EXPECT_THAT(lines, testing::Contains("Недостаточно памяти!"));
    EXPECT_EQ(valueOf("PIXMAPASBASE64PARTGET(\"length\",0,0)"), "16");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"nosuch\")"), "10");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"1+\")"), "37");
    EXPECT_EQ(valueOf("PIXMAPASBASE64FROMFILEGET(\"1\")"), "1");
}

// Thrown in one file and caught in the other.
TEST_F(localModuleTest, whatAMethodOfAModuleThrowsEndsTheCallOnly) {
    EXPECT_EQ(valueOf("CLASSLOAD(\"V77\")"), "ИСТИНА");
    set(u"kept", "CREATEOBJECT(\"V77\")");
    EXPECT_EQ(valueOf("kept.KEEP(\"value\")"), "1");
    EXPECT_EQ(valueOf("kept.THROW(\"memory\")"), "16");
    EXPECT_THAT(lines, testing::Contains("Недостаточно памяти!"));
    EXPECT_EQ(valueOf("kept.БРОСИТЬ(\"length\")"), "16");
    EXPECT_EQ(valueOf("kept.KEPT()"), "value");
    context.varRemoveAll();
}

TEST_F(localModuleTest, aMissingFileIsStatus26WithoutAWord) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(valueOf("COLOR(\"red\")"), "26");
        EXPECT_THAT(lines, testing::Not(testing::Contains(testing::StartsWith("Module ["))));
        EXPECT_EQ(valueOf("CLASSLOAD(\"DATABASE\")"), "26");
    }
    EXPECT_EQ(valueOf("CREATEOBJECT(\"DATABASE\")"), "14");
}

TEST_F(localModuleTest, aFileThatIsNoModuleIsStatus26AndSaysWhy) {
    const auto told = [this](std::string_view expression, const std::string& file,
                             const std::string& reason) {
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(valueOf(expression), "26");
            EXPECT_THAT(lines, testing::Contains(testing::AllOf(
                                   testing::StartsWith("Module [" + file + "] cannot be loaded: "),
                                   testing::HasSubstr(reason))));
        }
    };
    told("FORMEDIT(\"x\")", "entrylessModule", "localModule");
    told("FORMOPEN(\"x\")", "textModule", "textModule");
    told("NETWORKREQUESTEXECSYNC(\"a\",\"b\")", "strangerModule", "whatNobodyHas");
}

TEST_F(localModuleTest, aModuleThatCannotWorkHereIsStatus26) {
    EXPECT_EQ(valueOf("DATECHOOSEASSTRING()"), "26");
    EXPECT_EQ(valueOf("DATECHOOSEASSTRING()"), "26");
}

#ifdef KORVO_DRAWING_MODULES
// Two modules, one application; numbers stay those of the language.
TEST_F(localModuleTest, modulesDrawWithoutADisplayWithOneApplication) {
    const std::string first = valueOf("PIXMAPASBASE64SHOW(\"Korvo\")");
    EXPECT_THAT(first, testing::StartsWith("drawn|offscreen|C|"));
    EXPECT_EQ(valueOf("STRINGSHOW(\"Korvo\")"), first);
    EXPECT_EQ(valueOf("PIXMAPASBASE64SHOW(\"\")").substr(0, 6), "blank|");
    EXPECT_EQ(valueOf("1.5+1"), "2.5");
}
#endif

}  // namespace
