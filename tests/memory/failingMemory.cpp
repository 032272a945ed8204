#include "memory/failingMemory.h"

#include <dlfcn.h>

#include <cstdlib>
#include <new>
#include <string_view>

namespace failingMemory {
namespace {

bool active = false;
Mode failureMode = Mode::once;
std::size_t asked = 0;
std::size_t firstToFail = 0;
std::size_t refusedCount = 0;

// Its operators new come here, too.
bool isOfTheToolkit(const void* caller) {
    Dl_info place{};
    if (dladdr(caller, &place) == 0 || place.dli_fname == nullptr) {
        return false;
    }
    const std::string_view file = place.dli_fname;
    return file.find("libQt6") != file.npos || file.find("sqldrivers") != file.npos;
}

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

static bool refuses(const void* caller) {
    if (!active || isOfTheToolkit(caller)) {
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
    return failingMemory::refuses(__builtin_return_address(0)) ? nullptr : __real_malloc(size);
}
}

namespace {

void* allocated(std::size_t size, const void* caller) {
    return failingMemory::refuses(caller) ? nullptr : __real_malloc(size == 0 ? 1 : size);
}

void* allocated(std::size_t size, std::align_val_t alignment, const void* caller) {
    const auto boundary = static_cast<std::size_t>(alignment);
    return failingMemory::refuses(caller)
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
    return orThrow(allocated(size, __builtin_return_address(0)));
}
void* operator new[](std::size_t size) {
    return orThrow(allocated(size, __builtin_return_address(0)));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size, __builtin_return_address(0));
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocated(size, __builtin_return_address(0));
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return orThrow(allocated(size, alignment, __builtin_return_address(0)));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return orThrow(allocated(size, alignment, __builtin_return_address(0)));
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
