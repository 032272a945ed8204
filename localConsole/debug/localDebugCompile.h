// The compiling of a program that is watched.
#pragma once

#include <string>

struct localOperatorCompiled;

// Compiles a whole program into a root whose function is set. False with a status when the program
// has a fault or the memory cannot hold it; a terminator of a block outside any block is such a
// fault. Statuses as textCompile.
bool localDebugCompile(int& status, const std::u16string& text, localOperatorCompiled& root);
