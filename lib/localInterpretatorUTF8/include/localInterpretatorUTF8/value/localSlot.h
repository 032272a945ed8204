// A link on one slot of the store, given back when this object goes.
//
// Slots are shared by counting: every holder owns one link, and the value in a slot lives until the
// last link is given back. Holding the link in an object makes "every path gives back what it took"
// true by construction. Moved, never copied: a second link is asked for by name.
//
// Inside the libraries nothing else owns a slot. A plain pointer stands for one only where a call
// hands its result over, and in the arguments of a call, whose links stay with the caller.
#pragma once

#include <utility>

#include "localInterpretatorUTF8/value/localMemoryManager.h"

class localSlot {
public:
    localSlot() noexcept = default;
    // Takes over one link that the caller owns.
    explicit localSlot(localValueDescription* owned) noexcept : value_(owned) {}
    // The lowest free slot, holding the number 0. Halts the program when none is free.
    static localSlot reserve() { return localSlot(localMemoryManager::manager->reserveSlot()); }

    // One more link on a slot that somebody holds.
    static localSlot share(localValueDescription& held) noexcept {
        ++held.linkCounter;
        return localSlot(&held);
    }

    localSlot(localSlot&& other) noexcept : value_(std::exchange(other.value_, nullptr)) {}
    localSlot& operator=(localSlot&& other) noexcept {
        localSlot taken(std::move(other));
        std::swap(value_, taken.value_);
        return *this;
    }
    ~localSlot() { clear(); }

    void clear() {
        if (value_ != nullptr) {
            localValueDescription::release(std::exchange(value_, nullptr));
        }
    }

    // For operations that reserve their own result: the pointer they fill, emptied first.
    localValueDescription*& asResult() {
        clear();
        return value_;
    }
    // Hands the link over to the caller.
    localValueDescription* handOver() noexcept { return std::exchange(value_, nullptr); }

    localValueDescription* get() const noexcept { return value_; }
    localValueDescription& operator*() const noexcept { return *value_; }
    localValueDescription* operator->() const noexcept { return value_; }
    explicit operator bool() const noexcept { return value_ != nullptr; }

private:
    localValueDescription* value_ = nullptr;
};
