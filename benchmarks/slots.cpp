// A slot costs the same with few and with many slots in use.
#include <benchmark/benchmark.h>

#include <vector>

#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

void reserveAndRelease(benchmark::State& state) {
    localMemoryManager::start();
    std::vector<localSlot> used;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        used.push_back(localSlot::reserve());
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(localSlot::reserve().get());
    }
}
BENCHMARK(reserveAndRelease)->Arg(10)->Arg(1000)->Arg(100000)->ArgName("used");

}  // namespace
