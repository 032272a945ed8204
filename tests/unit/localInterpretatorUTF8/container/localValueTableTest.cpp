#include "localInterpretatorUTF8/container/localValueTable.h"

#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "container/containers.h"

namespace {

class localValueTableTest : public containerTest {
protected:
    // The texts of all cells: rows in lines of "a,b;".
    static std::string cellsOf(const localValueTable& table) {
        std::string text;
        for (std::size_t row = 0; row < table.rowsCount(); ++row) {
            for (std::size_t column = 0; column < table.columnsCount(); ++column) {
                text += (column == 0 ? "" : ",") + utf8(table.cell(row, column).toString());
            }
            text += ";";
        }
        return text;
    }
};

TEST_F(localValueTableTest, countsItselfWhileItLives) {
    const std::int64_t before = localValueTable::counterStaticTotal;
    {
        const localValueTable table;
        EXPECT_EQ(localValueTable::counterStaticTotal, before + 1);
        EXPECT_EQ(table.linkCounter, 0U);
        EXPECT_EQ(table.rowActual, 0U);
    }
    EXPECT_EQ(localValueTable::counterStaticTotal, before);
}

TEST_F(localValueTableTest, columnNamesAreKeptInCapitalsAndTheFirstIsFound) {
    localValueTable table;
    EXPECT_EQ(table.columnAdd(u"name"), 1U);
    EXPECT_EQ(table.columnAdd(u"ёж"), 2U);
    EXPECT_EQ(table.columnAdd(u"NAME"), 3U);
    EXPECT_EQ(table.columnAdd(u""), 4U);
    EXPECT_EQ(utf8(table.columnName(1)), "NAME");
    EXPECT_EQ(utf8(table.columnName(2)), "ЁЖ");
    EXPECT_TRUE(table.columnName(0).empty());
    EXPECT_TRUE(table.columnName(5).empty());
    EXPECT_EQ(table.columnNumber(u"Name"), 1U);
    EXPECT_EQ(table.columnNumber(u"Ёж"), 2U);
    EXPECT_EQ(table.columnNumber(u""), 4U);
    EXPECT_EQ(table.columnNumber(u"other"), 0U);
}

TEST_F(localValueTableTest, aNewColumnIsZeroInAllRows) {
    localValueTable table;
    table.rowAdd();
    table.rowAdd();
    EXPECT_EQ(cellsOf(table), ";;");
    table.columnAdd(u"a");
    table.cell(0, 0).setVal(u"x");
    table.columnAdd(u"b");
    EXPECT_EQ(cellsOf(table), "x,0;0,0;");
}

TEST_F(localValueTableTest, rowsGoBeforeAPositionOrToTheEnd) {
    localValueTable table;
    table.columnAdd(u"a");
    const auto addMarked = [&table](std::size_t position, std::size_t expectedRow,
                                    const char16_t* mark) {
        table.rowAdd(position);
        table.cell(expectedRow - 1, 0).setVal(mark);
    };
    addMarked(1, 1, u"a");
    addMarked(1, 2, u"b");
    addMarked(2, 3, u"c");
    addMarked(2, 2, u"d");
    addMarked(0, 5, u"e");
    addMarked(9, 6, u"f");
    addMarked(1, 1, u"g");
    EXPECT_EQ(cellsOf(table), "g;a;d;b;c;e;f;");
    EXPECT_EQ(table.rowAdd(), 8U);
}

TEST_F(localValueTableTest, cellsAreReadAndWrittenByNumbersFromOne) {
    localValueTable table;
    table.columnAdd(u"a");
    table.columnAdd(u"b");
    table.rowAdd();
    table.rowAdd();
    int status = localErrorTypeOK;
    EXPECT_TRUE(table.cellSet(status, 2, 1, cellOf(u"x")));
    localSlot value;
    EXPECT_TRUE(table.cellGet(status, 2, 1, value.asResult()));
    EXPECT_EQ(value->wStr.view(), u"x");
    EXPECT_EQ(status, localErrorTypeOK);
    EXPECT_EQ(cellsOf(table), "0,0;x,0;");
}

TEST_F(localValueTableTest, cellsThatAreNotThereGiveStatus7) {
    localValueTable table;
    table.columnAdd(u"a");
    table.rowAdd();
    for (const auto& [row, column] :
         std::vector<std::pair<std::size_t, std::size_t>>{{0, 1}, {1, 0}, {2, 1}, {1, 2}}) {
        int status = localErrorTypeOK;
        EXPECT_FALSE(table.cellSet(status, row, column, cellOf(5)));
        EXPECT_EQ(status, localErrorTypeOUTOFRANGE);
        status = localErrorTypeOK;
        localSlot value;
        EXPECT_FALSE(table.cellGet(status, row, column, value.asResult()));
        EXPECT_EQ(status, localErrorTypeOUTOFRANGE);
        ASSERT_TRUE(value) << "the slot is the caller's also on failure";
        EXPECT_EQ(value->num, 0.0);
    }
    EXPECT_EQ(cellsOf(table), "0;");
}

TEST_F(localValueTableTest, aCellWrittenWithItselfKeepsItsObject) {
    localValueTable table;
    table.columnAdd(u"a");
    table.rowAdd();
    auto* object = new countedObject;
    table.cell(0, 0).objectBind(object, countedClass());
    int status = localErrorTypeOK;
    EXPECT_TRUE(table.cellSet(status, 1, 1, table.cell(0, 0)));
    EXPECT_EQ(object->linkCounter, 1);
}

TEST_F(localValueTableTest, aResultThatIsThereHalts) {
    const localValueTable table;
    int status = localErrorTypeOK;
    localSlot slot = localSlot::reserve();
    localValueDescription* result = slot.get();
    EXPECT_HALT(table.cellGet(status, 1, 1, result),
                "localValueTable::cellGet() result must be NULL!");
}

TEST_F(localValueTableTest, clearLeavesTheCurrentRow) {
    localValueTable table;
    for (int i = 0; i < 20; ++i) {
        table.columnAdd(u"a");
    }
    table.rowAdd();
    table.rowActual = 1;
    table.cell(0, 3).objectBind(new countedObject, countedClass());
    table.clear();
    EXPECT_EQ(countedObject::alive, 0);
    EXPECT_EQ(table.rowsCount(), 0U);
    EXPECT_EQ(table.columnsCount(), 0U);
    EXPECT_EQ(table.rowActual, 1U);
    EXPECT_EQ(table.columnNumber(u"a"), 0U);
    EXPECT_EQ(table.columnAdd(u"b"), 1U);
    EXPECT_EQ(table.columnNumber(u"b"), 1U);
}

TEST_F(localValueTableTest, itsTextTellsRowsColumnsAndAddress) {
    localValueTable table;
    table.columnAdd(u"a");
    table.columnAdd(u"b");
    table.rowAdd();
    EXPECT_EQ(utf8(table.toStringTable()),
              utf8(u"Таблица значений [1:2] adr [" + addressText(&table) + u"] "));
}

TEST_F(localValueTableTest, aChainOfTablesGoesWithoutRecursion) {
    for (int i = 0; i < 200000; ++i) {
        auto* outer = new localValueTable;
        outer->columnAdd(u"a");
        outer->rowAdd();
        outer->cell(0, 0).take(cell);
        cell.objectBind(outer, localValueTable::classDeclaration());
    }
    EXPECT_GE(localValueTable::counterStaticTotal, 200000);
    cell.reset();
}

// The order as it is defined: neighbours are exchanged until none is out of order. Gives the row
// numbers.
std::vector<int> exchanged(const std::vector<localValueDescription>& cells, bool descending) {
    std::vector<int> order;
    for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
        order.push_back(i);
    }
    const bool numbers = cells.front().type == localValueTypeNUMBER;
    const auto greater = [&](int a, int b) {
        const localValueDescription& first = cells[static_cast<std::size_t>(a)];
        const localValueDescription& second = cells[static_cast<std::size_t>(b)];
        return numbers ? first.toNumber() > second.toNumber()
                       : first.toString().string() > second.toString().string();
    };
    for (std::size_t i = 1; i < order.size();) {
        const bool isOut =
            descending ? greater(order[i], order[i - 1]) : greater(order[i - 1], order[i]);
        if (!isOut) {
            ++i;
            continue;
        }
        std::swap(order[i - 1], order[i]);
        if (i > 1) {
            --i;
        }
    }
    return order;
}

