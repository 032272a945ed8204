#include "localTestFile.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <system_error>
#include <utility>

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

// The line without the source line's number at its end; nothing when it has no trace tail.
std::optional<std::string_view> withoutSourceLine(std::string_view line) {
    constexpr std::string_view fileWord = " file: ";
    constexpr std::string_view lineWord = " line: ";
    const std::size_t lineAt = line.rfind(lineWord);
    if (lineAt == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view number = line.substr(lineAt + lineWord.size());
    const std::string_view head = line.substr(0, lineAt);
    const std::size_t fileAt = head.rfind(fileWord);
    if (number.empty() || number.find_first_not_of("0123456789") != std::string_view::npos ||
        fileAt == std::string_view::npos ||
        head.find(' ', fileAt + fileWord.size()) != std::string_view::npos) {
        return std::nullopt;
    }
    return head;
}

bool isWanted(const localWantedLine& wanted, std::string_view line) {
    const std::optional<std::string_view> traced = withoutSourceLine(line);
    if (traced.has_value() != wanted.isTrace) {
        return false;
    }
    const std::string_view got = traced.value_or(line);
    return wanted.form == localWantedForm::pattern ? patternMatches(wanted.text, got)
                                                   : wanted.text == got;
}

// The word that begins a comment of what is wanted; empty when the comment is none.
std::string_view wantedWord(std::string_view comment) {
    for (const std::string_view word : {std::string_view("expect"), std::string_view("trace")}) {
        if (comment.substr(0, word.size()) == word) {
            return word;
        }
    }
    return {};
}

// Reads the wanted thing of a line into the step. Gives why it cannot be read, or an empty text.
std::string readWanted(std::string_view comment, std::size_t place, localTestStep& step) {
    comment = withoutLeadingBlanks(comment.substr(2));
    const std::string_view word = wantedWord(comment);
    const bool isTrace = word == "trace";
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
    constexpr std::pair<std::string_view, localWantedForm> forms[] = {
        {":", localWantedForm::text},
        {" match:", localWantedForm::pattern},
        {" many:", localWantedForm::many}};
    for (const auto& [prefix, form] : forms) {
        if (const auto text = behind(prefix)) {
            step.output.push_back({place, isTrace, form, asWritten(*text)});
            return {};
        }
    }
    const auto number = behind(" status:");
    if (isTrace || !number) {
        return "neither \"expect:\" nor \"trace:\", nor these with \" match\" or "
               "\" many\", nor \"expect status:\"";
    }
    int status = 0;
    const char* const end = number->data() + number->size();
    const auto [readTo, fault] = std::from_chars(number->data(), end, status);
    if (step.status || fault != std::errc() || readTo != end) {
        return "a second status, or none";
    }
    step.status = {place, status};
    return {};
}

// Where the comment begins that says what is wanted.
std::size_t wantedAt(std::string_view line) {
    for (std::size_t at = line.find("//"); at != std::string_view::npos;
         at = line.find("//", at + 1)) {
        if (!wantedWord(withoutLeadingBlanks(line.substr(at + 2))).empty()) {
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
        if (test.steps.empty()) {
            test.fault = "wanted before the first line";
        } else {
            test.fault = readWanted(std::string_view(line).substr(at), place, test.steps.back());
        }
        if (!test.fault.empty()) {
            test.fault = std::to_string(place) + ": " + test.fault;
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
    const auto isMany = [](const localWantedLine& wanted) {
        return wanted.form == localWantedForm::many;
    };
    const auto end = step.output.end();
    std::size_t i = 0;
    for (auto next = step.output.begin(); next != end; ++next) {
        const auto firstOfMany = next;
        next = std::find_if_not(next, end, isMany);
        // The last lines are left for what is wanted behind the many.
        const auto behind = static_cast<std::size_t>(end - next);
        const auto isLine = [&](const localWantedLine& one) { return isWanted(one, lines[i]); };
        while (i + behind < lines.size() && std::any_of(firstOfMany, next, isLine)) {
            ++i;
        }
        if (next == end) {
            break;
        }
        if (i >= lines.size() || !isWanted(*next, lines[i])) {
            return found(name, next->place, "output line " + std::to_string(i + 1)) +
                   (next->isTrace ? "    trace:  " : "    wanted: ") + next->text + '\n' + rest(i);
        }
        ++i;
    }
    if (i < lines.size()) {
        const std::size_t place = step.output.empty() ? step.place : step.output.back().place;
        return found(name, place, "wanted no more output") + rest(i);
    }
    return {};
}
