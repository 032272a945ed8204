// A hash table from names to values: open addressing, names held by view.
//
// The owner of the names keeps them where they are for as long as the table refers to them. A name
// put in a second time replaces what stood under it. Nothing is taken out one by one; clear()
// empties it.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localCharacters.h"

template <class Value>
class localNameTable {
public:
    // Asks for the memory that the next `names` names need.
    void makeRoom(std::size_t names = 1) {
        if ((count_ + names) * 2 > cells_.size()) {
            widen(names);
        }
    }
    void put(std::u16string_view name, std::uint32_t hash, Value value) {
        if (!cells_.empty()) {
            Cell& cell = cells_[place(cells_, name, hash)];
            if (cell.used) {
                cell.value = value;
                return;
            }
        }
        makeRoom();
        cells_[place(cells_, name, hash)] = {name, hash, true, value};
        ++count_;
    }
    void put(std::u16string_view name, Value value) { put(name, nameHash(name), value); }

    // The value under the name, or null. The pointer holds until another name is put in.
    const Value* find(std::u16string_view name, std::uint32_t hash) const {
        if (cells_.empty()) {
            return nullptr;
        }
        const Cell& cell = cells_[place(cells_, name, hash)];
        return cell.used ? &cell.value : nullptr;
    }
    const Value* find(std::u16string_view name) const { return find(name, nameHash(name)); }

    bool empty() const { return count_ == 0; }
    void clear() {
        cells_.clear();
        count_ = 0;
    }

private:
    struct Cell {
        std::u16string_view name;
        std::uint32_t hash = 0;
        bool used = false;
        Value value{};
    };

    static std::size_t place(const std::vector<Cell>& cells, std::u16string_view name,
                             std::uint32_t hash) {
        const std::size_t mask = cells.size() - 1;
        std::size_t at = (hash ^ (hash >> 15)) & mask;
        while (cells[at].used && (cells[at].hash != hash || cells[at].name != name)) {
            at = (at + 1) & mask;
        }
        return at;
    }

    void widen(std::size_t names) {
        std::vector<Cell> wider(std::bit_ceil(std::max<std::size_t>((count_ + names) * 2, 16)));
        for (const Cell& cell : cells_) {
            if (cell.used) {
                wider[place(wider, cell.name, cell.hash)] = cell;
            }
        }
        cells_.swap(wider);
    }

    std::vector<Cell> cells_;
    std::size_t count_ = 0;
};
