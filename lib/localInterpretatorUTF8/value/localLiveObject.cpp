#include "localInterpretatorUTF8/value/localLiveObject.h"

#include <bit>
#include <new>

// A hash table whose entries are the registered objects themselves, so that registering asks for no
// memory. The buckets grow with the objects; where there is no memory for more of them, searching
// takes longer and nothing else. Objects go mostly in the reverse order of their coming: the newest
// stands first in its bucket.
class localLiveRegister {
public:
    void add(localLiveObject& entry) noexcept {
        entry.number_ = ++lastNumber_;
        if (++count_ > 2 * bucketCount_) {
            grow();
        }
        link(entry);
    }

    void remove(localLiveObject& entry) noexcept {
        localLiveObject** place = &bucketOf(entry.object_);
        while (*place != &entry) {
            place = &(*place)->next_;
        }
        *place = entry.next_;
        --count_;
    }

    const localLiveObject* find(const void* object, localLiveObject::Kind kind) const noexcept {
        const localLiveObject* entry = bucketOf(object);
        while (entry != nullptr && (entry->object_ != object || entry->kind_ != kind)) {
            entry = entry->next_;
        }
        return entry;
    }

    std::size_t count() const noexcept { return count_; }

private:
    static constexpr std::size_t firstBucketCount = 256;

    localLiveObject*& bucketOf(const void* object) const noexcept {
        // Addresses are multiples of a power of two; the upper bits of the product are mixed best.
        const auto mixed =
            std::bit_cast<std::uintptr_t>(object) * std::uint64_t{0x9E3779B97F4A7C15};
        return buckets_[mixed >> shift_];
    }

    void link(localLiveObject& entry) noexcept {
        localLiveObject*& bucket = bucketOf(entry.object_);
        entry.next_ = bucket;
        bucket = &entry;
    }

    void grow() noexcept {
        const std::size_t newCount = bucketCount_ * 4;
        auto* const newBuckets = new (std::nothrow) localLiveObject*[newCount]();
        if (newBuckets == nullptr) {
            return;
        }
        localLiveObject** const oldBuckets = buckets_;
        const std::size_t oldCount = bucketCount_;
        buckets_ = newBuckets;
        bucketCount_ = newCount;
        shift_ -= 2;
        for (std::size_t i = 0; i < oldCount; ++i) {
            // Oldest first, so that the newest stands in front again.
            localLiveObject* oldest = nullptr;
            while (oldBuckets[i] != nullptr) {
                localLiveObject* const entry = oldBuckets[i];
                oldBuckets[i] = entry->next_;
                entry->next_ = oldest;
                oldest = entry;
            }
            while (oldest != nullptr) {
                localLiveObject* const entry = oldest;
                oldest = entry->next_;
                link(*entry);
            }
        }
        if (oldBuckets != firstBuckets_) {
            delete[] oldBuckets;
        }
    }

    localLiveObject* firstBuckets_[firstBucketCount] = {};
    localLiveObject** buckets_ = firstBuckets_;
    std::size_t bucketCount_ = firstBucketCount;
    std::size_t count_ = 0;
    std::uint64_t lastNumber_ = 0;
    int shift_ = 64 - std::countr_zero(firstBucketCount);
};

namespace {
// Never destroyed: objects of static duration go after it.
constinit localLiveRegister live;
}  // namespace

localLiveObject::localLiveObject(const void* object, Kind kind) noexcept
    : object_(object), number_(0), kind_(kind) {
    live.add(*this);
}

localLiveObject::~localLiveObject() {
    live.remove(*this);
}

bool localLiveObject::stands(const void* object, Kind kind) noexcept {
    return live.find(object, kind) != nullptr;
}

std::uint64_t localLiveObject::number(const void* object, Kind kind) noexcept {
    const localLiveObject* const entry = live.find(object, kind);
    return entry == nullptr ? 0 : entry->number_;
}

std::size_t localLiveObject::count() noexcept {
    return live.count();
}
