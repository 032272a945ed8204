// The cells of a sheet in their order, found by their place.
//
// The order is what texts and searches see: the default cell, then row by row. Cells that were read
// from a text keep the text's order, whatever their places, and several may have one place: a
// lookup finds the first of them. A new cell goes before the first one behind its place.
//
// The order is a list and the places are a tree over it, so that a lookup or a new cell costs the
// logarithm of the number of cells wherever it stands, and cells never move: an address of a cell
// holds until all are cleared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>

#include "localSxl/sheet/localSxlCell.h"
#include "localSxl/sheet/localSxlPlaceTree.h"

class localSxlCells {
public:
    // The default cell alone, with a format of the given kind.
    explicit localSxlCells(const localSxlCellFormat& format = {});
    localSxlCells(const localSxlCells&) = delete;
    localSxlCells& operator=(const localSxlCells&) = delete;

    void swap(localSxlCells& other) noexcept;

    // All cells in order; the default cell is the first.
    const std::list<localSxlCell>& all() const { return cells_; }
    localSxlCell& defaultCell() { return cells_.front(); }
    const localSxlCell& defaultCell() const { return cells_.front(); }

    // The first cell of that place; null when there is none.
    const localSxlCell* find(localSxlPlace place) const;
    localSxlCell* find(localSxlPlace place);
    localSxlCell& findOrInsert(localSxlPlace place);
    // Behind all others.
    void append(localSxlCell cell);

    // The first cell at a place or behind it, by place; null when there is none.
    const localSxlCell* findFrom(localSxlPlace place) const;
    // The last row and the last column that hold a cell; 0 when there is none.
    std::uint32_t lastRow() const { return static_cast<std::uint32_t>(tree_.lastOrder() >> 32); }
    std::uint32_t lastColumn() const { return lastColumn_; }

    // Places compared, and places moved to make room for others, so far.
    std::int64_t comparedCount() const { return tree_.comparedCount(); }
    std::int64_t movedCount() const { return tree_.movedCount(); }

private:
    using Cells = std::list<localSxlCell>;

    Cells cells_;
    localSxlPlaceTree<Cells::iterator> tree_;
    std::uint32_t lastColumn_ = 0;
};

// Does something with the first cell of each place from one on, row by row up to a row. Cells of
// row or column 0 are none that show.
template <class Act>
void localSxlEachCell(const localSxlCells& cells, localSxlPlace from, std::uint32_t lastRow,
                      Act act) {
    for (const localSxlCell* cell = cells.findFrom(from);
         cell != nullptr && cell->place.row <= lastRow;) {
        if (cell->place.column != 0) {
            act(*cell);
        }
        const std::uint64_t next = cell->place.order() + 1;
        if (next == 0) {
            return;
        }
        cell = cells.findFrom({static_cast<std::uint32_t>(next >> 32),
                               static_cast<std::uint32_t>(next & 0xffffffffU)});
    }
}
