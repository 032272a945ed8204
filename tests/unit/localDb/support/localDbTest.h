// A data file in the test's folder, a connection on it, and all that went over it.
#pragma once

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "support/recordingHost.h"

inline std::string narrow(std::u16string_view text) {
    return QStringView(text).toString().toStdString();
}
inline std::u16string wide(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size())).toStdU16String();
}

// Runs statements by the program sqlite3, as somebody else who uses the file.
inline void sqliteProgram(const std::string& file, const std::string& sql) {
    {
        std::ofstream script("script.sql");
        script << ".bail on\n" << sql << '\n';
    }
    const std::string command = "sqlite3 '" + file + "' < script.sql > sqlite.out 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0)
        << (std::stringstream() << std::ifstream("sqlite.out").rdbuf()).str();
}

class localDbTest : public testing::Test {
public:
    static constexpr const char* fileName = "data.sqlite";
    static constexpr std::u16string_view name = u"test";

    recordingHost host;
    std::unique_ptr<localDbConnection> connection = std::make_unique<localDbConnection>(name);

    // Makes the file anew and opens it.
    void make(const std::string& sql) {
        // An open one would stay open on the file that goes.
        connection->database().close();
        std::remove(fileName);
        sqliteProgram(fileName, sql);
        ASSERT_TRUE(localDbConnection::open(name, wide(fileName)));
    }

    // By the toolkit, with no report.
    std::vector<std::vector<std::string>> rows(const std::string& sql) const {
        std::vector<std::vector<std::string>> all;
        QSqlQuery query(connection->database());
        EXPECT_TRUE(query.exec(QString::fromStdString(sql)))
            << sql << query.lastError().text().toStdString();
        while (query.next()) {
            std::vector<std::string>& row = all.emplace_back();
            for (int i = 0; i < query.record().count(); ++i) {
                row.push_back(query.value(i).toString().toStdString());
            }
        }
        return all;
    }
    std::string value(const std::string& sql) const {
        const auto all = rows(sql);
        return all.empty() ? "no row" : all[0][0];
    }

    // All statements from here on, as the driver got them.
    void trace() {
        statements.clear();
        sqlite3_trace_v2(handle(), SQLITE_TRACE_STMT, traced, this);
    }
    std::vector<std::string> statements;

    std::vector<std::string> plan(const std::string& sql) const {
        std::vector<std::string> lines;
        for (const auto& row : rows("explain query plan " + sql)) {
            lines.push_back(row[3]);
        }
        return lines;
    }

    // The texts of the boxes without the line of the source, which may change.
    std::vector<std::string> boxes() const {
        constexpr const char* kinds[] = {"about", "information", "warning", "critical", "question"};
        std::vector<std::string> all;
        for (const localReport& report : host.reports) {
            std::string text = narrow(report.text);
            for (const std::string line : {"\n line: ", "<BR/> line: "}) {
                if (const auto at = text.find(line); at != std::string::npos) {
                    const auto digits = at + line.size();
                    text.erase(digits, text.find_first_not_of("0123456789", digits) - digits);
                }
            }
            const bool html = report.form == localReport::Form::html;
            all.push_back(std::string(kinds[static_cast<int>(report.kind)]) + " [" +
                          narrow(report.title) + "] " + (html ? "html " : "") + text);
        }
        return all;
    }

    static std::string plainHead(const std::string& function) {
        return "func: " + function + "\n file: ../lib/localDb\n line: \n\n";
    }
    static std::string htmlHead(const std::string& function) {
        return "func: " + function + "<BR/> file: ../lib/localDb<BR/> line: <BR/><BR/>";
    }
    // The first box of a failed statement.
    static std::string queryBox(const std::string& sql, const std::string& complaint,
                                const std::string& driver = "Unable to execute statement") {
        return "critical [dbQueryExec] " + plainHead("dbQueryExec") +
               "Unable to execute query \nSQL : " + sql +
               "\n\nDb databaseText   : \nDb driverText     : \nQuery databaseText: " + complaint +
               "\nQuery  driverText : " + driver + "\n";
    }
    // The second.
    static std::string failedBox(const std::string& function, const std::string& sql) {
        return "warning [" + function + "] " + plainHead(function) +
               "Ошибка при выполнении запроса: \n\n" + sql;
    }

    sqlite3* handle() const {
        return *static_cast<sqlite3* const*>(connection->database().driver()->handle().constData());
    }

private:
    static int traced(unsigned, void* self, void*, void* sql) {
        static_cast<localDbTest*>(self)->statements.emplace_back(static_cast<const char*>(sql));
        return 0;
    }
};
