// The surroundings of a test program: what would start another program or open an editor becomes a
// line of output, "host: startProgram touch x". Everything else is as in a terminal.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "support/recordingHost.h"

class localProgramHost final : public recordingHost {
public:
    // `halted` hears of a halt before the process ends.
    explicit localProgramHost(std::function<void(const std::string&)> halted)
        : halted_(std::move(halted)) {}

    void atHalt(std::u16string_view text) override { halted_(localString::toUtf8(text)); }

    localReport::Button report(const localReport& report) override {
        return localHost::report(report);
    }

private:
    void outside(std::string call) override { writeLine(localString::fromUtf8("host: " + call)); }

    std::function<void(const std::string&)> halted_;
};
