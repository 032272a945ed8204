#include "localSxl/sheet/localSxlCells.h"

#include <algorithm>
#include <utility>

localSxlCells::localSxlCells(const localSxlCellFormat& format) {
    localSxlCell cell;
    cell.format = std::make_unique<localSxlCellFormat>(format);
    append(std::move(cell));
}

void localSxlCells::swap(localSxlCells& other) noexcept {
    cells_.swap(other.cells_);
    tree_.swap(other.tree_);
    std::swap(lastColumn_, other.lastColumn_);
}

const localSxlCell* localSxlCells::find(localSxlPlace place) const {
    const auto found = tree_.find(place);
    return found == tree_.end() ? nullptr : &*found->second;
}

localSxlCell* localSxlCells::find(localSxlPlace place) {
    const auto found = tree_.find(place);
    return found == tree_.end() ? nullptr : &*found->second;
}

localSxlCell& localSxlCells::findOrInsert(localSxlPlace place) {
    const auto next = tree_.lower_bound(place);
    if (next != tree_.end() && next->first == place) {
        return *next->second;
    }
    std::list<localSxlCell> made(1);
    made.front().place = place;
    tree_.emplace_hint(next, place, made.begin());
    cells_.splice(next == tree_.end() ? cells_.end() : next->second, made);
    lastColumn_ = std::max(lastColumn_, place.column);
    return *std::prev(next == tree_.end() ? cells_.end() : next->second);
}

void localSxlCells::append(localSxlCell cell) {
    std::list<localSxlCell> made;
    made.push_back(std::move(cell));
    const localSxlPlace place = made.front().place;
    // An earlier cell of that place stays the one that is found.
    tree_.emplace_hint(tree_.end(), place, made.begin());
    cells_.splice(cells_.end(), made);
    lastColumn_ = std::max(lastColumn_, place.column);
}

const localSxlCell* localSxlCells::findFrom(localSxlPlace place) const {
    const auto found = tree_.lower_bound(place);
    return found == tree_.end() ? nullptr : &*found->second;
}
