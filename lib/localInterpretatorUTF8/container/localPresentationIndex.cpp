#include "container/localPresentationIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "localInterpretatorUTF8/text/localCharacters.h"

localPresentationIndex::localPresentationIndex(std::size_t expected)
    : cells_(std::bit_ceil(std::max<std::size_t>(expected * 2, 16))) {}

std::size_t localPresentationIndex::place(std::u16string_view text, std::uint32_t hash) const {
    const std::size_t mask = cells_.size() - 1;
    std::size_t at = (hash ^ (hash >> 15)) & mask;
    while (cells_[at].used && (cells_[at].hash != hash || cells_[at].text != text)) {
        at = (at + 1) & mask;
    }
    return at;
}

localPresentationIndex::Entry* localPresentationIndex::find(std::u16string_view text) {
    Entry& entry = cells_[place(text, nameHash(text))];
    return entry.count == 0 ? nullptr : &entry;
}

void localPresentationIndex::makeRoom() {
    if ((used_ + 1) * 2 > cells_.size()) {
        rebuild();
    }
}

void localPresentationIndex::add(const localText& text, std::size_t position) {
    makeRoom();
    const std::uint32_t hash = nameHash(text);
    Entry* entry = &cells_[place(text, hash)];
    if (!entry->used) {
        entry->text = text;
        entry->hash = hash;
        entry->used = true;
        ++used_;
    }
    entry->bound = entry->count == 0 ? position : std::min(entry->bound, position);
    ++entry->count;
}

void localPresentationIndex::remove(std::u16string_view text) {
    --cells_[place(text, nameHash(text))].count;
}

void localPresentationIndex::rebuild() {
    const auto inUse = static_cast<std::size_t>(std::count_if(
        cells_.begin(), cells_.end(), [](const Entry& entry) { return entry.count != 0; }));
    std::vector<Entry> old(std::bit_ceil(std::max<std::size_t>((inUse + 1) * 4, 16)));
    old.swap(cells_);
    used_ = 0;
    for (Entry& entry : old) {
        if (entry.count != 0) {
            cells_[place(entry.text, entry.hash)] = std::move(entry);
            ++used_;
        }
    }
}
