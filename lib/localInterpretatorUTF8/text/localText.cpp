#include "localInterpretatorUTF8/text/localText.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

void localText::free(Buffer* buffer) noexcept {
    std::free(buffer);
}

void localText::append(std::u16string_view text) {
    if (text.empty()) {
        return;
    }
    if (buffer_ == nullptr || buffer_->used != length_ ||
        buffer_->capacity - length_ < text.size()) {
        grow(text);
        return;
    }
    std::memcpy(buffer_->units() + length_, text.data(), text.size() * sizeof(char16_t));
    length_ += static_cast<std::uint32_t>(text.size());
    buffer_->used = length_;
}

void localText::grow(std::u16string_view text) {
    const std::size_t length = length_ + text.size();
    if (length > maxLength) {
        throw std::bad_alloc();
    }
    // A first text takes just its room; one that is appended to is likely to be appended to again.
    const std::size_t capacity = length_ == 0 ? length : std::max<std::size_t>(length * 2, 16);
    auto* buffer = static_cast<Buffer*>(std::malloc(sizeof(Buffer) + capacity * sizeof(char16_t)));
    if (buffer == nullptr) {
        throw std::bad_alloc();
    }
    buffer->references = 1;
    buffer->used = static_cast<std::uint32_t>(length);
    buffer->capacity = static_cast<std::uint32_t>(capacity);
    if (length_ != 0) {
        std::memcpy(buffer->units(), buffer_->units(), length_ * sizeof(char16_t));
    }
    std::memcpy(buffer->units() + length_, text.data(), text.size() * sizeof(char16_t));
    drop();
    buffer_ = buffer;
    length_ = static_cast<std::uint32_t>(length);
}
