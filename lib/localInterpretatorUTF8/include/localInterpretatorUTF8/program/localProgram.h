// Programs: text compiled into a tree, and the tree run.
#pragma once

#include <cstdint>
#include <string>

#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"

// Compiles one block of a program's text from a position, recursively. True when the block ended at
// a terminator or at the end of the text; `status` then tells which: 0 ELSE, 1 ELSEIF, 2 ENDDO, 3
// ENDFUNCTION, 4 ENDIF, 54 end of the text. On false the position is that of the fault. Statuses
// 15, 16, 37, 39, 40, 42 to 48 and those of expressions. The caller gives status 54 and position 0.
bool textCompile(int& status, const std::u16string& text, std::uint32_t& pos,
                 localOperatorCompiled* node);

// textCompile for a whole program, with the fault written out under the name of `function`. False
// when there is one.
bool programCompile(int& status, const std::u16string& text, localOperatorCompiled& root,
                    const char* function);

// Compiles and runs a program. False when either failed, with the messages written. Status 58 when
// the program's value is not the number 1.
bool textExec(int& status, const std::u16string& text, localContextUTF8* context);

// As textExec, but true only when the program's value is the number 1; status 54 then. Any other
// value leaves the status as the run left it, 57 behind a RETURN.
bool textLoad(int& status, const std::u16string& text, localContextUTF8* context);
