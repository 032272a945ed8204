// The one halt of the program, for defects of the interpreter and for the end of the slots. Errors
// of a user's program never end here.
#pragma once

#include <string_view>

// Writes "Error!!!  ", the message and the trace tail, shows the host's box "Halt!!! Runtime
// error." with the message, and ends the process with exit code 1.
[[noreturn]] void exit_FAILURE(std::u16string_view message);
