#include "localInterpretatorUTF8/text/localTrace.h"

#include <iostream>

#include "localInterpretatorUTF8/text/localString.h"

namespace {

// A very long text goes out in pieces: there may be no memory for its bytes as a whole. Code units
// are converted one by one, so it may be cut anywhere.
void write(std::u16string_view text, std::string_view end) {
    constexpr std::size_t piece = 1 << 16;
    while (text.size() > piece) {
        std::cout << localString::toUtf8(text.substr(0, piece));
        text.remove_prefix(piece);
    }
    std::string line = localString::toUtf8(text);
    line += end;
    std::cout.write(line.data(), static_cast<std::streamsize>(line.size()));
    std::cout.flush();
}

std::string tracePlace(std::source_location place) {
    std::string_view file = place.file_name();
    if (const auto slash = file.find_last_of("/\\"); slash != std::string_view::npos) {
        file.remove_prefix(slash + 1);
    }
    std::string tail = " file: ";
    tail += file;
    tail += " line: ";
    tail += std::to_string(place.line());
    return tail;
}

}  // namespace

std::string traceTail(std::string_view function, std::source_location place) {
    std::string tail = " func: ";
    tail += function;
    tail += tracePlace(place);
    return tail;
}

void writeLine(std::u16string_view text) {
    write(text, "\n");
}

void traceLine(std::u16string_view text, std::string_view function, std::source_location place) {
    write(text, traceTail(function, place) + '\n');
}

void placeLine(std::u16string_view text, std::source_location place) {
    write(text, tracePlace(place) + '\n');
}
