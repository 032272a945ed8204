// A sheet as text, of type "SXL", and as a value list.
//
// The text's layout is fixed to the character, the misspelt key of the columns too. Not all of a
// sheet is in it: pictures, widths and heights are not written, details are written and not read,
// and the default cell is read as one more cell behind the new one. Meant.
//
// A letter that the writer of files cannot hold stands in the text as \u and four digits.
#pragma once

#include <string>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/text/localText.h"

class localSxlSheet;

// The SXL text. Status 16, with a trace line, for one longer than a value can hold.
bool localSxlToJson(int& status, const localSxlSheet& sheet, localText& text);

// The same facts, without fonts and with sizes, appended to a list.
void localSxlToValueList(const localSxlSheet& sheet, localValueList& list);

// Puts what an SXL text holds in the place of all that the sheet holds. False, with lines that tell
// why and the sheet as it was, for what is no JSON object or array.
bool localSxlFromJson(localSxlSheet& sheet, const std::u16string& text);
// The same from the value that such a text was read into.
bool localSxlFromValue(localSxlSheet& sheet, const localValueDescription& value);

// The same from a file in UTF-8; a file that cannot be read is told of in a line, too.
bool localSxlLoad(localSxlSheet& sheet, std::u16string_view fileName);
