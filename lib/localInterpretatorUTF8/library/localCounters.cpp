#include "localInterpretatorUTF8/value/localCounters.h"

#include <array>

#include "library/localFillable.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"

namespace {

std::array<localCounter, 8>& table() {
    static std::array<localCounter, 8> counters{{
        {"localContextUTF8::counterStaticTotal", &localContextUTF8::counterStaticTotal},
        {"localClassDeclaration::counterStaticTotal", &localClassDeclaration::counterStaticTotal},
        {"localValueDescription::counterStaticTotal", &localValueDescription::counterStaticTotal},
        {"localValueList::counterStaticTotal", &localValueList::counterStaticTotal},
        {"localValueTable::counterStaticTotal", &localValueTable::counterStaticTotal},
        {"localDataBase::counterStaticTotal", nullptr},
        {"localDataBaseTable::counterStaticTotal", nullptr},
        {"localDataBaseRecord::counterStaticTotal", nullptr},
    }};
    return counters;
}

}  // namespace

std::span<const localCounter> localCounters() {
    return table();
}

bool localLibrary::counterFill(const localCounter& brought) {
    for (localCounter& counter : table()) {
        if (counter.name == brought.name) {
            counter.total = brought.total;
            return true;
        }
    }
    return false;
}
