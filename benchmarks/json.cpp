// Reading and writing JSON cost what the text's length costs, whatever its shape.
#include <benchmark/benchmark.h>

#include <string>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

using localInterpretatorUTF8::localPosition;

// Records of a few members and an inner list, up to about so many code units.
std::u16string records(std::size_t length) {
    const std::u16string record =
        u"{\"id\": 12345, \"name\": \"товар \\\"один\\\"\", \"price\": -10.25,\n"
        u" \"tags\": [\"a\", [true, null], {\"x\": 1}]}";
    std::u16string text = u"[" + record;
    while (text.size() < length) {
        text += u"," + record;
    }
    return text + u"]";
}

// Lists in lists, each with one number, as deep as so many code units allow and the reader takes.
std::u16string nested(std::size_t length) {
    std::u16string text;
    std::u16string ends;
    for (std::size_t i = 0; i < length / 4 && i < localInterpretatorUTF8::jsonDeepest; ++i) {
        text += u"[7,";
        ends += u"]";
    }
    return text + u"0" + ends;
}

localSlot parsed(const std::u16string& text) {
    int status = 0;
    localPosition pos = 0;
    localSlot list;
    if (!localInterpretatorUTF8::scanStringParseJson(status, text, pos, list.asResult())) {
        list.clear();
    }
    return list;
}

void report(benchmark::State& state, std::size_t length) {
    state.SetBytesProcessed(static_cast<std::int64_t>(length) * state.iterations());
}

void read(benchmark::State& state, std::u16string (*make)(std::size_t)) {
    localMemoryManager::start();
    const std::u16string text = make(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        if (!parsed(text)) {
            state.SkipWithError("the text was not read");
            break;
        }
    }
    report(state, text.size());
}
BENCHMARK_CAPTURE(read, records, records)
    ->RangeMultiplier(10)
    ->Range(5000, 50000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(read, nested, nested)
    ->RangeMultiplier(7)
    ->Range(5000, 240000)
    ->Unit(benchmark::kMillisecond);

void write(benchmark::State& state, std::u16string (*make)(std::size_t)) {
    localMemoryManager::start();
    const localSlot list = parsed(make(static_cast<std::size_t>(state.range(0))));
    std::size_t length = 0;
    for (auto _ : state) {
        length = valueToJson(*list).size();
    }
    report(state, length);
}
BENCHMARK_CAPTURE(write, records, records)
    ->RangeMultiplier(10)
    ->Range(5000, 5000000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write, nested, nested)
    ->RangeMultiplier(7)
    ->Range(5000, 240000)
    ->Unit(benchmark::kMillisecond);

// The typed form, written and read back. It has no booleans, each of which would cost a line of
// output.
void thereAndBack(benchmark::State& state) {
    localMemoryManager::start();
    localContextUTF8 context;
    localValueDescription value;
    auto* list = new localValueList;
    value.objectBind(list, localValueList::classDeclaration());
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        auto* row = new localValueList;
        row->valueAppend(static_cast<double>(i), u"id");
        row->valueAppend(localText(u"название"), u"name");
        list->valueAppend(row, u"row");
    }
    std::size_t length = 0;
    for (auto _ : state) {
        const std::u16string text = valueToJson(value).string();
        length = text.size();
        const localSlot form = parsed(text);
        int status = 0;
        localSlot restored;
        if (!fromJsonValueList(status, &context, *localValueList::of(*form), restored.asResult())) {
            state.SkipWithError("the value was not restored");
            break;
        }
    }
    report(state, length);
}
BENCHMARK(thereAndBack)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
