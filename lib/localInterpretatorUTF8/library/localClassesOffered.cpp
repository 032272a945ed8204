// The classes that CLASSLOAD can bring.
#include <array>
#include <string>

#include "context/localStartClasses.h"
#include "library/localFillable.h"
#include "library/localModules.h"
#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"

namespace localLibrary {
namespace {

struct OfferedClass : ClassNames {
    localClassDeclarations (*declare)();  // null: the class of a higher library that is not there
};

template <class Native>
localClassDeclarations classOf() {
    static localClassDeclaration* const declarations[] = {Native::classDeclaration()};
    return declarations;
}

std::array<OfferedClass, 6>& offeredClasses() {
    static std::array<OfferedClass, 6> classes{{
        {{u"TEST", u"ТЕСТ"}, classOf<localClassForTest>},
        {{u"VALUELIST", u"СПИСОКЗНАЧЕНИЙ"}, classOf<localValueList>},
        {{u"VALUETABLE", u"ТАБЛИЦАЗНАЧЕНИЙ"}, classOf<localValueTable>},
        {{u"DATABASE", u"БАЗАДАННЫХ"}, nullptr},
        {{u"TABLEDOCUMENT", u"ТАБЛИЧНЫЙДОКУМЕНТ"}, nullptr},
        {{u"V77", u"V77"}, nullptr},
    }};
    return classes;
}

OfferedClass* offeredFind(std::u16string_view upper) {
    for (OfferedClass& offered : offeredClasses()) {
        if (offered.nameEng == upper || offered.nameRus == upper) {
            return &offered;
        }
    }
    return nullptr;
}

localClassDeclaration* declaredBy(const OfferedClass& offered, std::u16string_view nameEng) {
    if (offered.declare != nullptr) {
        for (localClassDeclaration* declaration : offered.declare()) {
            if (declaration->nameEng == nameEng) {
                return declaration;
            }
        }
    }
    return nullptr;
}

}  // namespace

const ClassNames* classNames(std::u16string_view upper) {
    return offeredFind(upper);
}

bool classFill(std::u16string_view nameEng, localClassDeclarations (*declare)()) {
    OfferedClass* const offered = offeredFind(nameEng);
    if (offered == nullptr || offered->nameEng != nameEng) {
        return false;
    }
    offered->declare = declare;
    return true;
}

localClassDeclaration* classDeclared(std::u16string_view nameEng) {
    if (const OfferedClass* const offered = offeredFind(nameEng)) {
        return declaredBy(*offered, nameEng);
    }
    for (const OfferedClass& offered : offeredClasses()) {
        if (localClassDeclaration* const declaration = declaredBy(offered, nameEng)) {
            return declaration;
        }
    }
    return nullptr;
}

bool classLoad(int& status, localContextUTF8& context, std::u16string_view name) {
    const std::u16string_view trimmed = trimBoth(name);
    if (context.classExists(trimmed)) {
        return true;
    }
    const OfferedClass* offered = trimmed.empty() ? nullptr : offeredFind(toUpper(trimmed));
    if (offered == nullptr) {
        status = localErrorTypeCLASSUNKNOWN;
        return false;
    }
    if (offered->declare == nullptr) {
        localModules::bringClass(offered->nameEng);
    }
    if (offered->declare == nullptr) {
        status = localErrorTypeGRAPHICONLY;
        return false;
    }
    return localStartClasses::registerAll(context, offered->declare(), "classLoad");
}

}  // namespace localLibrary
