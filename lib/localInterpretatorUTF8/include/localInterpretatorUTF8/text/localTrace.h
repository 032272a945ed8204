// Lines on the standard output stream: the language writes there and nothing else does.
//
// A diagnostic line ends in one tail, which names the reporting function, its source file without
// folders and the line: " func: F file: X line: N". The function's name is given by the caller,
// since some functions report under a name of their own.
#pragma once

#include <source_location>
#include <string>
#include <string_view>

// The tail without the line end.
std::string traceTail(std::string_view function,
                      std::source_location place = std::source_location::current());

// One line: the text, and a line end. The stream is flushed, so that a pipe or window sees it at
// once.
void writeLine(std::u16string_view text = {});

// One line: the text and the tail of the calling place.
void traceLine(std::u16string_view text, std::string_view function,
               std::source_location place = std::source_location::current());

// As traceLine, for the one kind of line that names no function: " file: X line: N" ends it.
void placeLine(std::u16string_view text,
               std::source_location place = std::source_location::current());
