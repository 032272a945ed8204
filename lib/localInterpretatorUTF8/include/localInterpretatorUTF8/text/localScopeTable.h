// The names of one scope in order of declaration: few are searched in order by hash, many through a
// table. Of equal names the first is found. A change that finds no memory has changed nothing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/text/localNameTable.h"
#include "localInterpretatorUTF8/text/localText.h"

// `Entry` has the members `name` (localText) and `hash`, its nameHash.
template <class Entry>
class localScopeTable {
public:
    const std::vector<Entry>& entries() const { return entries_; }

    // The entry of exactly that name, null when there is none; it holds until the next add().
    Entry* find(std::u16string_view name, std::uint32_t hash) {
        if (index_ != nullptr) {
            const std::uint32_t* place = index_->find(name, hash);
            return place == nullptr ? nullptr : &entries_[*place];
        }
        for (Entry& entry : entries_) {
            if (entry.hash == hash && entry.name == name) {
                return &entry;
            }
        }
        return nullptr;
    }

    // Asks for the memory that the next `entries` entries need.
    void makeRoom(std::size_t entries = 1) {
        const std::size_t size = entries_.size() + entries;
        if (size > entries_.capacity()) {
            entries_.reserve(std::max(size, entries_.size() * 2));
        }
        if (index_ == nullptr && size > searchedInOrder) {
            index_ = indexWithout(entries_.size(), size);
        } else if (index_ != nullptr) {
            index_->makeRoom(entries);
        }
    }
    Entry& add(Entry entry) {
        makeRoom();
        entries_.push_back(std::move(entry));
        if (index_ != nullptr) {
            indexAdd(*index_, entries_.back(), entries_.size() - 1);
        }
        return entries_.back();
    }

    Entry remove(std::size_t place) {
        if (index_ != nullptr) {
            index_ = indexWithout(place, entries_.size());
        }
        Entry removed = std::move(entries_[place]);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(place));
        return removed;
    }
    Entry removeLast() {
        index_.reset();
        Entry last = std::move(entries_.back());
        entries_.pop_back();
        return last;
    }
    void clear() {
        index_.reset();
        entries_.clear();
    }

private:
    static constexpr std::size_t searchedInOrder = 8;
    using Index = localNameTable<std::uint32_t>;

    static void indexAdd(Index& index, const Entry& entry, std::size_t place) {
        if (index.find(entry.name, entry.hash) == nullptr) {
            index.put(entry.name, entry.hash, static_cast<std::uint32_t>(place));
        }
    }
    // An index of the entries but for the one at a place, with room for so many in all.
    std::unique_ptr<Index> indexWithout(std::size_t left, std::size_t room) const {
        auto index = std::make_unique<Index>();
        index->makeRoom(room);
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (i != left) {
                indexAdd(*index, entries_[i], i < left ? i : i - 1);
            }
        }
        return index;
    }

    std::vector<Entry> entries_;
    std::unique_ptr<Index> index_;
};
