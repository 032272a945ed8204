#include "memory/failingMemory.h"

#include <cstdlib>
#include <new>

namespace failingMemory {
namespace {

bool active = false;
Mode failureMode = Mode::once;
std::size_t asked = 0;
std::size_t firstToFail = 0;
std::size_t refusedCount = 0;

}  // namespace

void begin(std::size_t number, Mode mode) {
    failureMode = mode;
    asked = 0;
    firstToFail = number;
    refusedCount = 0;
    active = true;
}

std::size_t end() {
    active = false;
    return refusedCount;
}

static bool refuses() {
    if (!active) {
        return false;
    }
    ++asked;
    const bool refused =
        asked == firstToFail || (asked > firstToFail && failureMode == Mode::fromThereOn);
    refusedCount += refused ? 1 : 0;
    return refused;
}

}  // namespace failingMemory

// The linker leads every malloc of this program's own objects here.
extern "C" {
void* __real_malloc(std::size_t size);
void* __wrap_malloc(std::size_t size) {
    return failingMemory::refuses() ? nullptr : __real_malloc(size);
}
}

namespace {

void* allocated(std::size_t size) {
    return failingMemory::refuses() ? nullptr : __real_malloc(size == 0 ? 1 : size);
}

void* allocated(std::size_t size, std::align_val_t alignment) {
    const auto boundary = static_cast<std::size_t>(alignment);
    return failingMemory::refuses()
               ? nullptr
               : std::aligned_alloc(boundary, (size + boundary - 1) / boundary * boundary);
}

void* orThrow(void* memory) {
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

}  // namespace

void* operator new(std::size_t size) {
    return orThrow(allocated(size));
}
void* operator new[](std::size_t size) {
    return orThrow(allocated(size));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return orThrow(allocated(size, alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return orThrow(allocated(size, alignment));
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
