// A sheet is painted for what is in view, and a large table is in its window within a second.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPixmap>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localSxl/sheet/localSxlTable.h"
#include "localSxlVcl/sheet/localSxl.h"

namespace {

localValueDescription newSheet() {
    localValueDescription value;
    value.objectBind(new localSxlSheet(nullptr), localSxlSheet::classDeclaration());
    localSxlSheet::of(value)->clear();
    return value;
}

// The first cells are in view, the others behind them.
void sheetPaint(benchmark::State& state) {
    const localValueDescription value = newSheet();
    for (std::uint32_t i = 0; i < state.range(0); ++i) {
        localSxlSheet::of(value)->cellTextSet({i / 5 + 1, i % 5 + 1}, u"Товар");
    }
    localSxl widget(value);
    widget.resize(500, 60);
    widget.show();
    for (auto _ : state) {
        benchmark::DoNotOptimize(widget.grab());
    }
}
BENCHMARK(sheetPaint)->Arg(10)->Arg(1000000)->ArgName("cells")->Unit(benchmark::kMicrosecond);

void tableShow(benchmark::State& state) {
    localValueTable table;
    for (const char16_t* const name : {u"Товар", u"Цена", u"Остаток", u"Склад", u"Код"}) {
        table.columnAdd(name);
    }
    for (std::size_t row = 0; row < static_cast<std::size_t>(state.range(0)); ++row) {
        table.rowAdd();
        table.cell(row, 0).setVal(localText(u"Товар"));
        table.cell(row, 1).setVal(static_cast<double>(row) * 1.5);
        table.cell(row, 2).setVal(static_cast<double>(row));
        table.cell(row, 3).setVal(localText(u"Центральный"));
    }
    for (auto _ : state) {
        const localValueDescription value = newSheet();
        localSxlFillFromTable(*localSxlSheet::of(value), table);
        localSxl widget(value);
        widget.resize(720, 480);
        widget.show();
        QApplication::processEvents();
    }
}
BENCHMARK(tableShow)->Arg(10)->Arg(100000)->ArgName("rows")->Unit(benchmark::kMillisecond);

}  // namespace
