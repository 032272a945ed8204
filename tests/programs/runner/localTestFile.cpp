#include "localTestFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include "localInterpretatorUTF8/text/localString.h"

namespace {

std::string_view withoutTrailingBlanks(std::string_view line) {
    const std::size_t last = line.find_last_not_of(" \t\r");
    return line.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view withoutLeadingBlanks(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
}

// The line as the language writes it: what its conversions do not know comes out as their byte 255.
std::string asWritten(std::string_view text) {
    return localString::toUtf8(localString::fromUtf8(text));
}

bool patternMatches(std::string_view pattern, std::string_view line) {
    std::size_t inPattern = 0;
    std::size_t inLine = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (inLine < line.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == '*') {
            star = inPattern++;
            resume = inLine;
        } else if (inPattern < pattern.size() && pattern[inPattern] == line[inLine]) {
            ++inPattern;
            ++inLine;
        } else if (star != std::string_view::npos) {
            inPattern = star + 1;
            inLine = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

// The line up to its trace tail; the whole line when it has none.
std::string_view withoutTraceTail(std::string_view line) {
    constexpr std::string_view functionWord = " func: ";
    constexpr std::string_view fileWord = " file: ";
    constexpr std::string_view lineWord = " line: ";
    const std::size_t lineAt = line.rfind(lineWord);
    if (lineAt == std::string_view::npos) {
        return line;
    }
    const std::string_view number = line.substr(lineAt + lineWord.size());
    if (number.empty() || number.find_first_not_of("0123456789") != std::string_view::npos) {
        return line;
    }
    const std::size_t fileAt = line.substr(0, lineAt).rfind(fileWord);
    if (fileAt == std::string_view::npos) {
        return line;
    }
    const std::size_t functionAt = line.substr(0, fileAt).rfind(functionWord);
    return functionAt == std::string_view::npos ? line : line.substr(0, functionAt);
}

bool isWanted(const localWantedLine& wanted, std::string_view line) {
    const auto equals = [&wanted](std::string_view got) {
        return wanted.isPattern ? patternMatches(wanted.text, got) : wanted.text == got;
    };
    return equals(line) || equals(withoutTrailingBlanks(withoutTraceTail(line)));
}

// Reads the wanted thing of a line into the step. False when the comment is none.
bool readWanted(std::string_view comment, std::size_t place, localTestStep& step,
                std::string& fault) {
    constexpr std::string_view word = "expect";
    comment = withoutLeadingBlanks(comment.substr(2));
    if (comment.substr(0, word.size()) != word) {
        return false;
    }
    comment.remove_prefix(word.size());
    const auto behind = [&comment](std::string_view prefix) -> std::optional<std::string_view> {
        if (comment.substr(0, prefix.size()) != prefix) {
            return std::nullopt;
        }
        std::string_view rest = comment.substr(prefix.size());
        if (!rest.empty() && rest.front() == ' ') {
            rest.remove_prefix(1);
        }
        return withoutTrailingBlanks(rest);
    };
    if (const auto text = behind(":")) {
        step.output.push_back({place, false, asWritten(*text)});
    } else if (const auto pattern = behind(" match:")) {
        step.output.push_back({place, true, asWritten(*pattern)});
    } else if (const auto number = behind(" status:")) {
        int status = 0;
        const char* const end = number->data() + number->size();
        if (step.status || std::from_chars(number->data(), end, status).ptr != end) {
            fault = "a second status, or none";
        }
        step.status = {place, status};
    } else {
        fault = "neither \"expect:\" nor \"expect match:\" nor \"expect status:\"";
    }
    return true;
}

// Where the comment begins that says what is wanted.
std::size_t wantedAt(std::string_view line) {
    for (std::size_t at = line.find("//"); at != std::string_view::npos;
         at = line.find("//", at + 1)) {
        if (withoutLeadingBlanks(line.substr(at + 2)).substr(0, 6) == "expect") {
            return at;
        }
    }
    return std::string_view::npos;
}

bool wantsAnything(const localTestStep& step) {
    return !step.output.empty() || step.status.has_value();
}

std::string found(std::string_view name, std::size_t place, std::string_view words) {
    return std::string(name) + ':' + std::to_string(place) + ": " + std::string(words) + '\n';
}

}  // namespace

localTestFile localTestFileRead(const std::filesystem::path& file) {
    localTestFile test;
    test.isTyped = file.extension() == ".lines";
    if (!test.isTyped) {
        test.steps.push_back({1, {}, {}, {}});
    }
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        test.fault = "1: cannot be read";
        return test;
    }
    std::string line;
    for (std::size_t place = 1; test.fault.empty() && std::getline(stream, line); ++place) {
        const std::size_t at = wantedAt(line);
        const std::string_view typed =
            withoutLeadingBlanks(withoutTrailingBlanks(std::string_view(line).substr(0, at)));
        if (test.isTyped && !typed.empty()) {
            test.steps.push_back({place, std::string(typed), {}, {}});
        }
        if (at == std::string::npos) {
            continue;
        }
        std::string fault;
        if (test.steps.empty()) {
            fault = "wanted before the first line";
        } else {
            readWanted(std::string_view(line).substr(at), place, test.steps.back(), fault);
        }
        if (!fault.empty()) {
            test.fault = std::to_string(place) + ": " + fault;
        }
    }
    if (test.fault.empty() && std::none_of(test.steps.begin(), test.steps.end(), wantsAnything)) {
        test.fault = "1: nothing is expected of it";
    }
    return test;
}

std::vector<std::string> localOutputLines(std::string_view output) {
    std::vector<std::string> lines;
    while (!output.empty()) {
        const std::size_t end = std::min(output.find('\n'), output.size());
        lines.emplace_back(withoutTrailingBlanks(output.substr(0, end)));
        output.remove_prefix(std::min(end + 1, output.size()));
    }
    return lines;
}

std::string localOutputDifference(std::string_view name, const std::vector<std::string>& lines,
                                  const localTestStep& step) {
    constexpr std::size_t shownLines = 6;
    const auto rest = [&lines](std::size_t from) {
        std::string text;
        for (std::size_t i = from; i < lines.size() && i < from + shownLines; ++i) {
            text += "    got:    " + lines[i] + '\n';
        }
        return text.empty() ? std::string("    got:    no more output\n") : text;
    };
    for (std::size_t i = 0; i < step.output.size(); ++i) {
        const localWantedLine& wanted = step.output[i];
        if (i >= lines.size() || !isWanted(wanted, lines[i])) {
            return found(name, wanted.place, "output line " + std::to_string(i + 1)) +
                   "    wanted: " + wanted.text + '\n' + rest(i);
        }
    }
    if (lines.size() > step.output.size() && !step.status) {
        const std::size_t place = step.output.empty() ? step.place : step.output.back().place;
        return found(name, place, "wanted no more output") + rest(step.output.size());
    }
    return {};
}
