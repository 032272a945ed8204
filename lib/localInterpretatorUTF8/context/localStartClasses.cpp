#include "context/localStartClasses.h"

#include <algorithm>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localStartClasses {
namespace {

constexpr const char* function = "init";

localClassDeclarations containers() {
    static localClassDeclaration* const declarations[] = {localValueList::classDeclaration(),
                                                          localValueTable::classDeclaration()};
    return declarations;
}

std::vector<localClassDeclarations (*)()>& present() {
    static std::vector<localClassDeclarations (*)()> sources{containers};
    return sources;
}

std::vector<Late>& lateClasses() {
    static std::vector<Late> classes;
    return classes;
}

const Late* lateFind(std::u16string_view upper) {
    for (const Late& late : lateClasses()) {
        if (late.nameEng == upper || late.nameRus == upper) {
            return &late;
        }
    }
    return nullptr;
}

}  // namespace

void add(localClassDeclarations (*declare)()) {
    std::vector<localClassDeclarations (*)()>& sources = present();
    if (std::find(sources.begin(), sources.end(), declare) == sources.end()) {
        sources.push_back(declare);
    }
    if (localContextUTF8::globalContext != nullptr) {
        registerAll(*localContextUTF8::globalContext, declare(), function);
    }
}

void registerIn(localContextUTF8& context) {
    for (const auto declare : present()) {
        registerAll(context, declare(), function);
    }
}

void addLate(const Late& late) {
    lateClasses().push_back(late);
}

bool isLate(std::u16string_view upper) {
    return lateFind(upper) != nullptr;
}

bool bring(std::u16string_view upper) {
    const Late* const late = lateFind(upper);
    return late != nullptr && late->bring(late->nameEng);
}

void bringAll() {
    for (const Late& late : lateClasses()) {
        late.bring(late.nameEng);
    }
}

bool registerAll(localContextUTF8& context, localClassDeclarations declarations,
                 const char* calledBy) {
    bool registered = true;
    for (localClassDeclaration* const declaration : declarations) {
        if (!context.classRegister(declaration)) {
            traceLine(u"Class [" + declaration->nameEng + u"] registration fail! ", calledBy);
            registered = false;
        }
    }
    return registered;
}

}  // namespace localStartClasses
