// A program of the language, or typed lines, together with what they must print.
//
// What is wanted stands in comments of the file itself, in the order of the output:
//
//     ? 1+1;                // expect: 2
//     // expect: TEXT       a line of output; trailing blanks do not count
//     // trace: TEXT        a line that ends in a trace tail, " file: X line: N"; TEXT ends in
//                           " file: X", since N changes with every edit of X
//     // expect match: TEXT, trace match: TEXT
//                           the same, "*" standing for any run of characters
//     // expect many: TEXT, trace many: TEXT
//                           neighbours of this form are lines that come in any order and number
//     a = b;                // expect status: 10
//
// Every line of the output must be wanted, the report of a fault as well as what statements print.
//
// Comments are text of the program, and a report quotes the text from the fault on: what is wanted
// of a program that does not compile stands where the report does not reach it, below the line at
// fault or, when the fault lies at the end of the text, above it.
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

enum class localWantedForm { text, pattern, many };

// One line of output that is wanted.
struct localWantedLine {
    std::size_t place = 0;  // the line of the file, from 1
    bool isTrace = false;   // ends in a trace tail; the text is without the source line's number
    localWantedForm form = localWantedForm::text;
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
