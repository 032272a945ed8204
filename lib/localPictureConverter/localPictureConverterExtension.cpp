#include "localPictureConverter/localPictureConverterExtension.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localPictureConverter/localPictureConverter.h"

namespace {

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
    return call.give(localPictureConverter::pngAsBase64(*bytes));
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
    const auto part = localPictureConverter::partAsBase64(call.text(0), area);
    return part ? call.give(*part) : call.fail(localErrorTypePARAMETERVALUE);
}

constexpr localExtensionFunction functions[] = {
    {u"PIXMAPASBASE64FROMFILEGET", pixmapAsBase64FromFileGet},
    {u"PIXMAPASBASE64PARTGET", pixmapAsBase64PartGet},
};

}  // namespace

constexpr localExtension localPictureConverterExtension = {.name = u"localPictureConverter",
                                                           .functions = functions};
