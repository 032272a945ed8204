// An experimental compiled form of expressions, reached only through ___TEST00001. It knows numbers
// and nothing executes it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"

class localByteCode {
public:
    static constexpr std::int32_t LOAD = 1;  // the operand is an index into the data pool

    // Compiles one operand. Status 37 for what is neither a number nor begins a string or name;
    // those two add nothing. Status 36 for a number of too many characters.
    bool compile(int& status, const std::u16string& source);

    // Writes the source, the data pool and the instructions to the standard output stream.
    void list() const;

private:
    struct Instruction {
        std::int32_t opcode;
        std::int32_t operand;
        std::u16string comment;
    };

    std::vector<Instruction> instructions_;
    std::vector<localValueDescription> data_;
    std::u16string source_;
};
