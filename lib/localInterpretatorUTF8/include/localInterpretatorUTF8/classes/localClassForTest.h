// The class TEST, the smallest complete class: an example of how a class is made, and a means to
// try the handling of objects from programs.
#pragma once

#include <cstdint>

#include "localInterpretatorUTF8/value/localClassDeclaration.h"

class localClassForTest {
public:
    static localClassDeclaration* classDeclaration();

    std::int32_t attribInt = 12121212;
    std::uint32_t linkCounter = 0;
};
