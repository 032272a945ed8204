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
    const auto found = tree_.findFrom(place.order());
    return found.entry != nullptr && found.order == place.order() ? &**found.entry : nullptr;
}

localSxlCell* localSxlCells::find(localSxlPlace place) {
    return const_cast<localSxlCell*>(std::as_const(*this).find(place));
}

localSxlCell& localSxlCells::findOrInsert(localSxlPlace place) {
    const auto next = tree_.findFrom(place.order());
    if (next.entry != nullptr && next.order == place.order()) {
        return **next.entry;
    }
    const auto before = next.entry == nullptr ? cells_.end() : *next.entry;
    Cells made(1);
    made.front().place = place;
    tree_.insert(place.order(), made.begin());
    cells_.splice(before, made);
    lastColumn_ = std::max(lastColumn_, place.column);
    return *std::prev(before);
}

void localSxlCells::append(localSxlCell cell) {
    Cells made;
    made.push_back(std::move(cell));
    const localSxlPlace place = made.front().place;
    // An earlier cell of that place stays the one that is found.
    if (find(place) == nullptr) {
        tree_.insert(place.order(), made.begin());
    }
    cells_.splice(cells_.end(), made);
    lastColumn_ = std::max(lastColumn_, place.column);
}

const localSxlCell* localSxlCells::findFrom(localSxlPlace place) const {
    const auto found = tree_.findFrom(place.order());
    return found.entry == nullptr ? nullptr : &**found.entry;
}
