// The classes that CLASSLOAD can bring.
#include <string>
#include <vector>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localLibrary {
namespace {

struct OfferedClass {
    std::u16string nameEng;
    std::u16string nameRus;
    Declarations (*declare)();  // null: the class of a higher library that is not there
};

template <class Native>
Declarations classOf() {
    static localClassDeclaration* const declarations[] = {Native::classDeclaration()};
    return declarations;
}

std::vector<OfferedClass>& offeredClasses() {
    static std::vector<OfferedClass> classes{
        {u"TEST", u"ТЕСТ", classOf<localClassForTest>},
        {u"VALUELIST", u"СПИСОКЗНАЧЕНИЙ", classOf<localValueList>},
        {u"VALUETABLE", u"ТАБЛИЦАЗНАЧЕНИЙ", classOf<localValueTable>},
        {u"DATABASE", u"БАЗАДАННЫХ", nullptr},
        {u"TABLEDOCUMENT", u"ТАБЛИЧНЫЙДОКУМЕНТ", nullptr},
        {u"V77", u"V77", nullptr},
    };
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

}  // namespace

void offerClass(std::u16string_view nameEng, std::u16string_view nameRus,
                Declarations (*declare)()) {
    if (OfferedClass* offered = offeredFind(nameEng)) {
        offered->declare = declare;
    } else {
        offeredClasses().push_back({std::u16string(nameEng), std::u16string(nameRus), declare});
    }
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
        status = localErrorTypeGRAPHICONLY;
        return false;
    }
    bool registered = true;
    for (localClassDeclaration* declaration : offered->declare()) {
        if (!context.classRegister(declaration)) {
            traceLine(u"Class [" + declaration->nameEng + u"] registration fail! ", "classLoad");
            registered = false;
        }
    }
    return registered;
}

}  // namespace localLibrary
