#include "localInterpretatorUTF8/text/localTrace.h"

#include <iostream>

#include "localInterpretatorUTF8/text/localString.h"

std::string traceTail(std::string_view function, std::source_location place) {
    std::string_view file = place.file_name();
    if (const auto slash = file.find_last_of("/\\"); slash != std::string_view::npos) {
        file.remove_prefix(slash + 1);
    }
    std::string tail = " func: ";
    tail += function;
    tail += " file: ";
    tail += file;
    tail += " line: ";
    tail += std::to_string(place.line());
    return tail;
}

void writeLine(std::u16string_view text) {
    std::string line = localString::toUtf8(text);
    line += '\n';
    std::cout.write(line.data(), static_cast<std::streamsize>(line.size()));
    std::cout.flush();
}

void traceLine(std::u16string_view text, std::string_view function, std::source_location place) {
    std::string line = localString::toUtf8(text);
    line += traceTail(function, place);
    line += '\n';
    std::cout.write(line.data(), static_cast<std::streamsize>(line.size()));
    std::cout.flush();
}
