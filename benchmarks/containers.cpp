// Lists and tables: the cost of one operation must not grow with what is held already.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

constexpr std::int64_t few = 10;
constexpr std::int64_t many = 1000000;

std::u16string textOf(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

void fill(localValueList& list, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        list.valueAppend(static_cast<double>(i), textOf(i));
    }
}

void fill(localValueTable& table, std::int64_t rows) {
    table.columnAdd(u"number");
    table.columnAdd(u"text");
    for (std::int64_t i = 0; i < rows; ++i) {
        table.rowAdd();
        table.cell(static_cast<std::size_t>(i), 0).setVal(static_cast<double>(rows - i));
        table.cell(static_cast<std::size_t>(i), 1).setVal(textOf(rows - i));
    }
}

// The sum over a whole list, shown for one item.
void listAppend(benchmark::State& state) {
    for (auto _ : state) {
        localValueList list;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            list.valueAppend(1.0);
        }
        benchmark::DoNotOptimize(list.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(listAppend)->Arg(few)->Arg(many)->ArgName("size");

void listGet(benchmark::State& state) {
    localMemoryManager::start();
    localValueList list;
    fill(list, state.range(0));
    const localSlot result = localSlot::reserve();
    std::size_t position = 0;
    for (auto _ : state) {
        position = position % list.size() + 1;
        result->assign(list.valueAt(position));
        benchmark::DoNotOptimize(result->num);
    }
}
BENCHMARK(listGet)->Arg(few)->Arg(many)->ArgName("size");

void listGetByPresentation(benchmark::State& state) {
    localValueList list;
    fill(list, state.range(0));
    std::vector<std::u16string> texts;
    for (std::int64_t i = 0; i < 1000; ++i) {
        texts.push_back(textOf(i * 7919 % state.range(0)));
    }
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list.valueByPresentation(texts[next]));
        next = (next + 1) % texts.size();
    }
}
BENCHMARK(listGetByPresentation)->Arg(few)->Arg(1000)->Arg(many)->ArgName("size");

void tableRowAdd(benchmark::State& state) {
    for (auto _ : state) {
        localValueTable table;
        table.columnAdd(u"number");
        table.columnAdd(u"text");
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            table.rowAdd();
        }
        benchmark::DoNotOptimize(table.rowsCount());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(tableRowAdd)->Arg(few)->Arg(many)->ArgName("rows");

void tableSetByNumber(benchmark::State& state) {
    localValueTable table;
    fill(table, state.range(0));
    localValueDescription value;
    value.setVal(5.0);
    int status = localErrorTypeOK;
    std::size_t row = 0;
    for (auto _ : state) {
        row = row % table.rowsCount() + 1;
        benchmark::DoNotOptimize(table.cellSet(status, row, 1, value));
    }
}
BENCHMARK(tableSetByNumber)->Arg(few)->Arg(many)->ArgName("rows");

void tableSetByName(benchmark::State& state) {
    localValueTable table;
    fill(table, state.range(0));
    localValueDescription value;
    value.setVal(5.0);
    int status = localErrorTypeOK;
    std::size_t row = 0;
    for (auto _ : state) {
        row = row % table.rowsCount() + 1;
        benchmark::DoNotOptimize(table.cellSet(status, row, table.columnNumber(u"text"), value));
    }
}
BENCHMARK(tableSetByName)->Arg(few)->Arg(many)->ArgName("rows");

void tableColumnNumber(benchmark::State& state) {
    localValueTable table;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        table.columnAdd(u"column" + textOf(i));
    }
    const std::u16string last = u"column" + textOf(state.range(0) - 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.columnNumber(last));
    }
}
BENCHMARK(tableColumnNumber)->Arg(2)->Arg(8)->Arg(1000)->ArgName("columns");

// Turns a table of range(0) rows round and round.
void tableSort(benchmark::State& state, const char16_t* column) {
    localValueTable table;
    fill(table, state.range(0));
    bool descending = false;
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.sort((descending ? u"-" : u"+") + std::u16string(column)));
        descending = !descending;
    }
}
BENCHMARK_CAPTURE(tableSort, numbers, u"number")
    ->Arg(1000)
    ->Arg(100000)
    ->ArgName("rows")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tableSort, texts, u"text")
    ->Arg(1000)
    ->Arg(100000)
    ->ArgName("rows")
    ->Unit(benchmark::kMillisecond);

}  // namespace
