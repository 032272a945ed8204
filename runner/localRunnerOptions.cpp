#include "localRunnerOptions.h"

#include <string_view>

#include "localInterpretatorUTF8/platform/localPlatform.h"

bool localRunnerOptions::read(int argc, char* argv[]) {
    const auto failed = [this](const std::string& words) {
        fault = "korvo-run: " + words + " (korvo-run --help tells the options)";
        return false;
    };
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const bool isOption = !optionsEnded && word.size() > 1 && word[0] == '-';
        if (isOption && word == "--") {
            optionsEnded = true;
            continue;
        }
        const bool isFile = !isOption;
        if (word == "--help" && isOption) {
            action = Action::help;
            return true;
        }
        if (word == "--version" && isOption) {
            action = Action::version;
            return true;
        }
        if (isOption && word != "-c" && word != "--check" && word != "--dump" && word != "--data" &&
            word != "--export") {
            return failed("unknown option " + std::string(word));
        }
        if (!isFile && i + 1 >= argc) {
            return failed(std::string(word) + (word == "-c" ? " needs a line" : " needs a file"));
        }
        const std::u16string text = localPlatform::fileNameFromBytes(isFile ? argv[i] : argv[++i]);
        if (word == "--data" && isOption) {
            dataFileName = text;
            continue;
        }
        if (word == "--export" && isOption) {
            exportFileName = text;
            continue;
        }
        const Action asked = isFile              ? Action::program
                             : word == "-c"      ? Action::lines
                             : word == "--check" ? Action::check
                                                 : Action::dump;
        if (action != Action::standardInput && (action != Action::lines || asked != action)) {
            return failed("one program, or lines of -c, but not both");
        }
        action = asked;
        if (asked == Action::lines) {
            lines.push_back(text);
        } else {
            fileName = text;
        }
    }
    return exportFileName.empty() || action == Action::program ||
           failed("--export needs a program or a sheet");
}

std::string localRunnerOptions::usage() {
    return R"(korvo-run FILE.prg          load and run a program
korvo-run -c LINE           act on a line as the console does; may be given several times
korvo-run                   act on the lines of standard input; in a terminal with editing
korvo-run --check FILE.prg  compile a program only
korvo-run --dump FILE.prg   compile a program and write its tree
korvo-run --export OUT FILE export a sheet as .pdf, .html, .csv or .xlsx: that of FILE.sxl, or
                            the one that the program FILE.prg shows, the last where it shows many
korvo-run --version
korvo-run --help

  --data FILE with any of these: the data file of class DATABASE, before the variable KORVO_DATA

Exit codes
  FILE.prg          0 its value was the number 1, 3 another value, 1 an error, 2 cannot be read
  lines             0, or 1 when a line failed (in a terminal always 0)
  --check, --dump   0, 1 an error, 2 cannot be read
  wrong options     2
)";
}

std::string localRunnerOptions::version() {
    return "korvo-run " KORVO_VERSION;
}
