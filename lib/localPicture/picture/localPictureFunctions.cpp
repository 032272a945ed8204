#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localPicture/color/localColorTable.h"
#include "localPicture/picture/localPictureInstall.h"
#include "picture/localPictureModule.h"

namespace {

const localPictureConverter* givenConverter = nullptr;

// Null where the program came without one.
const localPictureConverter* converter() {
    if (givenConverter != nullptr) {
        return givenConverter;
    }
    static const localPictureConverter* const loaded =
        localPictureModuleLoad(localStd::binaryPath());
    return loaded;
}

std::optional<std::string> bytesOfFile(std::u16string_view name) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(localPlatform::openFile(name, "rb"),
                                                               &std::fclose);
    if (file == nullptr) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, 65536> buffer;
    for (std::size_t count = 0;
         (count = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0;) {
        bytes.append(buffer.data(), count);
    }
    return bytes;
}

// A number of pixels by truncation toward zero. What is no pixel count is as good as a negative
// one.
int pixels(double number) {
    constexpr double most = std::numeric_limits<int>::max();
    return std::isnan(number) ? -1 : static_cast<int>(std::clamp(number, -most, most));
}

bool pixmapAsBase64FromFileGet(localCall& call) {
    const auto bytes = bytesOfFile(call.text(0));
    if (!bytes) {
        return call.fail(localErrorTypeFILENOTFOUND);
    }
    if (converter() == nullptr) {
        return call.fail(localErrorTypeGRAPHICONLY);
    }
    return call.give(converter()->pngAsBase64(*bytes));
}

bool pixmapAsBase64PartGet(localCall& call) {
    std::array<int, 4> numbers{};
    for (std::size_t i = 1; i < call.args.size(); ++i) {
        numbers[i - 1] = pixels(call.number(i));
        if (numbers[i - 1] < 0) {
            return call.fail(localErrorTypePARAMETERVALUE);
        }
    }
    localPictureArea area{numbers[0], numbers[1], std::nullopt, std::nullopt};
    if (call.args.size() > 3) {
        area.width = numbers[2];
    }
    if (call.args.size() > 4) {
        area.height = numbers[3];
    }
    if (converter() == nullptr) {
        return call.fail(localErrorTypeGRAPHICONLY);
    }
    const auto part = converter()->partAsBase64(call.text(0), area);
    return part ? call.give(*part) : call.fail(localErrorTypePARAMETERVALUE);
}

bool color(localCall& call) {
    return call.give(static_cast<double>(localColorTable::rgbFind(call.text(0))));
}

}  // namespace

void localPictureInstall() {
    localLibrary::install(u"COLOR", color);
    localLibrary::install(u"PIXMAPASBASE64FROMFILEGET", pixmapAsBase64FromFileGet);
    localLibrary::install(u"PIXMAPASBASE64PARTGET", pixmapAsBase64PartGet);
}

void localPictureInstall(const localPictureConverter& given) {
    givenConverter = &given;
    localPictureInstall();
}
