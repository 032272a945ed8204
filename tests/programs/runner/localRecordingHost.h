// The surroundings of a test program: what would start another program or open an editor becomes a
// line of output, "host: startProgram touch x". Everything else is as in a terminal.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/text/localTrace.h"

class localRecordingHost final : public localHost {
public:
    // `halted` hears of a halt before the process ends.
    explicit localRecordingHost(std::function<void(const std::string&)> halted)
        : halted_(std::move(halted)) {}

    void haltBox(std::u16string_view, std::u16string_view text) override {
        halted_(localString::toUtf8(text));
    }

    bool startProgram(std::u16string_view commandLine) override {
        record(u"startProgram", commandLine);
        return true;
    }

    void showDirectory() override { record(u"showDirectory", {}); }

    bool openOutsideEditor(std::u16string_view fileName) override {
        record(u"openOutsideEditor", fileName);
        return true;
    }

    // The line names the file and the code page by its number.
    bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage) override {
        std::u16string words(fileName);
        words += u" code page ";
        words += static_cast<char16_t>(u'0' + codePage);
        record(u"openEditor", words);
        return true;
    }

private:
    static void record(std::u16string_view what, std::u16string_view words) {
        std::u16string line = u"host: ";
        line += what;
        line += u' ';
        line += words;
        writeLine(line);
    }

    std::function<void(const std::string&)> halted_;
};
