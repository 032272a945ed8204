// Variables through which a program's context names the run that watches it.
#pragma once

#include <string_view>

class localContextUTF8;

// Puts an object of no class under a name into the context. The value never owns or touches it.
void localDebugVariablePut(localContextUTF8& context, std::u16string_view name, void* object);
