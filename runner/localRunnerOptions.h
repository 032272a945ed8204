// What the command line of korvo-run asks for.
#pragma once

#include <string>
#include <vector>

struct localRunnerOptions {
    enum class Action { standardInput, program, check, dump, lines, version, help };

    // False when the command line cannot be understood; `fault` says why in one line.
    bool read(int argc, char* argv[]);

    static std::string usage();
    static std::string version();

    Action action = Action::standardInput;
    std::u16string fileName;            // of the program
    std::u16string dataFileName;        // empty: the environment tells
    std::u16string exportFileName;      // of the sheet that a program shows; empty: none
    std::vector<std::u16string> lines;  // of -c, in order
    std::string fault;
};
