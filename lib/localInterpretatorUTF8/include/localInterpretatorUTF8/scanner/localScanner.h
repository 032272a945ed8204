// The expressions of the language. They stay text: each time one is needed it is scanned from a
// position and its value computed on the way. In check mode the same scanning validates without any
// context.
//
// There is one grammar and one code path; the compiler, the console, forms and grids all come in
// here, and nothing outside knows how an expression is evaluated.
//
//   expression: [prefix] operand { operation operand | "?" expression ":" expression }
//   prefix:     "-" | "!" | НЕ | NOT            at the very start, for the first operand alone
//   operand:    number | string | name-path | "(" expression ")"
//   name-path:  name { "." name } [ "(" arguments ")" ]
//
// All functions take the status, the text and the position in code units, which moves on as they
// read. A result pointer must be null on entry and the context may be null in check mode only;
// anything else is a defect and halts. A result is a slot with one link that the caller owns; in
// check mode it is the number
// 1. On false `status` names the cause, though it may still be 54.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/value/localSlot.h"

class localContextUTF8;

namespace localInterpretatorUTF8 {

using localPosition = std::uint32_t;

// Statuses 16, 21, 36, 37, 38, 41, 50, 51 and what methods and attributes set.
bool scanStringGetExpressionAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                        localValueDescription*& result, localContextUTF8* context,
                                        bool onlyCheck);
bool scanStringGetOperandAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                     localValueDescription*& result, localContextUTF8* context,
                                     bool onlyCheck);
bool scanStringGetNameTokenAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                       localValueDescription*& result, localContextUTF8* context,
                                       bool onlyCheck);
// An optional "-", digits with at most one ".", at most 16 characters or status 36. There is no
// exponent.
bool scanStringGetNumberTokenAndEvaluete(int& status, const std::u16string& text,
                                         localPosition& pos, localValueDescription*& result);
// From a delimiter to the next unit equal to it. No escapes; may span lines. False without a second
// one.
bool scanStringGetStringTokenAndEvaluete(const std::u16string& text, localPosition& pos,
                                         localValueDescription*& result);
// Expressions up to ")" or the end of the text, parted by commas or by nothing. A comma right
// before
// ")" gives false and leaves the status as it was. On false `args` may hold a part of them.
bool scanStringGetArguments(int& status, const std::u16string& text, localPosition& pos,
                            std::vector<localSlot>& args, localContextUTF8* context,
                            bool onlyCheck);

// Passes over blanks and comments, which run from "//" to the end of the line.
void scanStringSkipBlanks(const std::u16string& text, localPosition& pos);
// Skips, then the longest run of name units as it is written; may be empty. Lives as long as the
// text.
std::u16string_view scanStringGetNameToken(const std::u16string& text, localPosition& pos);
// Skips, then an operation with the position behind it, or 0.
int scanStringGetBinaryOperation(const std::u16string& text, localPosition& pos);
// Skips, then a text in double quotes or all up to a blank or line feed, which is consumed. Status
// 37 for quotes that do not end; the name is empty then and at the end of the text.
std::u16string scanStringGetFileName(int& status, const std::u16string& text, localPosition& pos);

}  // namespace localInterpretatorUTF8
