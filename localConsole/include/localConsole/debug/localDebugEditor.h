// The window in which a watched program is shown.
#pragma once

#include <string>

class localVclWidgetEditor;

// Reads the file that a command names. On failure writes "Error! " and the words of the status with
// the tail of `function`; status 37 without a name, 23 for a file that cannot be read.
bool localDebugFileRead(int& status, const std::u16string& command, std::u16string& fileName,
                        std::u16string& text, const char* function);

// Shows a program beside the console. The window owns the editor.
localVclWidgetEditor* localDebugEditorShow(const std::u16string& fileName,
                                           const std::u16string& text);
