// Typed lines without a window: each is acted on as the console acts on it, all in one context.
#pragma once

#include <string>
#include <vector>

namespace localTypedLines {

// Gives the exit code: 0, or 1 when a line failed. QUIT ends.
int actOn(const std::vector<std::u16string>& lines);

// Lines up to QUIT or the end of input. In a terminal with banner, prompt, editing and history; the
// exit code is 0 there.
int actOnStandardInput();

}  // namespace localTypedLines
