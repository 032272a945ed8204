#include "localDb/script/localDataBaseTable.h"

#include "localDb/script/localDataBase.h"
#include "text/localDbText.h"

std::int64_t localDataBaseTable::counterStaticTotal = 0;

localDataBase* localDataBaseTable::database(int& status) const {
    localDataBase* const standing = database_.lock().get();
    if (standing == nullptr) {
        status = localErrorTypeDATABASECONNECTION;
    }
    return standing;
}

std::u16string localDataBaseTable::toStringTable() const {
    return localDbWords(u"Таблица базы данных [", name_, u"] adr [", addressText(this), u"] ");
}
