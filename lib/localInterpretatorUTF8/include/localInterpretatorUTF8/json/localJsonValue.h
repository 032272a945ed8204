// The typed form of values: JSON in which every value carries its type, so that it finds the way
// back.
//
//   value: {"t": "NUM","vP": "1","v": "1"}        an object has its class too, as key tN behind t
//   list:  [ {"p": "presentation","v": value} ]   one line an item, the comma in front
//
// The layout is fixed to the character. Three things do not come back as they went, and are meant
// so: a boolean is written as quoted text and read as the number 0; brackets and braces in texts
// keep the backslash that the writer puts before them; objects other than value lists are not
// restored.
//
// Lists in lists are walked with a stack of the writer's and reader's own, so their depth does not
// matter.
#pragma once

#include <string>
#include <string_view>

#include "localInterpretatorUTF8/text/localText.h"

class localContextUTF8;
class localValueDescription;
class localValueList;

// A text with JSON's escapes, and with ' / [ ] { } escaped too, which standard JSON does not ask
// for. May be twice as long.
std::u16string jsonEscape(std::u16string_view text);

// The typed form of a value. Status 16, with a trace line, for a list that holds itself on some way
// and for a text longer than a value can hold; the text is empty then.
bool valueToJson(int& status, const localValueDescription& value, localText& text);
// The items of a list, each in typed form; statuses as above.
bool valueListToJson(int& status, const localValueList& list, localText& text);

// The same for callers who need no status: empty on failure.
localText valueToJson(const localValueDescription& value);
localText valueListToJson(const localValueList& list);

// Restores a value from the list that reading its typed form gave, or a value list from its items
// in typed form, as valueListToJson writes them. `result` must be null or the program halts; the
// caller owns the slot it gets, also on failure. Status 35 for what cannot be restored, 14 for a
// class that is not loaded, and what making the object sets.
bool fromJsonValueList(int& status, localContextUTF8* context, const localValueList& list,
                       localValueDescription*& result);
