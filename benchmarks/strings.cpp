// Global functions on long strings. The rate per byte must not fall with the length.
#include <benchmark/benchmark.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

void callFunction(benchmark::State& state, std::u16string_view name,
                  std::initializer_list<std::u16string_view> texts) {
    localContextUTF8 context;
    std::vector<localSlot> slots;
    std::vector<localValueDescription*> pointers;
    for (const std::u16string_view text : texts) {
        slots.push_back(localSlot::reserve());
        slots.back()->setVal(localText(text));
        pointers.push_back(slots.back().get());
    }
    const localArguments args(pointers);
    for (auto _ : state) {
        int status = localErrorTypeOK;
        localSlot result;
        if (!localLibrary::call(status, &context, name, &args, result.asResult())) {
            state.SkipWithError("the function failed");
            break;
        }
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(texts.begin()->size() * sizeof(char16_t)));
}

std::u16string units(benchmark::State& state, std::u16string_view pattern) {
    const auto length = static_cast<std::size_t>(state.range(0));
    std::u16string text;
    text.reserve(length + pattern.size());
    while (text.size() < length) {
        text += pattern;
    }
    return text;
}

// Every eighth unit is replaced by two.
void stringPartReplace(benchmark::State& state) {
    callFunction(state, u"STRINGPARTREPLACE", {units(state, u"abcdefg;"), u";", u"\r\n"});
}
BENCHMARK(stringPartReplace)->Arg(10000)->Arg(10000000)->ArgName("units");

// A long part that nearly fits everywhere.
void findAmongNearMisses(benchmark::State& state) {
    const std::u16string text = units(state, u"a");
    const std::u16string part = text.substr(0, text.size() / 2) + u"b";
    callFunction(state, u"FIND", {text, part});
}
BENCHMARK(findAmongNearMisses)->Arg(10000)->Arg(10000000)->ArgName("units");

void findShortPart(benchmark::State& state) {
    callFunction(state, u"FIND", {units(state, u"abcdefgh"), u"hb"});
}
BENCHMARK(findShortPart)->Arg(10000)->Arg(10000000)->ArgName("units");

void stringToUpper(benchmark::State& state) {
    callFunction(state, u"STRINGTOUPPER", {units(state, u"abcпривет")});
}
BENCHMARK(stringToUpper)->Arg(10000)->Arg(10000000)->ArgName("units");

void stringTrimAll(benchmark::State& state) {
    callFunction(state, u"STRINGTRIMALL", {units(state, u" a ")});
}
BENCHMARK(stringTrimAll)->Arg(10000)->Arg(10000000)->ArgName("units");

void formatNumber(benchmark::State& state) {
    localContextUTF8 context;
    localSlot number = localSlot::reserve();
    number->setVal(1234567.891);
    localSlot format = localSlot::reserve();
    format->setVal(u"Ч15.2.,");
    localValueDescription* const pointers[] = {number.get(), format.get()};
    const localArguments args(pointers);
    for (auto _ : state) {
        int status = localErrorTypeOK;
        localSlot result;
        localLibrary::call(status, &context, u"FORMAT", &args, result.asResult());
        benchmark::DoNotOptimize(result.get());
    }
}
BENCHMARK(formatNumber);

}  // namespace
