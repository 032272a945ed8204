// Expressions and programs, as the console and program files run them.
#include <benchmark/benchmark.h>

#include <iostream>
#include <string>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"

namespace {

using namespace localInterpretatorUTF8;

void evaluate(benchmark::State& state, const std::u16string& text) {
    localContextUTF8 context;
    context.varDeclare(u"i").value->setVal(7.0);
    for (auto _ : state) {
        int status = localErrorTypeOK;
        localPosition pos = 0;
        localSlot value;
        if (!scanStringGetExpressionAndEvaluete(status, text, pos, value.asResult(), &context,
                                                false)) {
            state.SkipWithError("the expression failed");
            break;
        }
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(text.size() * sizeof(char16_t)));
}

void shortExpression(benchmark::State& state) {
    evaluate(state, u"i+1");
}
BENCHMARK(shortExpression);

// range(0) terms in a row.
void longExpression(benchmark::State& state) {
    std::u16string text = u"i";
    for (std::int64_t i = 1; i < state.range(0); ++i) {
        text += u" + i*2";
    }
    evaluate(state, text);
}
BENCHMARK(longExpression)->Arg(100)->Arg(10000)->ArgName("terms");

// range(0) parentheses around one name.
void deepExpression(benchmark::State& state) {
    const auto depth = static_cast<std::size_t>(state.range(0));
    evaluate(state, std::u16string(depth, u'(') + u"i" + std::u16string(depth, u')'));
}
BENCHMARK(deepExpression)->Arg(10)->Arg(1000)->ArgName("depth");

void run(benchmark::State& state, const std::u16string& program) {
    for (auto _ : state) {
        localContextUTF8 context;
        int status = localErrorTypeOK;
        if (!textExec(status, program, &context)) {
            state.SkipWithError("the program failed");
            break;
        }
    }
}

void countingLoop(benchmark::State& state) {
    run(state, u"FOR i=1 TO 1000000 DO s=i; ENDDO;");
}
BENCHMARK(countingLoop)->Unit(benchmark::kMillisecond);

void fibonacci22(benchmark::State& state) {
    run(state, uR"(FUNCTION fib(n)
  IF (n<2) THEN RETURN n; ENDIF;
  RETURN fib(n-1)+fib(n-2);
ENDFUNCTION;
f = fib(22);)");
}
BENCHMARK(fibonacci22)->Unit(benchmark::kMillisecond);

// range(0) appends of two letters.
void joinStrings(benchmark::State& state) {
    const std::string count = std::to_string(state.range(0));
    run(state, u"s=\"\"; FOR i=1 TO " + std::u16string(count.begin(), count.end()) +
                   u" DO s=s+\"ab\"; ENDDO;");
}
BENCHMARK(joinStrings)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->ArgName("appends");

void compileProgram(benchmark::State& state) {
    std::u16string text;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        text += u"IF (i<5) THEN sum = sum+i*2; ELSE sum = 0; ENDIF;\n";
    }
    for (auto _ : state) {
        int status = localErrorTypeOK;
        localOperatorCompiled root;
        benchmark::DoNotOptimize(programCompile(status, text, root, "compile"));
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(text.size() * sizeof(char16_t)));
}
BENCHMARK(compileProgram)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond)->ArgName("lines");

}  // namespace
