// Text files of the language: read and written whole, in a code page.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "localInterpretatorUTF8/text/localString.h"

// Reads a file behind `text`. Lines are joined by a line feed, put before a line only when the text
// holds something already: empty lines at the start vanish and a final line end does not survive.
// Code page 1 appends the base64 text of the bytes. False when a file cannot be read or is too
// long; sets no status.
bool fileRead(std::u16string_view fileName, std::u16string& text,
              localString::possibleCodePage codePage);

// As fileRead with a code page by name (localString::codePageFromName) into an emptied text, with
// every line end between lines kept. Status 23 when the file cannot be read.
bool loadFileToText(int& status, std::u16string_view fileName, std::u16string& text,
                    std::u16string_view codePageName);

enum class FileWriteMode {
    append,
    truncate,
    replace,  // by a new file, written beside it first: a failure leaves the old one as it was
};

// Writes a text in a code page; code page 1 decodes it from base64. An empty name gives false. A
// file that cannot be opened or written gives false after the host's critical box "save".
bool fileWrite(FileWriteMode mode, localString::possibleCodePage codePage, std::u16string_view text,
               std::u16string_view fileName);

// One line at the end of the log, current.log in the folder where the process was started. A log
// that cannot be opened gives one line on the standard output stream and nothing else.
void logWrite(std::u16string_view text);

// Appends bytes to a named file, reporting as logWrite does, under the name of `function`.
void appendToLog(std::u16string_view fileName, std::string_view bytes, std::string_view function);

// The path of the log.
std::u16string logFileName();
