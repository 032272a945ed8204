// The text a value holds: UTF-16 code units, shared between all the cells that hold the same text.
//
// Values travel by copy between stacks, slots, variables and containers, so a copy must not cost
// the length of the text. A text is a view on the front part of a counted buffer: copying it takes
// one more reference. The holder whose view ends where the buffer's used part ends may append in
// place, since no other holder can see behind its own length; so `s = s + "ab"` in a loop costs
// what is appended.
//
// Counting is not atomic: like the slot store, texts belong to the one thread that runs the
// interpreter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

class localText {
public:
    // Longest text in code units. Operations that would pass it must refuse before appending.
    static constexpr std::size_t maxLength = std::size_t{1} << 29;

    localText() noexcept = default;
    localText(std::u16string_view text) { append(text); }
    localText(const std::u16string& text) : localText(std::u16string_view(text)) {}
    localText(const char16_t* text) : localText(std::u16string_view(text)) {}
    localText(const localText& other) noexcept : buffer_(other.buffer_), length_(other.length_) {
        if (buffer_ != nullptr) {
            ++buffer_->references;
        }
    }
    localText(localText&& other) noexcept
        : buffer_(std::exchange(other.buffer_, nullptr)),
          length_(std::exchange(other.length_, 0)) {}
    ~localText() { drop(); }

    localText& operator=(const localText& other) noexcept {
        if (buffer_ != other.buffer_) {
            localText copy(other);
            swap(copy);
        } else {
            length_ = other.length_;
        }
        return *this;
    }
    localText& operator=(localText&& other) noexcept {
        localText taken(std::move(other));
        swap(taken);
        return *this;
    }

    void swap(localText& other) noexcept {
        std::swap(buffer_, other.buffer_);
        std::swap(length_, other.length_);
    }

    std::u16string_view view() const noexcept {
        return buffer_ == nullptr ? std::u16string_view()
                                  : std::u16string_view(buffer_->units(), length_);
    }
    operator std::u16string_view() const noexcept { return view(); }
    std::u16string string() const { return std::u16string(view()); }

    std::size_t size() const noexcept { return length_; }
    bool empty() const noexcept { return length_ == 0; }
    void clear() noexcept {
        drop();
        buffer_ = nullptr;
        length_ = 0;
    }

    // Appends a text, which may be a part of this very one. The sum must not pass maxLength.
    void append(std::u16string_view text);

    friend bool operator==(const localText& a, const localText& b) noexcept {
        return a.view() == b.view();
    }
    friend bool operator==(const localText& a, std::u16string_view b) noexcept {
        return a.view() == b;
    }

private:
    struct Buffer {
        std::uint32_t references;
        std::uint32_t used;
        std::uint32_t capacity;
        char16_t* units() noexcept { return reinterpret_cast<char16_t*>(this + 1); }
    };

    void drop() noexcept {
        if (buffer_ != nullptr && --buffer_->references == 0) {
            free(buffer_);
        }
    }
    static void free(Buffer* buffer) noexcept;
    void grow(std::u16string_view text);

    Buffer* buffer_ = nullptr;
    std::uint32_t length_ = 0;
};
