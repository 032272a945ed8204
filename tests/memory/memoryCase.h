// What is tried under failing memory: an expression, a typed line or a program.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

struct memoryCase {
    enum class Kind { expression, line, program, check };

    // The name of a function, "CLASS.METHOD", or a sentence.
    std::string name{};
    std::string text{};
    // Runs before, with all the memory it needs. A program.
    std::string setup{};
    Kind kind = Kind::expression;
    // A result that memory may lead to instead of status 16, as the language has it.
    std::string insteadResult{};
    // A status that memory may lead to instead of 16, as the language has it.
    int insteadStatus = 16;
    // Each time another result or other lines.
    bool varies = false;
    // Changes things one after the other, so that it may end between two of them.
    bool severalChanges = false;
};

// The global functions, by their English names.
std::vector<memoryCase> functionCases();
// The members of the classes: "CLASS.MEMBER", "CLASS.new" and "CLASS.end".
std::vector<memoryCase> memberCases();
// The same of the classes of the data file, which has a table Goods.
std::vector<memoryCase> databaseCases();
// Those of the class TABLEDOCUMENT.
std::vector<memoryCase> sheetCases();
// Kinds of statement.
std::vector<memoryCase> statementCases();
// Typed lines.
std::vector<memoryCase> lineCases();

void PrintTo(const memoryCase& given, std::ostream* stream);
