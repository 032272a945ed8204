#include "localInterpretatorUTF8/classes/localDateTime.h"

#include <cstdio>
#include <ctime>

#include "localInterpretatorUTF8/value/localMethodTable.h"

namespace {

bool toStringMethod(localCall& call) {
    const std::string text = static_cast<localDateTime*>(call.object)->toStringAscii();
    return call.give(std::u16string(text.begin(), text.end()));
}

constexpr localMethodRow methods[] = {{u"TOSTRING", u"СТРОКА", "", toStringMethod}};

constexpr localClassTable table = {
    .nameEng = u"DATE",
    .nameRus = u"ДАТА",
    .description = u"класс ДАТА",
    .nativeName = u"localDateTime",
    .native = localNativeOf<localDateTime>(),
    .methods = methods,
    .attributes = {},
    // The Russian name stands in the table but no member leads to it. Meant.
    .memberNames = localMemberNames::englishOnly,
};

}  // namespace

localDateTime::localDateTime() : now(std::time(nullptr)) {}

std::string localDateTime::toStringAscii() const {
    const std::time_t seconds = now;
    std::tm local{};
#if defined(_WIN32)
    localtime_s(&local, &seconds);
#else
    localtime_r(&seconds, &local);
#endif
    char text[64];
    std::snprintf(text, sizeof text, "%04d%02d%02d:%02d:%02d:%02d", local.tm_year + 1900,
                  local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
    return text;
}

localClassDeclaration* localDateTime::classDeclaration() {
    static localClassDeclaration* const declaration = [] {
        localClassDeclaration* const made = localTableClass<table>();
        made->nameShort = u"Дата";
        return made;
    }();
    return declaration;
}
