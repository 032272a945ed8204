// A layout as text that a person can read and change: plain JSON. Under the turn.
#pragma once

#include <string>

#include "localInterpretatorUTF8/value/localValueDescription.h"

class localValueList;

// A list as JSON: an object where its items have presentations, else an array; texts and numbers.
std::u16string localVclGridLayoutText(const localValueList& layout);

// A value holding the list that a text tells of, in plain JSON or in the typed form of values; the
// number 0 when it tells of none, with lines that name the place.
localValueDescription localVclGridLayoutRead(const std::u16string& text);
