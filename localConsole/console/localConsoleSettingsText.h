// The text of the settings' file, changed in place: a person writes there, too.
#pragma once

#include <string>
#include <string_view>

// Puts a number under a key into a text of JSON, an object of keys and values or a value list in
// its typed form; a key that is not there comes behind the others. All other bytes stay. False with
// the text left as it was when it is neither.
bool localSettingsNumberSet(std::string& text, std::string_view key, int number);
