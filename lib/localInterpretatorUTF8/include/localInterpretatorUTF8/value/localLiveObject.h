// A register of objects that stand, by address.
//
// A value may hold the address of an object that it does not keep alive: a scope that was left, a
// form or a window that was closed. Who is about to use such an address asks here first.
#pragma once

#include <cstddef>
#include <cstdint>

// A member of the object it stands for: the object is registered as long as this lives. Objects are
// made and go on the thread that is in the language.
class localLiveObject {
public:
    enum class Kind : std::uint8_t { scope, form, window };

    // Asks for no memory that it needs, so it cannot fail.
    localLiveObject(const void* object, Kind kind) noexcept;
    ~localLiveObject();
    localLiveObject(const localLiveObject&) = delete;
    localLiveObject& operator=(const localLiveObject&) = delete;

    // Whether an object of that kind stands at the address. A new object at the address of one that
    // has gone cannot be told from it by this.
    static bool stands(const void* object, Kind kind) noexcept;
    // A number that no other object has or had; 0 when no such object stands there.
    static std::uint64_t number(const void* object, Kind kind) noexcept;

    // Objects that stand, of all kinds.
    static std::size_t count() noexcept;

private:
    friend class localLiveRegister;

    const void* object_;
    localLiveObject* next_ = nullptr;  // in its bucket, the older one
    std::uint64_t number_;
    Kind kind_;
};
