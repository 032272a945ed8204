// The store of all run-time values that are passed by pointer: one array of slots, made at the
// first reservation and never grown, so that a pointer to a slot stays good for the whole run.
//
// The lowest free slot is always given; that shows in listings and must stay. Finding it costs
// three steps whatever is in use: a tree of bit words, 64 children a word, marks where something is
// free. Slots are constructed the first time they are given, so a short program never touches most
// of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"

class localMemoryManager {
public:
    static constexpr std::size_t slotCount = 102400;

    // The one store of the process. Null until start().
    static localMemoryManager* manager;
    // Makes the store unless it stands.
    static void start();

    // A second store halts the program. A shorter one is for showing the listing's lines a slot.
    explicit localMemoryManager(std::size_t capacity = slotCount);
    ~localMemoryManager();
    localMemoryManager(const localMemoryManager&) = delete;
    localMemoryManager& operator=(const localMemoryManager&) = delete;

    // The lowest free slot, holding the number 0, with one link that the caller owns. Halts when
    // none is free.
    localValueDescription* reserveSlot();

    // The array's length: 0 before the first reservation, then the capacity. Not the slots in use.
    std::size_t getReservedCount() const { return slots_ == nullptr ? 0 : capacity_; }
    std::size_t getUsedCount() const { return used_; }

    // Takes a slot back whose last link is gone. Called by whoever lowered linkCounter to 0.
    void slotFreed(const localValueDescription* slot);

    // The listing: the slots line by line when there are at most 256, the totals and the live
    // counters.
    static void memoryDisplayData(std::ostream& stream);
    static void memoryDisplayData();
    // Appends the listing to a file.
    static void dispToLog(std::u16string_view fileName);

private:
    using Words = std::vector<std::uint64_t>;

    template <class PutLine>
    static void list(PutLine put);
    void build();
    void mark(std::size_t index, bool free);

    std::size_t capacity_;
    std::size_t constructed_ = 0;
    std::size_t used_ = 0;
    localValueDescription* slots_ = nullptr;
    // Level 0 has a bit for each slot, a higher level a bit for each word below that has a bit set.
    std::array<Words, 3> free_;
};
