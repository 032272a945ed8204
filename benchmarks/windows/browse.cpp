// A browse of a table: a key within the buffer, one that refills it, a word found, each with its
// paint. The larger table has KORVO_BROWSE_ROWS rows, a million where that is not set; its data
// file is made when it is first needed and stays in the working directory (ten million: 700 MB).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QSqlError>
#include <QSqlQuery>

#include <cstdio>
#include <memory>

#include "localDb/localDb.h"
#include "localDbVcl/browse/localDbtBrowseWidget200123.h"

namespace {

using Source = localDbDataSource200123;

constexpr int rowsShown = 60;

std::int64_t largeTable() {
    bool isNumber = false;
    const qint64 wanted = qEnvironmentVariable("KORVO_BROWSE_ROWS").toLongLong(&isNumber);
    return isNumber ? wanted : 1000000;
}

void sql(const localDbConnection& connection, const QString& statement) {
    QSqlQuery query(connection.database());
    if (!query.exec(statement)) {
        std::fprintf(stderr, "%s\n", qPrintable(query.lastError().text()));
        std::exit(1);
    }
}

// A browse of so many goods by code, with the cursor in the middle of the table.
class shownBrowse {
public:
    explicit shownBrowse(std::int64_t rows)
        : connection_(u"browse" + QString::number(rows).toStdU16String()) {
        const QString file = QStringLiteral("browse%1.sqlite").arg(rows);
        const bool isThere = QFile::exists(file);
        QFile(file).open(QIODevice::Append);
        localDbConnection::open(connection_.name(), file.toStdU16String());
        if (!isThere) {
            fill(rows);
        }
        std::vector<Source::SqlExpression> expressions;
        Browse::Columns columns;
        for (const char16_t* const name : {u"tov.id", u"tov.code", u"tov.descr", u"tov.price"}) {
            expressions.push_back({.sqlExpression = name});
            auto column = std::make_unique<localDbtBrowseColumn>();
            column->caption = QString::fromUtf16(name);
            column->dataBuferColumn = static_cast<int>(columns.size());
            column->width = 150;
            column->idxName = columns.size() == 1 ? u"Ref03_CODE" : u"";
            columns.push_back(std::move(column));
        }
        grid_ = std::make_unique<Browse>(
            Source::make(connection_.name(), {{.aliasName = u"tov", .dbtName = u"Ref03"}},
                         std::move(expressions), {}, u"Ref03_CODE", {}),
            std::move(columns), localDbtBrowsePurpose::look);
        grid_->resize(700, (rowsShown + 1) * 21);
        press(Qt::Key_Right);
        find(rows / 2);
    }

    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(grid_.get(), &event);
    }
    void find(std::int64_t number) {
        grid_->find(QStringLiteral("A%1").arg(number, 10, 10, QLatin1Char('0')));
    }
    void paint() {
        QImage screen(grid_->size(), QImage::Format_RGB32);
        grid_->render(&screen);
    }
    // The next Up refills the buffer.
    void goToBuffersStart() {
        press(Qt::Key_PageUp);
        while (grid_->mRec1() > 0) {
            press(Qt::Key_Up);
        }
    }
    unsigned fills() const { return grid_->dataSource().fillCount(); }

private:
    using Browse = localDbtBrowseWidget200123;

    void fill(std::int64_t rows) {
        std::fprintf(stderr, "making a table of %lld rows ...\n", static_cast<long long>(rows));
        sql(connection_, "create table Ref03 (id INTEGER PRIMARY KEY, code CHAR(12), descr"
                         " CHAR(50), price NUME)");
        sql(connection_, QStringLiteral("insert into Ref03 with recursive n(i) as (select 1 union"
                                        " all select i+1 from n limit %1) select i,"
                                        " printf('A%010d',i), 'goods ' || i, i*0.25 from n")
                             .arg(rows));
        sql(connection_, "create index Ref03_CODE on Ref03(code)");
    }

    localDbConnection connection_;
    std::unique_ptr<Browse> grid_;
};

void browseKey(benchmark::State& state) {
    shownBrowse browse(state.range(0));
    const unsigned fills = browse.fills();
    bool down = false;
    for (auto _ : state) {
        down = !down;
        browse.press(down ? Qt::Key_Down : Qt::Key_Up);
    }
    if (browse.fills() != fills) {
        state.SkipWithError("the key left the buffer");
    }
}

void browseRefill(benchmark::State& state) {
    shownBrowse browse(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        browse.goToBuffersStart();
        const unsigned fills = browse.fills();
        state.ResumeTiming();
        browse.press(Qt::Key_Up);
        browse.paint();
        if (browse.fills() == fills) {
            state.SkipWithError("the key did not leave the buffer");
        }
        if (browse.fills() % 50 == 0) {
            browse.find(state.range(0) / 2);
        }
    }
}

void browseFind(benchmark::State& state) {
    shownBrowse browse(state.range(0));
    std::int64_t number = 1;
    for (auto _ : state) {
        number = (number * 7919 + 1) % state.range(0);
        browse.find(number);
        browse.paint();
    }
}

BENCHMARK(browseKey)->Arg(1000)->Arg(largeTable())->Unit(benchmark::kMicrosecond);
BENCHMARK(browseRefill)->Arg(1000)->Arg(largeTable())->Unit(benchmark::kMillisecond);
BENCHMARK(browseFind)->Arg(1000)->Arg(largeTable())->Unit(benchmark::kMillisecond);

}  // namespace
