// The string of JSON, read and written: the one place that knows the escapes.
#pragma once

#include <string>
#include <string_view>

#include "localInterpretatorUTF8/text/localText.h"
#include "scanner/localCursor.h"

// A text under construction that refuses to grow past the longest a value can hold.
class localJsonOutput {
public:
    void put(std::u16string_view piece) {
        if (piece.size() > localText::maxLength - text.size()) {
            isFull = true;
        } else {
            text.append(piece);
        }
    }
    void putEscaped(std::u16string_view piece);

    localText text;
    bool isFull = false;
};

// The content from behind the opening quote up to the closing one, on which the cursor stays, or to
// the end of the text. It is a view into the text, or into `scratch` when there were escapes to
// resolve.
std::u16string_view localJsonString(localCursor& cursor, std::u16string& scratch);
