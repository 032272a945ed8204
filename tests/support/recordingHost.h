// Hosts that write down what the language asks of its surroundings, and answer as they were told
// to. Each is in force as long as it lives.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "localInterpretatorUTF8/host/localHost.h"

// Records boxes and the listing of a folder; the rest is as with the other host.
template <typename Other>
class boxRecordingHost : public Other {
public:
    using Button = localReport::Button;
    // The button of a box, the row of a list, the text of a date or a file's name.
    using Answer = std::variant<Button, std::size_t, std::u16string>;

    boxRecordingHost() : before_(localHost::current()) { localHost::install(this); }
    ~boxRecordingHost() override { localHost::install(&before_); }
    boxRecordingHost(const boxRecordingHost&) = delete;
    boxRecordingHost& operator=(const boxRecordingHost&) = delete;

    // All that was asked, in order: "critical [title] [text]".
    std::vector<std::string> calls;
    // The boxes among it, in order.
    std::vector<localReport> reports;
    // What the next boxes and dialogs are answered with, in order. An answer of another kind than
    // the one asked for throws. Where none is left, a box gets its default button and a choice is
    // rejected.
    std::deque<Answer> answers;

    // What is done while the box of a halt is open; the process ends behind it.
    virtual void atHalt(std::u16string_view) {}

    Button report(const localReport& report) override {
        reports.push_back(report);
        record(wordsOf(report));
        return answered(report.defaultButton);
    }
    void haltBox(std::u16string_view title, std::u16string_view text) override {
        record("halt" + inBrackets(title) + inBrackets(text));
        atHalt(text);
    }
    void showDirectory() override { outside("showDirectory"); }

protected:
    void record(std::string call) { calls.push_back(std::move(call)); }
    // What would lead out of the program or to its windows.
    virtual void outside(std::string call) { record(std::move(call)); }

    static std::string inBrackets(std::u16string_view text) {
        return " [" + localString::toUtf8(text) + "]";
    }
    // The text without a trace tail. Buttons are told where there is more than OK, the form where
    // it is HTML.
    static std::string wordsOf(const localReport& report) {
        constexpr const char* kinds[] = {"about", "information", "warning", "critical", "question"};
        constexpr const char* buttons[] = {"ok", "cancel", "yes", "no"};
        const std::u16string_view text = report.text;
        std::string words = kinds[static_cast<std::size_t>(report.kind)] +
                            inBrackets(report.title) +
                            inBrackets(text.substr(0, text.find(u" func: ")));
        if (report.buttons != std::vector{Button::ok}) {
            for (const Button button : report.buttons) {
                words += button == report.defaultButton ? " *" : " ";
                words += buttons[static_cast<std::size_t>(button)];
            }
        }
        return report.form == localReport::Form::html ? words + " html" : words;
    }

    template <typename T>
    T answered(T otherwise) {
        if (answers.empty()) {
            return otherwise;
        }
        T answer = std::get<T>(answers.front());
        answers.pop_front();
        return answer;
    }

private:
    localHost& before_;
};

// Records all, and does nothing.
class recordingHost : public boxRecordingHost<localHost> {
public:
    // Whether there is a screen to show things on.
    bool screen = false;
    // Whether editors and outside programs can be opened.
    bool opens = true;

    bool hasScreen() const override { return screen; }

    void setCursor(Cursor cursor) override {
        record(cursor == Cursor::wait    ? "cursor wait"
               : cursor == Cursor::arrow ? "cursor arrow"
                                         : "cursor restored");
    }

    void beep() override { record("beep"); }

    bool showMessage(const localReport& message) override {
        if (screen) {
            reports.push_back(message);
            record("message " + wordsOf(message));
        }
        return screen;
    }

    std::optional<std::size_t> chooseRow(std::u16string_view title,
                                         const std::vector<std::u16string>& lines,
                                         std::size_t startRow) override {
        if (!screen) {
            return std::nullopt;
        }
        record("choose" + inBrackets(title) + " from " + std::to_string(startRow) + joined(lines));
        return answered(std::size_t{0});
    }
    std::optional<std::u16string> chooseDate(std::u16string_view start) override {
        if (!screen) {
            return std::nullopt;
        }
        record("date" + inBrackets(start));
        return answered(std::u16string());
    }
    std::u16string chooseFile(std::u16string_view title, std::u16string_view folder,
                              const std::vector<std::u16string>& filters) override {
        record("file" + inBrackets(title) + inBrackets(folder) + joined(filters));
        return answered(std::u16string());
    }

    bool showText(std::u16string_view title, std::u16string_view text) override {
        if (screen) {
            record("text" + inBrackets(title) + inBrackets(text));
        }
        return screen;
    }
    bool showList(std::u16string_view title, const std::vector<std::u16string>& lines) override {
        if (screen) {
            record("list" + inBrackets(title) + joined(lines));
        }
        return screen;
    }

    bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage) override {
        outside("openEditor " + localString::toUtf8(fileName) + " code page " +
                std::to_string(codePage));
        return opens;
    }
    bool startProgram(std::u16string_view commandLine) override {
        outside("startProgram " + localString::toUtf8(commandLine));
        return opens;
    }
    bool openOutsideEditor(std::u16string_view fileName) override {
        outside("openOutsideEditor " + localString::toUtf8(fileName));
        return opens;
    }

private:
    static std::string joined(const std::vector<std::u16string>& lines) {
        std::string text;
        for (const std::u16string& line : lines) {
            text += " |" + localString::toUtf8(line) + "|";
        }
        return text;
    }
};
