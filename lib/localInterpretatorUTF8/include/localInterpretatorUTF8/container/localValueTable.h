// A grid of values with named columns: the class VALUETABLE. Queries give it, grids show it.
//
// Rows and columns are 1-based, but for cell(). Column names are kept in capitals and need not be
// unique: a lookup finds the first. The table has a current row, through which the language reads
// columns as attributes: table.NAME.
//
// A row owns its cells in a block of its own, so rows change places without touching a cell. A
// table made by `new` has the count 0 and is owned by the values it is bound to: the last one that
// lets go deletes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localScopeTable.h"
#include "localInterpretatorUTF8/text/localText.h"
#include "localInterpretatorUTF8/value/localValueDescription.h"

class localValueTable final {
public:
    // Live tables.
    static std::int64_t counterStaticTotal;
    static localClassDeclaration* classDeclaration();
    // The table that a value holds, null when it holds none. The value keeps its link.
    static localValueTable* of(const localValueDescription& value);

    localValueTable() { ++counterStaticTotal; }
    ~localValueTable() { --counterStaticTotal; }
    localValueTable(const localValueTable&) = delete;
    localValueTable& operator=(const localValueTable&) = delete;

    // How many values hold this table.
    std::uint32_t linkCounter = 0;
    // The current row, 0 for none. It stays what it is when rows are added, sorted or removed, so
    // it may come to mean another row or none.
    std::uint32_t rowActual = 0;

    std::size_t columnsCount() const { return columns_.entries().size(); }
    std::size_t rowsCount() const { return rows_.size(); }

    // A new column at the end, its name put in capitals; existing rows get the number 0 there. A
    // name that stands already is not refused. Gives the number of columns.
    std::size_t columnAdd(std::u16string_view name);
    // The first column of that name in any case, 0 when there is none.
    std::size_t columnNumber(std::u16string_view name) const;
    // Empty where there is no such column.
    localText columnName(std::size_t number) const;

    // A new row of numbers 0 before a row. Position 0, or one at or above the number of rows,
    // appends: the last row cannot be inserted before. Meant. Gives the number of rows.
    std::size_t rowAdd(std::size_t position = 0);
    // Removes rows and columns; rowActual stays.
    void clear();
    // Takes the rows and columns behind these numbers off again, which are not above those that
    // stand.
    void cut(std::size_t rows, std::size_t columns);

    // Copies a value into a cell. Status 7 where there is no such cell.
    bool cellSet(int& status, std::size_t row, std::size_t column,
                 const localValueDescription& value);
    // Gives a slot with a copy of the cell, the number 0 on failure; the caller owns it in both
    // cases. Status 7 where there is no such cell. Halts on a non-null `result`.
    bool cellGet(int& status, std::size_t row, std::size_t column,
                 localValueDescription*& result) const;
    // The cell at 0-based indexes, which must be there. It holds until a column is added or its row
    // goes.
    localValueDescription& cell(std::size_t row, std::size_t column) { return rows_[row][column]; }
    const localValueDescription& cell(std::size_t row, std::size_t column) const {
        return rows_[row][column];
    }

    // Sorts by a column: its name behind an optional "+" or "-" (descending). Equal rows keep their
    // order. The first row decides: a number there compares all cells as numbers, anything else as
    // texts by code units. False for an unknown column or an empty text; true where there are no
    // rows.
    bool sort(std::u16string_view order);

    // "Таблица значений [rows:columns] adr [address] ".
    std::u16string toStringTable() const;

private:
    struct Column {
        localText name;
        std::uint32_t hash = 0;
    };
    using Row = std::vector<localValueDescription>;

    bool hasCell(std::size_t row, std::size_t column) const {
        return row != 0 && row <= rows_.size() && column != 0 && column <= columnsCount();
    }

    mutable localScopeTable<Column> columns_;
    std::vector<Row> rows_;
};
