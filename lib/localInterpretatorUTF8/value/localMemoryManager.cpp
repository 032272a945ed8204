#include "localInterpretatorUTF8/value/localMemoryManager.h"

#include <bit>
#include <cassert>
#include <new>
#include <ostream>
#include <string>

#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localCounters.h"

localMemoryManager* localMemoryManager::manager = nullptr;

namespace {
constexpr std::size_t bitsPerWord = 64;
constexpr std::size_t longestListing = 0x100;
}  // namespace

void localMemoryManager::start() {
    if (manager == nullptr) {
        manager = new localMemoryManager;
    }
}

localMemoryManager::localMemoryManager(std::size_t capacity) : capacity_(capacity) {
    static bool constructedOnce = false;
    if (constructedOnce) {
        traceLine({}, "localMemoryManager");
        exit_FAILURE(u"localMemoryManager cannot be constructed twice");
    }
    constructedOnce = true;
}

localMemoryManager::~localMemoryManager() {
    for (std::size_t i = 0; i < constructed_; ++i) {
        slots_[i].~localValueDescription();
    }
    ::operator delete(slots_);
}

void localMemoryManager::build() {
    std::size_t bits = capacity_;
    for (Words& level : free_) {
        level.assign((bits + bitsPerWord - 1) / bitsPerWord, ~std::uint64_t{0});
        if (bits % bitsPerWord != 0) {
            level.back() = (std::uint64_t{1} << bits % bitsPerWord) - 1;
        }
        bits = level.size();
    }
    // Last: a store that has slots stands whole.
    slots_ = static_cast<localValueDescription*>(
        ::operator new(capacity_ * sizeof(localValueDescription)));
    localValueDescription::counterStaticTotal += static_cast<std::int64_t>(capacity_);
}

// Sets or clears the bit of a slot, and those of the words above that thereby begin or cease to
// have one.
void localMemoryManager::mark(std::size_t index, bool free) {
    for (Words& level : free_) {
        std::uint64_t& word = level[index / bitsPerWord];
        const std::uint64_t bit = std::uint64_t{1} << index % bitsPerWord;
        const std::uint64_t before = word;
        word = free ? word | bit : word & ~bit;
        if ((before == 0) == (word == 0)) {
            return;
        }
        index /= bitsPerWord;
    }
}

localValueDescription* localMemoryManager::reserveSlot() {
    assert(localTurn::isHeld());
    if (slots_ == nullptr) {
        build();
    }
    std::size_t index = 0;
    for (std::size_t level = free_.size(); level-- > 0;) {
        const std::uint64_t word = free_[level][index];
        if (word == 0) {
            exit_FAILURE(u"Memory manager (localMemoryManager) overflow. Resize not available");
        }
        index = index * bitsPerWord + static_cast<std::size_t>(std::countr_zero(word));
    }
    mark(index, false);
    ++used_;
    localValueDescription* slot = slots_ + index;
    if (index == constructed_) {
        new (slot) localValueDescription;
        --localValueDescription::counterStaticTotal;  // build() counted it
        ++constructed_;
    } else {
        slot->objClass = nullptr;
        slot->pointer = nullptr;
        slot->wStr.clear();
    }
    slot->linkCounter = 1;
    return slot;
}

void localMemoryManager::slotFreed(const localValueDescription* slot) {
    assert(localTurn::isHeld());
    --used_;
    mark(static_cast<std::size_t>(slot - slots_), true);
}

// Writes the listing line by line.
template <class PutLine>
void localMemoryManager::list(PutLine put) {
    if (manager == nullptr) {
        put(u"localMemoryManager::manager not created yet!");
        return;
    }
    const std::size_t length = manager->getReservedCount();
    put(u" [num]  [addr]  [links] [obj-links]");
    for (std::size_t i = 0; i < length && length <= longestListing; ++i) {
        static const localValueDescription never;
        const localValueDescription* slot = manager->slots_ + i;
        const localValueDescription& shown = i < manager->constructed_ ? *slot : never;
        std::u16string line = u" [" + numberToString(static_cast<double>(i)) + u"]  [" +
                              addressText(slot) + u"]  [" + numberToString(shown.linkCounter) +
                              u"] ";
        if (shown.isLive()) {
            line += u" [" + numberToString(static_cast<double>(shown.objectLinks())) + u"] ";
        }
        put(line + shown.dump());
    }
    put(u"all reserved " + numberToString(static_cast<double>(length)));
    put(u"used " + numberToString(static_cast<double>(manager->used_)));
    for (const localCounter& counter : localCounters()) {
        const std::int64_t total = counter.total == nullptr ? 0 : *counter.total;
        put(localString::fromUtf8(counter.name) + u" " +
            numberToString(static_cast<double>(total)));
    }
    put(std::u16string_view());
    put(u"Внимание!!! При вызове из интерпретатора функции memoryDisplayData() два элемента "
        u"данных добавляются самим интерпретатором.");
}

void localMemoryManager::memoryDisplayData() {
    list([](std::u16string_view line) { writeLine(line); });
}

void localMemoryManager::memoryDisplayData(std::ostream& stream) {
    list([&stream](std::u16string_view line) { stream << localString::toUtf8(line) << std::endl; });
}

void localMemoryManager::dispToLog(std::u16string_view fileName) {
    std::string listing;
    list([&listing](std::u16string_view line) { listing += localString::toUtf8(line) + '\n'; });
    appendToLog(fileName, listing, "dispToLog");
}
