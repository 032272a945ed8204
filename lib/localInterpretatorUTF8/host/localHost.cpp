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

void localHost::setCursor(Cursor) {}

void localHost::messageBox(MessageKind, std::u16string_view title, std::u16string_view text) {
    writeLine(std::u16string(title) + u": " + std::u16string(text));
}

// The halt has written its message as a line already; a terminal has no box to add.
void localHost::haltBox(std::u16string_view, std::u16string_view) {}

bool localHost::showList(std::u16string_view, const std::vector<std::u16string>&) {
    return false;
}

std::optional<std::size_t> localHost::chooseRow(std::u16string_view,
                                                const std::vector<std::u16string>&, std::size_t) {
    return std::nullopt;
}

bool localHost::startProgram(std::u16string_view commandLine) {
    return localPlatform::startProgram(commandLine);
}

void localHost::showDirectory() {
    for (const localPlatform::DirectoryEntry& entry : localPlatform::directoryEntries(u".")) {
        writeLine(entry.isDirectory ? entry.name + u"/" : entry.name);
    }
}

bool localHost::openOutsideEditor(std::u16string_view fileName) {
    return localPlatform::startEditor(fileName);
}

bool localHost::openEditor(std::u16string_view, localString::possibleCodePage) {
    return false;
}
