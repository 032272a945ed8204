#include "localInterpretatorUTF8/file/localFile.h"

#include <memory>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localText.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

using FileHandle = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

FileHandle opened(std::u16string_view name, const char* mode) {
    return {localPlatform::openFile(name, mode), &std::fclose};
}

// More than any text is made of: a code unit takes at most two bytes of a file. Some files never
// end.
constexpr std::size_t longestFile = localText::maxLength * 2;

// False also for a file that no text can hold.
bool readBytes(std::u16string_view fileName, const char* mode, std::string& bytes) {
    const FileHandle file = opened(fileName, mode);
    if (file == nullptr) {
        return false;
    }
    char block[65536];
    std::size_t count = 0;
    while ((count = std::fread(block, 1, sizeof block, file.get())) != 0) {
        if (bytes.size() + count > longestFile) {
            return false;
        }
        bytes.append(block, count);
    }
    return std::ferror(file.get()) == 0;
}

// Text mode: a file's own last line end does not make one more, empty line.
std::string_view withoutFinalLineEnd(std::string_view bytes) {
    if (!bytes.empty() && bytes.back() == '\n') {
        bytes.remove_suffix(1);
    }
    return bytes;
}

// Line by line, so that half a letter at the end of a line does not take the line end with it.
std::u16string decodedLines(std::string_view bytes, localString::possibleCodePage codePage) {
    std::u16string text;
    text.reserve(bytes.size());
    std::size_t end = 0;
    while ((end = bytes.find('\n')) != std::string_view::npos) {
        text += localString::fromBytes(bytes.substr(0, end), codePage);
        text += u'\n';
        bytes.remove_prefix(end + 1);
    }
    return text += localString::fromBytes(bytes, codePage);
}

enum class Settled { laterBySystem, onDisk };

bool writeBytes(std::u16string_view name, const char* mode, std::string_view bytes,
                Settled settled = Settled::laterBySystem) {
    FileHandle file = opened(name, mode);
    if (file == nullptr) {
        return false;
    }
    bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    if (written && settled == Settled::onDisk) {
        written = std::fflush(file.get()) == 0 && localPlatform::flushToDisk(fileno(file.get()));
    }
    return std::fclose(file.release()) == 0 && written;
}

// Writes beside the file first, so that a full disk or the end of the process in the middle leaves
// the old file whole.
bool replaceBytes(std::u16string_view name, const char* mode, std::string_view bytes) {
    const std::u16string target = localPlatform::plainFile(name);
    if (target.empty()) {
        return writeBytes(name, mode, bytes);
    }
    // Who may not write the file may not replace it, either.
    if (localPlatform::pathExists(target) && opened(target, "ab") == nullptr) {
        return false;
    }
    const std::u16string beside = target + u".new";
    if (writeBytes(beside, mode, bytes, Settled::onDisk) &&
        localPlatform::replaceFile(target, beside)) {
        return true;
    }
    localPlatform::removeFile(beside);
    return false;
}

}  // namespace

bool fileRead(std::u16string_view fileName, std::u16string& text,
              localString::possibleCodePage codePage) {
    std::string bytes;
    if (!readBytes(fileName, codePage == localString::codePageBase64 ? "rb" : "r", bytes)) {
        return false;
    }
    if (codePage == localString::codePageBase64) {
        text += localString::toBase64(bytes);
        return true;
    }
    if (bytes.empty()) {
        return true;
    }
    std::string_view rest = withoutFinalLineEnd(bytes);
    if (text.empty()) {
        while (!rest.empty() && rest.front() == '\n') {
            rest.remove_prefix(1);
        }
    } else {
        text += u'\n';
    }
    text += decodedLines(rest, codePage);
    return true;
}

bool loadFileToText(int& status, std::u16string_view fileName, std::u16string& text,
                    std::u16string_view codePageName) {
    text.clear();
    std::string bytes;
    if (!readBytes(fileName, "r", bytes)) {
        status = localErrorTypeFILENOTFOUND;
        return false;
    }
    text = decodedLines(withoutFinalLineEnd(bytes), localString::codePageFromName(codePageName));
    return true;
}

bool fileWrite(FileWriteMode mode, localString::possibleCodePage codePage, std::u16string_view text,
               std::u16string_view fileName) {
    if (fileName.empty()) {
        return false;
    }
    // Made first: memory that runs out must not leave an emptied file behind.
    const std::string bytes = localString::toBytes(text, codePage);
    const std::string how = (mode == FileWriteMode::append ? "a" : "w") +
                            std::string(codePage == localString::codePageBase64 ? "b" : "");
    const bool written = mode == FileWriteMode::replace ? replaceBytes(fileName, how.c_str(), bytes)
                                                        : writeBytes(fileName, how.c_str(), bytes);
    if (!written) {
        const localReport failure{.kind = localReport::Kind::critical,
                                  .title = u"save",
                                  .text = u"Ошибка записи файла [" + std::u16string(fileName) +
                                          u"]\n" + localString::fromUtf8(traceTail("fileWrite"))};
        localHost& host = localHost::current();
        host.setCursor(localHost::Cursor::arrow);
        host.report(failure);
        host.setCursor(localHost::Cursor::restored);
    }
    return written;
}

std::u16string logFileName() {
    return localStd::pathJoin(localStd::startDirectory(), u"current.log");
}

void appendToLog(std::u16string_view fileName, std::string_view bytes, std::string_view function) {
    const FileHandle file = opened(fileName, "ab");
    if (file == nullptr) {
        traceLine({u"Logfile [", fileName, u"] open ERROR!"}, function);
        return;
    }
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
}

void logWrite(std::u16string_view text) {
    appendToLog(logFileName(), localString::toUtf8(text) + '\n', "logWrite");
}