TEST_F(localValueTableTest, sortGivesTheOrderOfExchangingNeighboursForAnyValues) {
    std::mt19937 random(7);
    const auto number = [&random] { return cellOf(static_cast<double>(random() % 7) - 3); };
    const auto text = [&random] {
        static const std::vector<const char16_t*> texts{u"",   u"a", u"ab",  u"Z",   u"я",
                                                        u"10", u"9", u"nan", u"-1x", u"Ё"};
        return cellOf(texts[random() % texts.size()]);
    };
    const auto special = [&random] {
        static const std::vector<double> values{std::nan(""),
                                                std::numeric_limits<double>::infinity(),
                                                -std::numeric_limits<double>::infinity(),
                                                -0.0,
                                                0.0,
                                                1.0,
                                                2.0};
        return cellOf(values[random() % values.size()]);
    };
    const std::vector<std::function<localValueDescription()>> kinds{
        number, text, special, [&]() -> localValueDescription {
            switch (random() % 5) {
                case 0:
                    return booleanCell(random() % 2 == 0);
                case 1:
                    return text();
                case 2: {
                    localValueDescription object;
                    object.objectBind(new countedObject, countedClass());
                    return object;
                }
                default:
                    return special();
            }
        }};
    for (int round = 0; round < 2000; ++round) {
        const auto& kind = kinds[static_cast<std::size_t>(round) % kinds.size()];
        const std::size_t count = 2 + random() % 30;
        localValueTable table;
        table.columnAdd(u"key");
        table.columnAdd(u"row");
        // Objects count as numbers by the address of their cell, so the cells of the model are the
        // table's own, copied by moving rows about only.
        std::vector<localValueDescription> cells;
        for (std::size_t i = 0; i < count; ++i) {
            localValueDescription value = kind();
            if (value.type == localValueTypeOBJECT && !cells.empty() &&
                cells.front().type == localValueTypeNUMBER) {
                value.setVal(std::nan(""));
            }
            table.rowAdd();
            table.cell(i, 1).setVal(static_cast<double>(i));
            table.cell(i, 0).assign(value);
            cells.push_back(std::move(value));
        }
        const bool descending = round % 8 >= 4;
        const std::vector<int> wanted = exchanged(cells, descending);
        ASSERT_TRUE(table.sort(descending ? u"-key" : round % 3 == 0 ? u"+KEY" : u"Key"));
        for (std::size_t i = 0; i < count; ++i) {
            ASSERT_EQ(table.cell(i, 1).num, wanted[i]) << "round " << round << " row " << i;
        }
    }
}

