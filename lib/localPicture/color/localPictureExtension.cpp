#include "localPicture/color/localPictureExtension.h"

#include "localPicture/color/localColorTable.h"

namespace {

bool color(localCall& call) {
    return call.give(static_cast<double>(localColorTable::rgbFind(call.text(0))));
}

constexpr localExtensionFunction functions[] = {{u"COLOR", color}};

}  // namespace

constexpr localExtension localPictureExtension = {.name = u"localPicture", .functions = functions};
