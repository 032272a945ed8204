#include "localTestRun.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <vector>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/value/localCounters.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localProgramHost.h"
#include "localTestFile.h"

#ifdef KORVO_ABOVE
#include "localDb/localDb.h"
#include "localDb/localDbExtension.h"
#include "localSxl/script/localSxlExtension.h"
#include "localToolkit/localToolkitApplication.h"
#endif

namespace {

namespace fs = std::filesystem;

constexpr unsigned longestRunSeconds = 60;

// What must be the same before and after.
struct Footprint {
    std::size_t slots = localMemoryManager::manager->getUsedCount();
    std::vector<std::int64_t> counters;

    Footprint() {
        for (const localCounter& counter : localCounters()) {
            counters.push_back(counter.total == nullptr ? 0 : *counter.total);
        }
    }
};

// Declarations are built when a class is first used and stay.
bool growsByFirstUse(std::string_view counterName) {
    return counterName == "localClassDeclaration::counterStaticTotal";
}

std::string leaks(const std::string& name, const Footprint& before, const Footprint& after) {
    std::string report;
    const auto add = [&report, &name](std::string_view what, auto wanted, auto got) {
        report += name + ": left behind: " + std::string(what) +
                  "\n    wanted: " + std::to_string(wanted) +
                  "\n    got:    " + std::to_string(got) + '\n';
    };
    if (before.slots != after.slots) {
        add("slots in use", before.slots, after.slots);
    }
    std::size_t i = 0;
    for (const localCounter& counter : localCounters()) {
        const bool grew = after.counters[i] > before.counters[i];
        if (before.counters[i] != after.counters[i] && !(grew && growsByFirstUse(counter.name))) {
            add(counter.name, before.counters[i], after.counters[i]);
        }
        ++i;
    }
    return report;
}

// The first use of the store, the class declarations and the library's tables.
void warmUp() {
    localMemoryManager::start();
    localContextUTF8 context;
    int status = localErrorTypeOK;
    textExec(status, u"? 1;", &context);
}

struct Outcome {
    bool succeeded = false;
    int status = 0;
};

// Compares the outcome with the wanted status, or with success.
std::string outcomeDifference(const std::string& name, const localTestStep& step,
                              const Outcome& outcome) {
    const int wanted = step.status ? step.status->status : localErrorTypeOK;
    // Status 54 written out is a failure that left no status. A program's other value and the typed
    // word that asks for the end come with success.
    const bool isTyped = !step.text.empty();
    const bool mustSucceed =
        !step.status || wanted == (isTyped ? localErrorTypeQUIT : localErrorTypeRESULTNOTONE);
    // A program that ends by RETURN leaves the status of that word.
    const bool returned = !step.status && outcome.status == localErrorTypeRETURN;
    if ((outcome.status == wanted || returned) && outcome.succeeded == mustSucceed) {
        return {};
    }
    const auto words = [](bool succeeded, int status) {
        return std::string(succeeded ? "success" : "failure") + ", status " +
               std::to_string(status) + " " + localString::toUtf8(statusMessage(status));
    };
    const std::size_t place = step.status ? step.status->place : step.place;
    return name + ':' + std::to_string(place) +
           ": outcome\n    wanted: " + words(mustSucceed, wanted) +
           "\n    got:    " + words(outcome.succeeded, outcome.status) + '\n';
}

std::string stepDifference(const std::string& name, const localTestStep& step,
                           const Outcome& outcome, const std::string& output) {
    const std::vector<std::string> lines = localOutputLines(output);
    std::string report = localOutputDifference(name, lines, step);
    const std::string difference = outcomeDifference(name, step, outcome);
    if (!difference.empty() && report.empty()) {
        const std::size_t shown = lines.size() < 8 ? 0 : lines.size() - 8;
        for (std::size_t i = shown; i < lines.size(); ++i) {
            report += "    output: " + lines[i] + '\n';
        }
        return difference + report;
    }
    return report + difference;
}

Outcome runProgram(const fs::path& file, localContextUTF8& context) {
    Outcome outcome{false, localErrorTypeOK};
    std::u16string text;
    outcome.succeeded =
        loadFileToText(outcome.status, localString::fromUtf8(file.string()), text, u"Utf8") &&
        textExec(outcome.status, text, &context);
    return outcome;
}

Outcome runLine(const std::string& typed, localContextUTF8& context) {
    Outcome outcome{false, localErrorTypeOK};
    std::uint32_t pos = 0;
    outcome.succeeded = localInterpretatorUTF8::scanStringGetOperatorAndExec(
        outcome.status, localString::fromUtf8(typed), pos, &context, false);
    return outcome;
}

std::string runAll(const fs::path& file, const std::string& name, const localTestFile& test) {
    std::ostringstream output;
    std::streambuf* const console = std::cout.rdbuf(output.rdbuf());
    warmUp();
    const Footprint before;
    std::string report;
    {
        localContextUTF8 context;
        for (const localTestStep& step : test.steps) {
            output.str({});
            const Outcome outcome =
                test.isTyped ? runLine(step.text, context) : runProgram(file, context);
            report += stepDifference(name, step, outcome, output.str());
        }
    }
    const Footprint after;
    std::cout.rdbuf(console);
    return report + leaks(name, before, after);
}

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written <= 0) {
            return;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string readAll(int descriptor) {
    std::string text;
    char block[4096];
    for (ssize_t count = 0; (count = ::read(descriptor, block, sizeof block)) > 0;) {
        text.append(block, static_cast<std::size_t>(count));
    }
    return text;
}

// The second process: acts, sends its report, ends. It ends by exit, so that a leak check at the
// end of processes sees it.
[[noreturn]] void actAndExit(int reportTo, const fs::path& file, const std::string& name,
                             const localTestFile& test) {
    ::alarm(longestRunSeconds);
    // The log lies where the process was started; its folder is this copy.
    localStd::startDirectory();
#ifdef KORVO_ABOVE
    localToolkitApplication();
    localExtensionAdd(localDbExtension);
    localExtensionAdd(localSxlExtension);
    localDb::applicationSetDataFullFileName(u"data.sqlite");
#endif
    localProgramHost host([reportTo, &name](const std::string& message) {
        writeAll(reportTo, name + ": halted: " + message + '\n');
    });
    writeAll(reportTo, runAll(file, name, test));
    ::close(reportTo);
    std::exit(0);
}

std::string endOfProcess(const std::string& name, int state) {
    if (WIFSIGNALED(state)) {
        const int number = WTERMSIG(state);
        return name + (number == SIGALRM
                           ? ": took more than " + std::to_string(longestRunSeconds) + " seconds\n"
                           : ": ended by signal " + std::to_string(number) + '\n');
    }
    const int code = WEXITSTATUS(state);
    return code == 0 ? std::string()
                     : name + ": ended with exit code " + std::to_string(code) + '\n';
}

}  // namespace

std::string localTestRun(const fs::path& file, const std::string& name) {
    const localTestFile test = localTestFileRead(file);
    if (!test.fault.empty()) {
        return name + ':' + test.fault + '\n';
    }
    const fs::path startedIn = fs::current_path();
    const fs::path copy = startedIn / "copy";
    fs::copy(file.parent_path(), copy, fs::copy_options::recursive);
    // What is called a copy can be written to, wherever it came from.
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(copy)) {
        fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
    }
    fs::current_path(copy);

    int pipeEnds[2];
    std::string report;
    std::cout.flush();
    const pid_t process = ::pipe(pipeEnds) == 0 ? ::fork() : -1;
    if (process == 0) {
        ::close(pipeEnds[0]);
        actAndExit(pipeEnds[1], file.filename(), name, test);
    }
    if (process > 0) {
        ::close(pipeEnds[1]);
        report = readAll(pipeEnds[0]);
        ::close(pipeEnds[0]);
        int state = 0;
        ::waitpid(process, &state, 0);
        report += endOfProcess(name, state);
    } else {
        report = name + ": no process could be made\n";
    }

    fs::current_path(startedIn);
    fs::remove_all(copy);
    return report;
}
