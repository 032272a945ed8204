// The class VALUETABLE as native code and the surroundings see it.
#include "container/containers.h"
#include "localInterpretatorUTF8/library/localExtension.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localCounters.h"

namespace {

class localValueTableClassTest : public containerTest {
protected:
    localValueTableClassTest() {
        cell.objectBind(new localValueTable, localValueTable::classDeclaration());
        dialogs.screen = true;
    }
    void TearDown() override {
        fillShow(localBroughtFromAbove);
        containerTest::TearDown();
    }
    static void fillShow(localHandler handler) {
        const localExtensionMethod methods[] = {{u"VALUETABLE", u"SHOW", handler}};
        localExtensionAdd({.name = u"test", .methods = methods});
    }
    localValueTable& table() { return *localValueTable::of(cell); }
    // Two columns A and B, two rows.
    void fill() {
        table().columnAdd(u"a");
        table().columnAdd(u"b");
        table().rowAdd();
        table().rowAdd();
        table().cell(0, 0).setVal(u"x");
        table().cell(0, 1).setVal(1.5);
        table().cell(1, 0).setBoolean(true);
    }

    recordingHost dialogs;
};

TEST_F(localValueTableClassTest, isThereFromTheStartUnderBothNames) {
    localContextUTF8& global = *localContextUTF8::globalContext;
    EXPECT_EQ(global.classFind(u"ValueTable"), localValueTable::classDeclaration());
    EXPECT_EQ(global.classFind(u"ТаблицаЗначений"), localValueTable::classDeclaration());
    EXPECT_EQ(utf8(localValueTable::classDeclaration()->summary()),
              "ТАБЛИЦАЗНАЧЕНИЙ (VALUETABLE)  - класс ТаблицаЗначений ");
    int status = localErrorTypeOK;
    EXPECT_TRUE(localLibrary::classLoad(status, global, u"ТаблицаЗначений"));
    EXPECT_EQ(status, localErrorTypeOK);
}

TEST_F(localValueTableClassTest, theListingOfMemoryCountsIt) {
    for (const localCounter& counter : localCounters()) {
        if (counter.name == "localValueTable::counterStaticTotal") {
            EXPECT_EQ(counter.total, &localValueTable::counterStaticTotal);
            return;
        }
    }
    FAIL() << "no such counter";
}

TEST_F(localValueTableClassTest, membersAreTheConstructorTheDestructorAndAllNames) {
    std::vector<std::string> names;
    for (const auto& member : localValueTable::classDeclaration()->members()) {
        EXPECT_NE(member->methodFunction, nullptr) << utf8(member->name);
        names.push_back(utf8(member->name));
    }
    EXPECT_THAT(names,
                testing::UnorderedElementsAre(
                    "", "~", "TOSTRING", "СТРОКА", "CLEAR", "ОЧИСТИТЬ", "COLUMNADD",
                    "КОЛОНКАДОБАВИТЬ", "COLUMNNAMEGET", "КОЛОНКАИМЯПОЛУЧИТЬ", "COLUMNNUMBERGET",
                    "КОЛОНКАНОМЕРПОЛУЧИТЬ", "COLUMNPARAMETERSGET", "КОЛОНКАПАРАМЕТРЫПОЛУЧИТЬ",
                    "COLUMNSCOUNT", "КОЛОНКИКОЛИЧЕСТВО", "ROWADD", "РЯДДОБАВИТЬ", "ROWACTUALGET",
                    "РЯДТЕКУЩИЙПОЛУЧИТЬ", "ROWACTUALSET", "РЯДТЕКУЩИЙУСТАНОВИТЬ", "ROWCHOOSE",
                    "РЯДВЫБРАТЬ", "ROWSCOUNT", "РЯДЫКОЛИЧЕСТВО", "SHOW", "ПОКАЗАТЬ", "SORT",
                    "СОРТИРОВАТЬ", "VALUEGET", "ЗНАЧЕНИЕПОЛУЧИТЬ", "VALUESET", "ЗНАЧЕНИЕУСТАНОВИТЬ",
                    "FILLFROMJSON"));
}

TEST_F(localValueTableClassTest, namesWithoutAMemberReachTheMethodFunction) {
    EXPECT_NE(localValueTable::classDeclaration()->classImplementationMethodFunction, nullptr);
    EXPECT_EQ(call(cell, u"NOSUCH").status, localErrorTypeMETHODUNKNOWN);
    void* object = nullptr;
    int status = localErrorTypeOK;
    localSlot result;
    const localArguments none;
    EXPECT_FALSE(localValueTable::classDeclaration()->methodExec(status, nullptr, object, u"NOSUCH",
                                                                 &none, result.asResult()));
    EXPECT_EQ(status, localErrorTypeNOSTATICMETHOD);
}

TEST_F(localValueTableClassTest, methodsWantArguments) {
    void* object = &table();
    int status = localErrorTypeOK;
    localSlot result;
    EXPECT_FALSE(localValueTable::classDeclaration()->methodExec(status, nullptr, object, u"ROWADD",
                                                                 nullptr, result.asResult()));
    EXPECT_EQ(status, localErrorTypeCODE);
}

TEST_F(localValueTableClassTest, isDeletedWithItsLastHolder) {
    fill();
    const std::int64_t before = localValueTable::counterStaticTotal;
    localValueDescription second(cell);
    EXPECT_EQ(table().linkCounter, 2U);
    cell.reset();
    EXPECT_EQ(localValueTable::counterStaticTotal, before);
    second.reset();
    EXPECT_EQ(localValueTable::counterStaticTotal, before - 1);
}

TEST_F(localValueTableClassTest, columnsAreAttributesOfTheCurrentRow) {
    fill();
    const auto read = [this](const char16_t* name, localSlot& value) {
        int status = localErrorTypeRETURN;
        cell.getAttr(status, nullptr, name, value.asResult());
        return status;
    };
    localSlot value;
    EXPECT_EQ(read(u"a", value), localErrorTypeOUTOFRANGE);
    table().rowActual = 1;
    EXPECT_EQ(read(u"a", value), localErrorTypeOK);
    EXPECT_EQ(value->wStr.view(), u"x");
    EXPECT_EQ(read(u"B", value), localErrorTypeOK);
    EXPECT_EQ(value->num, 1.5);
    EXPECT_EQ(read(u"c", value), localErrorTypeOUTOFRANGE);
    EXPECT_EQ(read(u"SORT", value), localErrorTypeATTRIBUTENOTREADABLE);
    table().rowActual = 3;
    EXPECT_EQ(read(u"a", value), localErrorTypeOUTOFRANGE);
}

TEST_F(localValueTableClassTest, columnsAreNotWrittenAsAttributes) {
    fill();
    table().rowActual = 1;
    int status = localErrorTypeOK;
    const localValueDescription value = cellOf(5);
    EXPECT_FALSE(cell.setAttr(status, nullptr, u"a", &value));
    EXPECT_EQ(status, localErrorTypeATTRIBUTEWRONG);
    EXPECT_FALSE(cell.setAttr(status, nullptr, u"SORT", &value));
    EXPECT_EQ(status, localErrorTypeATTRIBUTENOTWRITEABLE);
}

TEST_F(localValueTableClassTest, resultsThatAreThereHalt) {
    const localClassDeclaration& declaration = *localValueTable::classDeclaration();
    void* object = &table();
    int status = localErrorTypeOK;
    const localArguments none;
    localSlot slot = localSlot::reserve();
    localValueDescription* result = slot.get();
    EXPECT_HALT(declaration.classImplementationMethodFunction(status, nullptr, object, u"SORT",
                                                              &none, result),
                "localValueTable::classImplementationMethodFunction() result must be NULL!");
    EXPECT_HALT(
        declaration.classImplementationAttribGetFunction(status, nullptr, object, u"A", result),
        "localContextUTF8::classImplementationMethodFunction() result must be NULL!");
}

// A failure leaves true behind: only the status tells.
TEST_F(localValueTableClassTest, valuesetAnswersTrueInAnyCase) {
    fill();
    localValueDescription one = cellOf(1);
    localValueDescription three = cellOf(3);
    const called outcome = call(cell, u"VALUESET", {&three, &one, &one});
    EXPECT_EQ(outcome.status, localErrorTypeOUTOFRANGE);
    EXPECT_EQ(outcome.type, "БУЛЕВО");
    EXPECT_EQ(outcome.text, "ИСТИНА");
}

TEST_F(localValueTableClassTest, valuegetLeavesTheNumberZeroOnFailure) {
    fill();
    localValueDescription one = cellOf(1);
    localValueDescription three = cellOf(3);
    const called outcome = call(cell, u"VALUEGET", {&three, &one});
    EXPECT_EQ(outcome.status, localErrorTypeOUTOFRANGE);
    EXPECT_EQ(outcome.type, "ЧИСЛО");
    EXPECT_EQ(outcome.text, "0");
}

TEST_F(localValueTableClassTest, choosesARowByOneColumnOrAll) {
    fill();
    dialogs.answers = {std::size_t{2}};
    localValueDescription title = cellOf(u"which");
    localValueDescription all = cellOf(u"");
    EXPECT_EQ(call(cell, u"ROWCHOOSE", {&all, &title}).text, "2");
    EXPECT_EQ(dialogs.calls.back(), "choose [which] from 0 |x 1.5 | |ИСТИНА 0 |");
    localValueDescription column = cellOf(u"b");
    EXPECT_EQ(call(cell, u"РЯДВЫБРАТЬ", {&column, &title}).text, "0");
    EXPECT_EQ(dialogs.calls.back(), "choose [which] from 0 |1.5 | |0 |");
    EXPECT_EQ(table().rowActual, 0U);
}

TEST_F(localValueTableClassTest, choosesNothingByAColumnThatIsNotThereOrWithNobodyToAsk) {
    fill();
    localValueDescription title = cellOf(u"which");
    localValueDescription column = cellOf(u"c");
    EXPECT_EQ(call(cell, u"ROWCHOOSE", {&column, &title}).status, localErrorTypeOUTOFRANGE);
    EXPECT_TRUE(dialogs.calls.empty());
    column.setVal(u"a");
    dialogs.screen = false;
    EXPECT_EQ(call(cell, u"ROWCHOOSE", {&column, &title}).status, localErrorTypeGRAPHICONLY);
}

TEST_F(localValueTableClassTest, showIsWhatALibraryAboveFillsIn) {
    EXPECT_EQ(call(cell, u"SHOW").status, localErrorTypeGRAPHICONLY);
    static void* shown;
    shown = nullptr;
    fillShow([](localCall& facts) {
        shown = facts.object;
        return facts.done();
    });
    localValueDescription wrong = cellOf(1.0);
    EXPECT_EQ(call(cell, u"SHOW", {&wrong}).status, localErrorTypePARAMETERCOUNT);
    EXPECT_EQ(shown, nullptr);
    const called outcome = call(cell, u"ПОКАЗАТЬ");
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.text, "1");
    EXPECT_EQ(shown, &table());
    fillShow([](localCall& facts) { return facts.fail(localErrorTypeFILENOTFOUND); });
    EXPECT_EQ(call(cell, u"SHOW").status, localErrorTypeFILENOTFOUND);
}

}  // namespace
