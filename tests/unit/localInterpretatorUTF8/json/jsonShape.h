// The content of a value on one line, for comparing: 5, "text", ИСТИНА, a list as [key: value,
// value] and a table as {key: value}.
#pragma once

#include <string>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/language.h"

inline std::string shapeOf(const localValueDescription& value);

inline std::string shapeOf(const localValueList& list) {
    std::string text = "[";
    for (const localValueListItem& item : list.items()) {
        text += text.size() == 1 ? "" : ", ";
        text += item.presentation.empty() ? "" : utf8(item.presentation) + ": ";
        text += shapeOf(item.value);
    }
    return text + "]";
}

inline std::string shapeOf(const localValueTable& table) {
    std::string text = "{";
    for (std::size_t row = 0; row < table.rowsCount(); ++row) {
        text += row == 0 ? "" : ", ";
        text += utf8(table.cell(row, 0).toString()) + ": " + shapeOf(table.cell(row, 1));
    }
    return text + "}";
}

inline std::string shapeOf(const localValueDescription& value) {
    if (const localValueList* list = localValueList::of(value)) {
        return shapeOf(*list);
    }
    if (const localValueTable* table = localValueTable::of(value)) {
        return shapeOf(*table);
    }
    const std::string text = utf8(value.toString());
    return value.type == localValueTypeSTRING ? "\"" + text + "\"" : text;
}

// Live lists and tables are as many behind a test as before it.
class jsonTest : public languageTest {
protected:
    void TearDown() override {
        EXPECT_EQ(lists_, localValueList::counterStaticTotal) << "lists left";
        EXPECT_EQ(tables_, localValueTable::counterStaticTotal) << "tables left";
        languageTest::TearDown();
    }

private:
    std::int64_t lists_ = localValueList::counterStaticTotal;
    std::int64_t tables_ = localValueTable::counterStaticTotal;
};

inline std::string repeated(std::string_view part, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += part;
    }
    return text;
}
