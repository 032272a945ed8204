#include "localInterpretatorUTF8/host/localHost.h"

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localTrace.h"

class localHost::Terminal final : public localHost {};

namespace {
localHost* installedHost = nullptr;
}

localHost& localHost::current() {
    static Terminal terminal;
    return installedHost != nullptr ? *installedHost : terminal;
}

void localHost::install(localHost* host) {
    installedHost = host;
}

bool localHost::hasScreen() const {
    return false;
}

void localHost::setCursor(Cursor) {}

void localHost::beep() {}

localReport::Button localHost::report(const localReport& report) {
    writeLine({report.title, u": ", report.plainText()});
    return report.defaultButton;
}

bool localHost::showMessage(const localReport&) {
    return false;
}

// The halt has written its message as a line already; a terminal has no box to add.
void localHost::haltBox(std::u16string_view, std::u16string_view) {}

std::optional<std::size_t> localHost::chooseRow(std::u16string_view,
                                                const std::vector<std::u16string>&, std::size_t) {
    return std::nullopt;
}

std::optional<std::u16string> localHost::chooseDate(std::u16string_view) {
    return std::nullopt;
}

std::u16string localHost::chooseFile(std::u16string_view, std::u16string_view,
                                     const std::vector<std::u16string>&) {
    return {};
}

bool localHost::showText(std::u16string_view, std::u16string_view) {
    return false;
}

bool localHost::showList(std::u16string_view, const std::vector<std::u16string>&) {
    return false;
}

void localHost::showDirectory() {
    for (const localPlatform::DirectoryEntry& entry : localPlatform::directoryEntries(u".")) {
        writeLine({entry.name, entry.isDirectory ? u"/" : u""});
    }
}

bool localHost::openEditor(std::u16string_view, localString::possibleCodePage) {
    return false;
}

bool localHost::startProgram(std::u16string_view commandLine) {
    return localPlatform::startProgram(commandLine);
}

bool localHost::openOutsideEditor(std::u16string_view fileName) {
    return localPlatform::startEditor(fileName);
}
