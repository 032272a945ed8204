// What the tests of lists and tables share.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/countedClass.h"
#include "support/language.h"

// A cell that holds a number, a text or an object.
inline localValueDescription cellOf(double number) {
    localValueDescription cell;
    cell.setVal(number);
    return cell;
}
inline localValueDescription cellOf(const char16_t* text) {
    localValueDescription cell;
    cell.setVal(text);
    return cell;
}
inline localValueDescription booleanCell(bool value) {
    localValueDescription cell;
    cell.setBoolean(value);
    return cell;
}

// What calling a method of the object in a cell gave.
struct called {
    bool done = false;
    int status = localErrorTypeOK;
    std::string type;
    std::string text;
};

inline called call(const localValueDescription& object, const char16_t* method,
                   std::initializer_list<localValueDescription*> cells = {}) {
    const std::vector<localValueDescription*> list(cells);
    const localArguments args(list);
    called outcome;
    localSlot result;
    outcome.done =
        object.valueMethodExec(outcome.status, nullptr, method, &args, result.asResult());
    outcome.type = utf8(result->typeName());
    outcome.text = utf8(result->toString());
    return outcome;
}

// No list, table or counted object may be left behind a test.
class containerTest : public languageTest {
protected:
    void TearDown() override {
        cell.reset();
        EXPECT_EQ(localValueList::counterStaticTotal, lists_) << "lists left alive";
        EXPECT_EQ(localValueTable::counterStaticTotal, tables_) << "tables left alive";
        EXPECT_EQ(countedObject::alive, objects_) << "objects left alive";
        EXPECT_EQ(localValueDescription::counterStaticTotal, cells_) << "cells left alive";
        languageTest::TearDown();
    }

    // For a test that needs an object; let go of behind it.
    localValueDescription cell;

private:
    // The first slot makes the store, whose cells are none of a test's.
    static std::int64_t liveCells() {
        localSlot::reserve().clear();
        return localValueDescription::counterStaticTotal;
    }

    std::int64_t lists_ = localValueList::counterStaticTotal;
    std::int64_t tables_ = localValueTable::counterStaticTotal;
    std::int64_t objects_ = countedObject::alive;
    std::int64_t cells_ = liveCells();
};
