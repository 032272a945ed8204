// What the database library costs in tables of a thousand, a hundred thousand and ten million rows,
// beside SQLite's own C interface reading the same as wide text, and beside LIMIT ... OFFSET.
//
//     benchmarksData [rows ...]
//
// Data files are made when they are first needed and stay in the working directory: the largest
// takes a few minutes and a gigabyte.

#include <sqlite3.h>

#include <QCoreApplication>
#include <QSqlDriver>
#include <QVariant>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "localDb/index/localDbDataSource200123.h"
#include "localDb/localDb.h"
#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"

namespace {

using Source = localDbDataSource200123;
constexpr std::u16string_view connectionName = u"bench";

// The file is as a browse of goods needs it: 11 columns, a code for each row, ten rows to a name.
void makeFile(const std::string& name, long long rows) {
    if (std::filesystem::exists(name)) {
        return;
    }
    std::fprintf(stderr, "making %s ...\n", name.c_str());
    const std::string unfinished = name + ".part";
    std::filesystem::remove(unfinished);
    const std::string count = std::to_string(rows);
    const std::string sql =
        "pragma journal_mode=off; pragma synchronous=off; pragma cache_size=-400000; begin;"
        "create table Ref03(id INTEGER PRIMARY KEY AUTOINCREMENT, parentid INT, isfolder INT,"
        " code CHAR(12), descr CHAR(50), ismark INT, art CHAR(20), unit CHAR(8), price NUME,"
        " rest NUME, note CHAR(80));"
        "insert into Ref03 with recursive n(i) as (select 1 union all select i+1 from n limit " +
        count +
        ") select i, i%100, 0, printf('A%010d',i), printf('goods of the name %08d',i/10), 0,"
        " printf('art-%07d',i*7%10000000), 'piece', i*0.25, i%1000, 'a note' from n;"
        "create index Ref03_CODE on Ref03(code); create index Ref03_DESCR on Ref03(descr,id);"
        "commit;";
    sqlite3* file = nullptr;
    sqlite3_open(unfinished.c_str(), &file);
    char* complaint = nullptr;
    if (sqlite3_exec(file, sql.c_str(), nullptr, nullptr, &complaint) != SQLITE_OK) {
        std::fprintf(stderr, "%s\n", complaint);
        std::exit(1);
    }
    sqlite3_close(file);
    std::filesystem::rename(unfinished, name);
}

// Of the processor, in milliseconds: a machine that others use, too, gives no other steady number.
double now() {
    return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// The median of some runs. The first run only warms the cache.
double measured(const std::function<void()>& work, int runs = 15) {
    work();
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const double start = now();
        work();
        times.push_back(now() - start);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[static_cast<std::size_t>(runs / 2)];
}

void report(const char* what, long long rows, double ours, double c, double offset = -1) {
    std::printf("%-28s %10lld %11.3f %11.3f %7.2f", what, rows, ours, c, ours / c);
    if (offset >= 0) {
        std::printf(" %13.3f", offset);
    }
    std::printf("\n");
    std::fflush(stdout);
}

// Reads all values of statements as wide text through the C interface.
class plainReader {
public:
    explicit plainReader(const std::string& file) { sqlite3_open(file.c_str(), &file_); }
    ~plainReader() { sqlite3_close(file_); }
    plainReader(const plainReader&) = delete;
    plainReader& operator=(const plainReader&) = delete;

    void read(const std::vector<std::string>& statements) const {
        std::vector<std::vector<std::u16string>> rows;
        for (const std::string& sql : statements) {
            sqlite3_stmt* statement = nullptr;
            if (sqlite3_prepare_v2(file_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
                std::fprintf(stderr, "%s: %s\n", sql.c_str(), sqlite3_errmsg(file_));
                std::exit(1);
            }
            while (sqlite3_step(statement) == SQLITE_ROW) {
                auto& row = rows.emplace_back();
                for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                    const auto* const text =
                        static_cast<const char16_t*>(sqlite3_column_text16(statement, i));
                    row.emplace_back(
                        text, static_cast<std::size_t>(sqlite3_column_bytes16(statement, i) / 2));
                }
            }
            sqlite3_finalize(statement);
        }
    }

private:
    sqlite3* file_ = nullptr;
};

// The statements that a piece of work sends.
std::vector<std::string> sentBy(sqlite3* handle, const std::function<void()>& work) {
    std::vector<std::string> statements;
    sqlite3_trace_v2(
        handle, SQLITE_TRACE_STMT,
        [](unsigned, void* all, void*, void* sql) -> int {
            static_cast<std::vector<std::string>*>(all)->emplace_back(static_cast<char*>(sql));
            return 0;
        },
        &statements);
    work();
    sqlite3_trace_v2(handle, 0, nullptr, nullptr);
    return statements;
}

std::unique_ptr<Source> browse() {
    std::vector<Source::SqlExpression> expressions;
    for (const char16_t* const column :
         {u"tov.id", u"tov.parentid", u"tov.isfolder", u"tov.descr", u"tov.ismark", u"tov.art",
          u"tov.unit", u"tov.price", u"tov.rest", u"tov.note"}) {
        expressions.push_back({.sqlExpression = column});
    }
    return Source::make(connectionName, {{.aliasName = u"tov", .dbtName = u"Ref03"}}, expressions,
                        {}, u"Ref03_CODE", {});
}

std::u16string code(long long number) {
    char text[16];
    std::snprintf(text, sizeof text, "A%010lld", number);
    return std::u16string(text, text + 11);
}

void measureWalk(long long rows, const plainReader& plain, sqlite3* handle) {
    const auto goods = browse();
    const struct {
        const char* name;
        long long from;
    } places[] = {{"refill at the start", 1},
                  {"refill in the middle", rows / 2},
                  {"refill at the end", rows - 300}};
    const auto select = sentBy(handle, [&] { goods->fillFromKeyVal({}); }).front();
    const std::string head = select.substr(0, select.find(" limit"));
    for (const auto& [what, from] : places) {
        const localDbKey key{code(from)};
        const auto refill = [&] { goods->fillFromKeyVal(key); };
        const auto sent = sentBy(handle, refill);
        const std::vector<std::string> byOffset{head + " limit 256 offset " +
                                                std::to_string(from - 1)};
        report(what, rows, measured(refill), measured([&] { plain.read(sent); }),
               measured([&] { plain.read(byOffset); }, rows > 1000000 ? 3 : 15));
    }
    const localDbKey middle{code(rows / 2)};
    const auto relative = [&] { goods->relativeKey(middle, -128, false); };
    const auto sent = sentBy(handle, relative);
    const std::vector<std::string> byOffset{"select code from Ref03 order by code limit 1 offset " +
                                            std::to_string(rows / 2 - 129)};
    report("relative read of -128", rows, measured(relative), measured([&] { plain.read(sent); }),
           measured([&] { plain.read(byOffset); }, rows > 1000000 ? 3 : 15));

    bool byCode = true;
    goods->fillFromKeyVal(middle);
    std::size_t row = 0;
    const auto change = [&] {
        byCode = !byCode;
        const auto result = goods->idxSet(byCode ? u"Ref03_CODE" : u"Ref03_DESCR", row);
        row = static_cast<std::size_t>(result.row);
    };
    const auto changeTwice = [&] {
        change();
        change();
    };
    const auto changes = sentBy(handle, changeTwice);
    report("idxSet there and back", rows, measured(changeTwice),
           measured([&] { plain.read(changes); }));
}

void measureStatements(long long rows, const plainReader& plain, sqlite3* handle) {
    localValueTable table;
    const std::u16string hundred = u"select * from Ref03 where id>500 order by id limit 100";
    report("query of 100 rows", rows,
           measured([&] { localDb::queryExecToValueTable(connectionName, table, hundred); }),
           measured([&] { plain.read({std::string(hundred.begin(), hundred.end())}); }));

    localValueDescription base;
    base.objectBind(new localDataBase, localDataBase::classDeclaration());
    auto& opened = *static_cast<localDataBase*>(base.pointer);
    localValueDescription record;
    int status = localErrorTypeOK;
    // What it says has no place in the table.
    std::ostringstream said;
    std::streambuf* const before = std::cout.rdbuf(said.rdbuf());
    opened.connect(status);
    std::cout.rdbuf(before);
    record.objectBind(new localDataBaseRecord(new localDataBaseTable(opened.reference(), u"Ref03")),
                      localDataBaseRecord::classDeclaration());
    auto& goods = *static_cast<localDataBaseRecord*>(record.pointer);
    report("NEXT over 100,000 records", rows,
           measured(
               [&] {
                   goods.select(status, u"id<=100000");
                   while (goods.next(status)) {}
               },
               3),
           measured([&] { plain.read({"select * from Ref03 where id<=100000 ;"}); }, 3));

    localDbFieldDescription name(u"descr", u"CHAR", 50, 0);
    name.value = "goods of a new name";
    localDbFieldDescription price(u"price", u"NUME", 12, 2);
    price.value = "12.50";
    const localDb::Fields fields{name, price};
    constexpr int appends = 10000;
    const auto begin = [&] { sqlite3_exec(handle, "begin", nullptr, nullptr, nullptr); };
    const auto rollback = [&] { sqlite3_exec(handle, "rollback", nullptr, nullptr, nullptr); };
    const std::string insert =
        "INSERT INTO Ref03 (descr,price) VALUES ('goods of a new name',12.50);";
    report("10,000 appends", rows,
           measured(
               [&] {
                   begin();
                   for (int i = 0; i < appends; ++i) {
                       localDb::dbtRecordAppend(connectionName, u"Ref03", fields);
                   }
                   rollback();
               },
               3),
           measured(
               [&] {
                   begin();
                   for (int i = 0; i < appends; ++i) {
                       sqlite3_exec(handle, insert.c_str(), nullptr, nullptr, nullptr);
                   }
                   rollback();
               },
               3));
}

void measureSize(long long rows) {
    const std::string file = "bench" + std::to_string(rows) + ".sqlite";
    makeFile(file, rows);
    const std::u16string wideFile(file.begin(), file.end());
    localDb::applicationSetDataFullFileName(wideFile);
    const localDbConnection connection(connectionName);
    const auto open = [&] {
        connection.database().close();
        localDbConnection::open(connectionName, wideFile);
        browse();
    };
    open();
    std::vector<std::string> first;
    {
        auto* const handle =
            *static_cast<sqlite3* const*>(connection.database().driver()->handle().constData());
        first = sentBy(handle, [] { browse(); });
    }
    report("open and show", rows, measured(open), measured([&] { plainReader(file).read(first); }));

    auto* const handle =
        *static_cast<sqlite3* const*>(connection.database().driver()->handle().constData());
    const plainReader plain(file);
    measureWalk(rows, plain, handle);
    measureStatements(rows, plain, handle);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    localMemoryManager::start();
    std::vector<long long> sizes;
    for (int i = 1; i < argc; ++i) {
        sizes.push_back(std::atoll(argv[i]));
    }
    if (sizes.empty()) {
        sizes = {1000, 100000, 10000000};
    }
    std::printf("%-28s %10s %11s %11s %7s %13s\n", "processor milliseconds", "rows", "Korvo", "C",
                "ratio", "LIMIT OFFSET");
    for (const long long rows : sizes) {
        measureSize(rows);
    }
    return 0;
}