TEST_F(localValueTableTest, sortMovesRowsWithoutTouchingObjects) {
    localValueTable table;
    table.columnAdd(u"key");
    table.columnAdd(u"object");
    std::vector<countedObject*> objects;
    for (std::size_t i = 0; i < 3; ++i) {
        table.rowAdd();
        table.cell(i, 0).setVal(3.0 - static_cast<double>(i));
        objects.push_back(new countedObject);
        table.cell(i, 1).objectBind(objects.back(), countedClass());
    }
    const localValueDescription* const first = &table.cell(0, 1);
    EXPECT_TRUE(table.sort(u"key"));
    EXPECT_EQ(&table.cell(2, 1), first) << "the cells stay where they are, their row changes place";
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(table.cell(i, 1).pointer, objects[2 - i]);
        EXPECT_EQ(objects[i]->linkCounter, 1);
    }
}

TEST_F(localValueTableTest, sortOfAHundredThousandReversedRowsIsNoMatterOfTheirSquare) {
    localValueTable table;
    table.columnAdd(u"n");
    constexpr std::size_t count = 100000;
    for (std::size_t i = 0; i < count; ++i) {
        table.rowAdd();
        table.cell(i, 0).setVal(static_cast<double>(count - i));
    }
    EXPECT_TRUE(table.sort(u"n"));
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(table.cell(i, 0).num, static_cast<double>(i + 1));
    }
}

TEST_F(localValueTableTest, cutTakesOffTheRowsAndColumnsBehind) {
    localValueTable table;
    for (const char16_t* name : {u"a", u"b", u"c"}) {
        table.columnAdd(name);
    }
    for (int row = 0; row < 3; ++row) {
        table.rowAdd();
        table.cell(static_cast<std::size_t>(row), 0).setVal(row + 1.0);
    }
    table.cut(2, 1);
    EXPECT_EQ(cellsOf(table), "1;2;");
    EXPECT_EQ(table.columnNumber(u"a"), 1U);
    EXPECT_EQ(table.columnNumber(u"b"), 0U);
    table.columnAdd(u"d");
    table.rowAdd();
    EXPECT_EQ(cellsOf(table), "1,0;2,0;0,0;");
    table.cut(3, 2);
    EXPECT_EQ(cellsOf(table), "1,0;2,0;0,0;");
}

}  // namespace
