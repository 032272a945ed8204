// A data file in the hands of a program: the class DATABASE.
//
// The object has a connection of its own, which objects made in the same second share. A connection
// is used only on the thread that made it, while an object of the language goes where its values
// go; so the object has a connection for each thread that uses it, all on the file that CONNECT
// chose. What one of them has begun, a transaction or a record under way, the others do not see.
//
// Tables and records of the object know whether it still stands.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "localDb/connection/localDbConnection.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"

class localValueTable;

class localDataBase final {
public:
    // Live objects.
    static std::int64_t counterStaticTotal;
    static localClassDeclaration* classDeclaration();

    localDataBase();
    ~localDataBase();
    localDataBase(const localDataBase&) = delete;
    localDataBase& operator=(const localDataBase&) = delete;

    // How many values hold this object.
    std::uint32_t linkCounter = 0;

    // The name of the connection made with the object.
    const std::u16string& name() const { return connections_.front().hold->name(); }
    // Expires with the object.
    std::weak_ptr<localDataBase> reference() { return self_; }

    // Opens the data file and binds each of its tables to a variable of the context. Gives whether
    // it could be opened. Status 23, and false, when there is no such file.
    bool connect(int& status);
    // The connection of the calling thread, made where there is none; on the chosen file when that
    // can be opened.
    const localDbConnection& here();
    // Opens the connection of the calling thread. False when no file was chosen.
    bool open() { return here().open(); }
    bool hasTable(std::u16string_view table);
    // Empties a value table and fills it with the fields of a table, a row each. False where there
    // is none.
    bool fieldsToValueTable(std::u16string_view table, localValueTable& fields);

    // A variable for each table found by the last CONNECT.
    localContextUTF8 context;

    // "База данных [connection] adr [address] ".
    std::u16string toStringBase() const;

private:
    struct Connection {
        std::unique_ptr<localDbConnection> hold;
        std::u16string file;  // that it was opened on for this object, empty when it was not
    };

    Connection& ofThisThread();

    std::shared_ptr<localDataBase> self_;  // owns nothing
    std::u16string file_;                  // that CONNECT chose
    std::vector<Connection> connections_;
};
