// The layout of a table in a form, as JSON text.
#pragma once

#include <string>

// Whether the text is JSON that gives a value list; a line on the standard output stream tells what
// it is not.
bool layoutAsJsonTest(const std::u16string& json);
