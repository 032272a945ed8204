// The class VALUELIST as native code and the surroundings see it.
#include <cmath>

#include "container/containers.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localCounters.h"

namespace {

class localValueListClassTest : public containerTest {
protected:
    localValueListClassTest() {
        cell.objectBind(new localValueList, localValueList::classDeclaration());
        dialogs.screen = true;
    }
    localValueList& list() { return *localValueList::of(cell); }

    recordingHost dialogs;
};

TEST_F(localValueListClassTest, isThereFromTheStartUnderBothNames) {
    localContextUTF8& global = *localContextUTF8::globalContext;
    EXPECT_EQ(global.classFind(u"ValueList"), localValueList::classDeclaration());
    EXPECT_EQ(global.classFind(u"СписокЗначений"), localValueList::classDeclaration());
    EXPECT_EQ(utf8(localValueList::classDeclaration()->summary()),
              "СПИСОКЗНАЧЕНИЙ (VALUELIST)  - класс СписокЗначений ");
    EXPECT_EQ(localValueList::classDeclaration()->classImplementationMethodFunction, nullptr);
    localClassDeclaration second;
    second.nameEng = u"VALUELIST";
    EXPECT_FALSE(global.classRegister(&second));
}

TEST_F(localValueListClassTest, classloadKnowsIt) {
    int status = localErrorTypeOK;
    EXPECT_TRUE(localLibrary::classLoad(status, *localContextUTF8::globalContext, u" ValueList "));
    EXPECT_EQ(status, localErrorTypeOK);
}

TEST_F(localValueListClassTest, theListingOfMemoryCountsIt) {
    for (const localCounter& counter : localCounters()) {
        if (counter.name == "localValueList::counterStaticTotal") {
            EXPECT_EQ(counter.total, &localValueList::counterStaticTotal);
            return;
        }
    }
    FAIL() << "no such counter";
}

TEST_F(localValueListClassTest, membersAreTheConstructorTheDestructorAndAllNames) {
    std::vector<std::string> names;
    for (const auto& member : localValueList::classDeclaration()->members()) {
        EXPECT_NE(member->methodFunction, nullptr) << utf8(member->name);
        EXPECT_EQ(member->attribGetFunction, nullptr) << utf8(member->name);
        names.push_back(utf8(member->name));
    }
    EXPECT_THAT(names,
                testing::UnorderedElementsAre(
                    "", "~", "TOSTRING", "CLEAR", "ОЧИСТИТЬ", "SHOW", "ПОКАЗАТЬ", "ROWCHOOSE",
                    "РЯДВЫБРАТЬ", "SIZE", "КОЛИЧЕСТВО", "TOJSON", "VALUEADD", "ЗНАЧЕНИЕДОБАВИТЬ",
                    "VALUEGET", "ЗНАЧЕНИЕПОЛУЧИТЬ", "VALUEGETBYPRESENTATION",
                    "ЗНАЧЕНИЕПОЛУЧИТЬПОПРЕДСТАВЛЕНИЮ", "VALUEINSERT", "ЗНАЧЕНИЕВСТАВИТЬ",
                    "VALUEPRESENTATIONGET", "ЗНАЧЕНИЕПРЕДСТАВЛЕНИЕПОЛУЧИТЬ", "VALUEREMOVE",
                    "ЗНАЧЕНИЕУДАЛИТЬ", "VALUESET", "ЗНАЧЕНИЕУСТАНОВИТЬ", "VALUESETBYPRESENTATION",
                    "ЗНАЧЕНИЕУСТАНОВИТЬПОПРЕДСТАВЛЕНИЮ", "VALUESETPRESENTATION",
                    "ЗНАЧЕНИЕУСТАНОВИТЬПРЕДСТАВЛЕНИЕ"));
}

// The method function itself, past the class's own checks.
TEST_F(localValueListClassTest, methodsWantAnObjectAndArguments) {
    const localMethodFunction method =
        localValueList::classDeclaration()->memberFind(u"SIZE")->methodFunction;
    void* object = nullptr;
    int status = localErrorTypeOK;
    localSlot result;
    const localArguments none;
    EXPECT_FALSE(method(status, nullptr, object, u"SIZE", &none, result.asResult()));
    EXPECT_EQ(status, localErrorTypeSTATICCALL);
    object = &list();
    EXPECT_FALSE(method(status, nullptr, object, u"SIZE", nullptr, result.asResult()));
    EXPECT_EQ(status, localErrorTypeCODE);
    EXPECT_TRUE(method(status, nullptr, object, u"SIZE", &none, result.asResult()));
    EXPECT_EQ(status, localErrorTypeOK);
    EXPECT_EQ(result->num, 0.0);
}

TEST_F(localValueListClassTest, aStaticCallOfAMethodIsRefused) {
    void* object = nullptr;
    int status = localErrorTypeOK;
    localSlot result;
    const localArguments none;
    EXPECT_FALSE(localValueList::classDeclaration()->methodExec(status, nullptr, object, u"NONE",
                                                                &none, result.asResult()));
    EXPECT_EQ(status, localErrorTypeNOSTATICMETHOD);
}

TEST_F(localValueListClassTest, aResultThatIsThereHalts) {
    const localMethodFunction method =
        localValueList::classDeclaration()->memberFind(u"SIZE")->methodFunction;
    void* object = &list();
    int status = localErrorTypeOK;
    const localArguments none;
    localSlot slot = localSlot::reserve();
    localValueDescription* result = slot.get();
    EXPECT_HALT(method(status, nullptr, object, u"SIZE", &none, result),
                "localValueList::classImplementationMethodFunction() result must be NULL!");
}

TEST_F(localValueListClassTest, showsObjectsByTheirTextAndOthersWithTheirType) {
    list().valueAppend(1.5);
    list().valueAppend(u"text", u"presentation");
    list().valueAppend(booleanCell(false));
    list().itemAppend().objectBind(new countedObject, countedClass());
    localValueDescription title = cellOf(u"all");
    const called shown = call(cell, u"SHOW", {&title});
    EXPECT_TRUE(shown.done);
    EXPECT_EQ(shown.text, "1");
    EXPECT_THAT(dialogs.calls,
                testing::ElementsAre("cursor arrow",
                                     "list [all] |(ЧИСЛО) \"1.5\"| |(СТРОКА) \"text\"| "
                                     "|(БУЛЕВО) \"ЛОЖЬ\"| |counted|",
                                     "cursor restored"));
}

TEST_F(localValueListClassTest, showNeedsNoTitleButSomebodyToShowTo) {
    EXPECT_TRUE(call(cell, u"ПОКАЗАТЬ").done);
    EXPECT_EQ(dialogs.calls.at(1), "list []");
    dialogs.screen = false;
    EXPECT_EQ(call(cell, u"SHOW").status, localErrorTypeGRAPHICONLY);
    EXPECT_EQ(dialogs.calls.back(), "cursor restored");
}

TEST_F(localValueListClassTest, choosesAmongPresentations) {
    list().valueAppend(1.0, u"one");
    list().valueAppend(2.0, u"two");
    dialogs.answers = {std::size_t{2}};
    localValueDescription title = cellOf(u"which");
    localValueDescription start = cellOf(2.9);
    EXPECT_EQ(call(cell, u"ROWCHOOSE", {&title, &start}).text, "2");
    EXPECT_THAT(dialogs.calls,
                testing::ElementsAre("cursor arrow", "choose [which] from 2 |one| |two|",
                                     "cursor restored"));
    EXPECT_EQ(call(cell, u"РЯДВЫБРАТЬ").text, "0");
    EXPECT_EQ(dialogs.calls.at(4), "choose [] from 0 |one| |two|");
    EXPECT_EQ(call(cell, u"ROWCHOOSE").status, localErrorTypeOK);
    dialogs.screen = false;
    EXPECT_EQ(call(cell, u"ROWCHOOSE").status, localErrorTypeGRAPHICONLY);
    EXPECT_EQ(dialogs.calls.back(), "cursor restored");
}

TEST_F(localValueListClassTest, aStartRowThatIsNotThereAsksNobody) {
    list().valueAppend(1.0, u"one");
    localValueDescription title = cellOf(u"which");
    for (const double row : {2.0, -1.0, 1e300, std::nan("")}) {
        localValueDescription start = cellOf(row);
        EXPECT_EQ(call(cell, u"ROWCHOOSE", {&title, &start}).status, localErrorTypeOUTOFRANGE)
            << row;
    }
    EXPECT_TRUE(dialogs.calls.empty());
}

// A dialog lets the rest of the program run, and that may let go of the list.
TEST_F(localValueListClassTest, mayGoWhileItsRowsAreChosen) {
    class LettingGo final : public recordingHost {
    public:
        std::optional<std::size_t>
        chooseRow(std::u16string_view, const std::vector<std::u16string>&, std::size_t) override {
            cell->reset();
            return 1;
        }
        localValueDescription* cell = nullptr;
    } lettingGoHost;
    list().valueAppend(1.0, u"one");
    lettingGoHost.cell = &cell;
    EXPECT_EQ(call(cell, u"ROWCHOOSE").text, "1");
}

}  // namespace
