#include "localInterpretatorUTF8/text/localNameTable.h"

#include <gmock/gmock.h>

#include <deque>
#include <string>

namespace {

TEST(localNameTable, findsEveryOneOfManyNames) {
    std::deque<std::u16string> names;
    localNameTable<int> table;
    EXPECT_TRUE(table.empty());
    EXPECT_EQ(table.find(u"ИМЯ0"), nullptr);
    for (int i = 0; i < 5000; ++i) {
        const std::string digits = std::to_string(i);
        names.push_back(u"ИМЯ" + std::u16string(digits.begin(), digits.end()));
        table.put(names.back(), i);
    }
    for (int i = 0; i < 5000; ++i) {
        const int* found = table.find(names[static_cast<std::size_t>(i)]);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(*found, i);
    }
    EXPECT_EQ(table.find(u"ИМЯ5000"), nullptr);
}

TEST(localNameTable, namesOfOneHashStayApart) {
    localNameTable<int> table;
    const std::u16string names[] = {u"A", u"B", u"C", u"D", u"E", u"F", u"G", u"H", u"I"};
    for (int i = 0; i < 9; ++i) {
        table.put(names[i], 15, i);
    }
    for (int i = 0; i < 9; ++i) {
        const int* found = table.find(names[i], 15);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(*found, i);
    }
    EXPECT_EQ(table.find(u"J", 15), nullptr);
}

TEST(localNameTable, aNamePutTwiceHoldsTheLastValue) {
    localNameTable<int> table;
    table.put(u"", 1);
    table.put(u"", 2);
    ASSERT_NE(table.find(u""), nullptr);
    EXPECT_EQ(*table.find(u""), 2);
    table.clear();
    EXPECT_TRUE(table.empty());
    EXPECT_EQ(table.find(u""), nullptr);
}

}  // namespace
