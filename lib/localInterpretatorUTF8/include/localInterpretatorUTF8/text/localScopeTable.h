// The names of one scope in order of declaration: few are searched in order by hash, many through a
// table. Of equal names the first is found.
#pragma once

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

    Entry& add(Entry entry) {
        entries_.push_back(std::move(entry));
        if (index_ != nullptr) {
            indexAdd(entries_.size() - 1);
        } else if (entries_.size() > searchedInOrder) {
            indexBuild();
        }
        return entries_.back();
    }

    Entry remove(std::size_t place) {
        Entry removed = std::move(entries_[place]);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(place));
        if (index_ != nullptr) {
            indexBuild();
        }
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

    void indexAdd(std::size_t place) {
        const Entry& entry = entries_[place];
        if (index_->find(entry.name, entry.hash) == nullptr) {
            index_->put(entry.name, entry.hash, static_cast<std::uint32_t>(place));
        }
    }
    void indexBuild() {
        index_ = std::make_unique<localNameTable<std::uint32_t>>();
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            indexAdd(i);
        }
    }

    std::vector<Entry> entries_;
    std::unique_ptr<localNameTable<std::uint32_t>> index_;
};
