// Table documents: a cell costs the logarithm of the number of cells, in whatever order they come.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "localSxl/json/localSxlText.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

constexpr std::int64_t few = 10;
constexpr std::int64_t many = 1000000;

enum Order : std::int64_t { byRow, reverse, random };

// Twenty columns wide.
std::vector<localSxlPlace> places(std::int64_t count, std::int64_t order) {
    std::vector<localSxlPlace> all;
    for (std::uint32_t i = 0; i < count; ++i) {
        all.push_back({i / 20 + 1, i % 20 + 1});
    }
    if (order == reverse) {
        std::reverse(all.begin(), all.end());
    } else if (order == random) {
        std::shuffle(all.begin(), all.end(), std::mt19937(7));
    }
    return all;
}

void sheetFill(benchmark::State& state) {
    const std::vector<localSxlPlace> all = places(state.range(0), state.range(1));
    const localText text(u"text of a cell");
    for (auto _ : state) {
        localSxlSheet sheet(nullptr);
        for (const localSxlPlace place : all) {
            sheet.cellTextSet(place, text);
        }
        benchmark::DoNotOptimize(sheet.cells().all().size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(sheetFill)
    ->ArgsProduct({{few, many}, {byRow, reverse, random}})
    ->ArgNames({"cells", "order"})
    ->Unit(benchmark::kMillisecond);

void sheetTextGet(benchmark::State& state) {
    localSxlSheet sheet(nullptr);
    const std::vector<localSxlPlace> all = places(state.range(0), random);
    for (const localSxlPlace place : all) {
        sheet.cellTextSet(place, u"text of a cell");
    }
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sheet.cellText(all[next]));
        next = next + 1 == all.size() ? 0 : next + 1;
    }
}
BENCHMARK(sheetTextGet)->Arg(few)->Arg(many)->ArgName("cells");

void sheetToJson(benchmark::State& state) {
    localSxlSheet sheet(nullptr);
    for (const localSxlPlace place : places(state.range(0), byRow)) {
        sheet.cellTextSet(place, u"Текст ячейки");
    }
    for (auto _ : state) {
        int status = 0;
        localText text;
        benchmark::DoNotOptimize(localSxlToJson(status, sheet, text));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(sheetToJson)->Arg(few)->Arg(100000)->ArgName("cells")->Unit(benchmark::kMillisecond);

}  // namespace
