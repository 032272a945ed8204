#include "localInterpretatorUTF8/text/localTrace.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <iostream>

#include "localInterpretatorUTF8/text/localString.h"

namespace {

// Gives the pieces of " file: X line: N" one by one.
template <class Put>
void placeOf(std::source_location place, Put put) {
    std::string_view file = place.file_name();
    if (const auto slash = file.find_last_of("/\\"); slash != std::string_view::npos) {
        file.remove_prefix(slash + 1);
    }
    char digits[16];
    const char* const end = std::to_chars(digits, digits + sizeof digits, place.line()).ptr;
    put(std::string_view(" file: "));
    put(file);
    put(std::string_view(" line: "));
    put(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

// The same for " func: F" in front of it.
template <class Function, class Put>
void tail(Function function, std::source_location place, Put put) {
    put(std::string_view(" func: "));
    put(function);
    placeOf(place, put);
}

// A line on its way to the stream, through a store of fixed size.
class Line {
public:
    void put(std::u16string_view text) {
        for (const char16_t unit : text) {
            char bytes[2];
            put(std::string_view(bytes, localString::toUtf8(unit, bytes)));
        }
    }
    void put(std::string_view bytes) {
        for (const char byte : bytes) {
            if (used_ == bytes_.size()) {
                handOver();
            }
            bytes_[used_++] = byte;
        }
    }
    void put(localLinePieces pieces) {
        for (const std::u16string_view piece : pieces) {
            put(piece);
        }
    }
    void end() {
        put(std::string_view("\n"));
        handOver();
        std::cout.rdbuf()->pubsync();
    }

private:
    // Past the stream itself, which would keep an exception of its buffer to itself and be mute
    // from then on.
    void handOver() {
        std::cout.rdbuf()->sputn(bytes_.data(), static_cast<std::streamsize>(used_));
        used_ = 0;
    }

    std::size_t used_ = 0;
    std::array<char, 2048> bytes_;
};

}  // namespace

std::string traceTail(std::string_view function, std::source_location place) {
    std::string text;
    tail(function, place, [&text](std::string_view piece) { text += piece; });
    return text;
}

void writeLine(localLinePieces pieces) {
    Line line;
    line.put(pieces);
    line.end();
}

void traceLine(localLinePieces pieces, std::string_view function, std::source_location place) {
    Line line;
    line.put(pieces);
    tail(function, place, [&line](auto piece) { line.put(piece); });
    line.end();
}

void traceLine(std::u16string_view text, std::u16string_view function, std::source_location place) {
    Line line;
    line.put(text);
    tail(function, place, [&line](auto piece) { line.put(piece); });
    line.end();
}

void placeLine(localLinePieces pieces, std::source_location place) {
    Line line;
    line.put(pieces);
    placeOf(place, [&line](auto piece) { line.put(piece); });
    line.end();
}
