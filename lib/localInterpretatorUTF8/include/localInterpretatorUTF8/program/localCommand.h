// The one-line commands: what the console runs for a typed line and a COMMAND statement inside a
// program. A small shell around the expressions. Its words are English only.
//
// A word matches a command when it has at least 4 letters and begins it: CLEA, DISP, MEMO. DO, DIR
// and RUN are exact.
#pragma once

#include <cstdint>
#include <string>

class localContextUTF8;

namespace localInterpretatorUTF8 {

// Acts on one line from a position. True on success. A null context is allowed in check mode only;
// anything else halts. In check mode a command is recognised and passed over, what is no command
// gives true with the position back at the start. Status 5 asks for the end; 18, 23, 26, 37 and
// those of expressions and programs.
bool scanStringGetOperatorAndExec(int& status, const std::u16string& text, std::uint32_t& pos,
                                  localContextUTF8* context, bool onlyCheck);

}  // namespace localInterpretatorUTF8
