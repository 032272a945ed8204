// Where a browse stands in its table: the buffer row on top of the screen and the cursor's row on
// the screen.
//
// Rows of the screen count from 0, head rows included; rows of the buffer from 0. What stands under
// the cursor is known by its key alone, so a move within the buffer runs no statement, and one that
// leaves it asks for the key 128 rows away, refills the buffer from there and finds its row again.
// All moves leave the cursor on a row of the table when one fits on the screen, and read no row
// outside the buffer. It knows no widget.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "localDb/index/localDbDataSource200123.h"

class localDbtBrowsePosition {
public:
    // Stands on the first row. The data source must outlive the position.
    localDbtBrowsePosition(localDbDataSource200123& source, std::uint32_t visibleRows);

    // The buffer row in the first data row of the screen.
    std::uint32_t mRec1 = 0;
    // The cursor's row on the screen.
    std::uint32_t mCurRow = 1;
    // The first screen row that shows data.
    std::uint32_t headRows = 1;
    // All screen rows, head rows included.
    std::uint32_t visibleRows;

    // The buffer row under the cursor.
    std::uint32_t mCurRec() const;
    // Whether a row of the table stands under the cursor.
    bool hasRow() const { return mCurRec() < size(); }
    // Screen rows for data.
    std::uint32_t dataRows() const { return visibleRows > headRows ? visibleRows - headRows : 0; }
    // The number of the buffer row on a screen row; past the buffer's end where there is none.
    std::size_t bufferRow(std::uint32_t screenRow) const;

    void down();
    void up();
    void pageDown();
    void pageUp();
    // Ctrl+PageUp and Ctrl+Home: the first row of the table, or of the folder in view.
    void toStart();
    // Ctrl+End: the last one.
    void toEnd();
    // The view moves by a row and the cursor stays on its screen row, as the wheel wants it. At the
    // ends of the table nothing happens, and nothing is asked of the file.
    void scrollDown();
    void scrollUp();

    // The screen has another number of rows, or another number of head rows.
    void resize(std::uint32_t rows);
    // Puts the cursor on a screen row, or on the nearest one that shows a row of the table.
    void toScreenRow(std::uint32_t row);

    // Puts the cursor on a row of the buffer; it stays on its screen row where enough rows stand
    // above. -1, that is nowhere: on the last row.
    void place(std::ptrdiff_t row);
    // Refills the buffer around a position and puts the cursor there.
    void fillAround(const localDbKey& key);
    // The table in another order, around the same record. False when there is no such index.
    bool idxSet(std::u16string_view name);
    // Goes to the first row whose values in the index's key begin with those given, letter for
    // letter. `key` holds them, behind `exact` values that must be equal. The order stays. False
    // when there is no such row; then nothing changes.
    bool find(const localDbDataSource200123::Index& index, const localDbKey& key,
              std::size_t exact = 0);

protected:
    localDbDataSource200123& source() const { return source_; }
    std::uint32_t size() const { return static_cast<std::uint32_t>(source_.dataBuffer().size()); }
    // The buffer was filled with the first rows of what can be walked: shows them from the first
    // on.
    void filledFromStart();
    // Refills the buffer from the start, or from the target itself where that is empty, and puts
    // the cursor on the target. The start is halfBuffer rows before the target, or the first row of
    // all.
    void fillFrom(const localDbKey& start, const localDbKey& target);
    // The cursor onto rows of the table, as far as the screen and the buffer have any.
    void keepCursorOnRows();

    static constexpr std::int32_t halfBuffer = localDbDataSource200123::bufferSize / 2;

private:
    bool endIsInBuffer() const { return size() < localDbDataSource200123::bufferSize; }
    std::uint32_t lastScreenRow() const { return visibleRows > 0 ? visibleRows - 1 : 0; }
    // The lowest screen row that shows a row of the table.
    std::uint32_t lowestFilledRow() const;
    // Refills the buffer from the row on top of the screen.
    void fillFromTop();
    void startAnew();

    localDbDataSource200123& source_;
    // Whether the buffer is known to begin with the first row of all.
    bool startIsInBuffer_ = true;
};
