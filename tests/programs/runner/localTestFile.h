// A program of the language, or typed lines, together with what they must print.
//
// What is wanted stands in comments of the file itself, in the order of the output:
//
//     ? 1+1;                // expect: 2
//     // expect: TEXT       a line of output; trailing blanks do not count
//     // expect match: TEXT the same, "*" standing for any run of characters
//     a = b;                // expect status: 10
//
// A line of output that ends in a trace tail (" func: F file: X line: N") may be wanted without it.
// All output must be wanted, except behind the last wanted line where a status is expected: there
// stand the diagnostic lines of the fault.
//
// A file `*.prg` is a program. Without an expected status it must succeed with the value 1; 58 is
// another value, 54 a failure that leaves no status. A file `*.lines` holds lines as typed at the
// console, each with its wanted output and status below it; a line without a status must succeed.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One line of output that is wanted.
struct localWantedLine {
    std::size_t place = 0;  // the line of the file, from 1
    bool isPattern = false;
    std::string text;
};

struct localWantedStatus {
    std::size_t place = 0;
    int status = 0;
};

// A program, or one typed line, and what it must do.
struct localTestStep {
    std::size_t place = 0;
    std::string text;  // the typed line; empty for a program, which is read from its file
    std::vector<localWantedLine> output;
    std::optional<localWantedStatus> status;
};

struct localTestFile {
    bool isTyped = false;
    std::vector<localTestStep> steps;  // one for a program
    std::string fault;                 // why this is no test; empty when it is one
};

localTestFile localTestFileRead(const std::filesystem::path& file);

// The lines of an output, trailing blanks cut.
std::vector<std::string> localOutputLines(std::string_view output);

// Compares an output with what is wanted. Gives the report of the first difference, one finding a
// line that begins with `name`, or an empty text.
std::string localOutputDifference(std::string_view name, const std::vector<std::string>& lines,
                                  const localTestStep& step);
