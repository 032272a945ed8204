// A table of a data file: the class DATABASETABLE. Programs get it from a DATABASE object and do
// not make it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

class localClassDeclaration;
class localDataBase;

class localDataBaseTable final {
public:
    // Live objects.
    static std::int64_t counterStaticTotal;
    static localClassDeclaration* classDeclaration();

    localDataBaseTable(std::weak_ptr<localDataBase> database, std::u16string name)
        : name_(std::move(name)), database_(std::move(database)) {
        ++counterStaticTotal;
    }
    ~localDataBaseTable() { --counterStaticTotal; }
    localDataBaseTable(const localDataBaseTable&) = delete;
    localDataBaseTable& operator=(const localDataBaseTable&) = delete;

    // How many values hold this table.
    std::uint32_t linkCounter = 0;

    const std::u16string& name() const { return name_; }
    // Null, with status 22, when the object has gone.
    localDataBase* database(int& status) const;

    // "Таблица базы данных [name] adr [address] ".
    std::u16string toStringTable() const;

private:
    std::u16string name_;
    std::weak_ptr<localDataBase> database_;
};
