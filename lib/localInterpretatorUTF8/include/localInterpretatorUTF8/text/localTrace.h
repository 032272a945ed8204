// Lines on the standard output stream: the language writes there and nothing else does.
//
// A diagnostic line ends in one tail, which names the reporting function, its source file without
// folders and the line: " func: F file: X line: N". The function's name is given by the caller,
// since some functions report under a name of their own.
//
// Writing a line asks for no memory, so that a line can tell of memory that ran out; one that is
// put together is therefore given in its pieces. What the stream's buffer throws goes to the
// caller.
#pragma once

#include <initializer_list>
#include <source_location>
#include <string>
#include <string_view>

using localLinePieces = std::initializer_list<std::u16string_view>;

// The tail without the line end.
std::string traceTail(std::string_view function,
                      std::source_location place = std::source_location::current());

// One line: the text, and a line end. The stream is flushed, so that a pipe or window sees it at
// once.
void writeLine(localLinePieces pieces);
inline void writeLine(std::u16string_view text = {}) {
    writeLine({text});
}

// One line: the text and the tail of the calling place.
void traceLine(localLinePieces pieces, std::string_view function,
               std::source_location place = std::source_location::current());
inline void traceLine(std::u16string_view text, std::string_view function,
                      std::source_location place = std::source_location::current()) {
    traceLine({text}, function, place);
}
// As traceLine, for a function that has its name in the language.
void traceLine(std::u16string_view text, std::u16string_view function,
               std::source_location place = std::source_location::current());

// As traceLine, for the one kind of line that names no function: " file: X line: N" ends it.
void placeLine(localLinePieces pieces,
               std::source_location place = std::source_location::current());
