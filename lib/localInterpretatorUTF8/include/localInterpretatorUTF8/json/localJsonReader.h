// Reading JSON: any text into nested value lists, a flat object into a value table.
//
// Objects and arrays both become value lists; the presentation of an element is its key, and empty
// in an array. There is no map, so the order of the text and repeated keys stay. Numbers are those
// of the language, blanks and "//" comments too.
//
// What is inside what is kept on a stack of the reader's own and not on the thread's: the time
// grows with the length of the text alone, and a text too deeply nested is a fault like any other.
//
// All functions move the position, in code units, as they read.
#pragma once

#include <cstddef>
#include <string>

#include "localInterpretatorUTF8/scanner/localScanner.h"

namespace localInterpretatorUTF8 {

// Brackets that may be open at a time. One level of a written value list takes three of them.
inline constexpr std::size_t jsonDeepest = 60000;

// The text between double quotes, its escapes resolved: \' \" \\ \/ \t \n \r \f \b and \u with four
// digits. Any other backslash stays, also the one that the writer puts before brackets: those do
// not survive a way through text. The position starts behind the opening quote and ends on the
// closing one, or at the end of the text when there is none.
std::u16string scanStringGetJsonStringToken(const std::u16string& text, localPosition& pos);

// Reads one object or array into a new value list; the position ends behind its bracket and what
// follows is not looked at. `result` must be null or the program halts; the caller owns the slot it
// gets, which holds the list as far as it was read on failure. Status 34 for what is no JSON, with
// lines that tell the place but for a fault in a key; 36 for a number of more than 16 characters in
// the outermost list, 34 for one further in.
bool scanStringParseJson(int& status, const std::u16string& text, localPosition& pos,
                         localValueDescription*& result);

// Reads an object into the table that the cell holds: columns "key" and "value" are added, and a
// row for each member. A value is a string or an object, which becomes a table of its own. Status
// 33 when the cell holds no value table, 34 for what does not fit, with lines that show the place;
// rows read before stay. Memory that runs out leaves the table as it was.
bool scanStringGetValueTableFromJson(int& status, const std::u16string& text, localPosition& pos,
                                     localValueDescription& table);

}  // namespace localInterpretatorUTF8
