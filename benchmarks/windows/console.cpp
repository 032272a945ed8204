// A line of output costs the same in an empty console and in one that holds all the lines it keeps.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include <iostream>

#include "localConsole/console/localConsole.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

// A line as a program writes one: through the standard output stream, with a moment for the event
// loop.
void lineOfOutput(benchmark::State& state) {
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    localCoutBuffer buffer;
    std::streambuf* const before = std::cout.rdbuf(&buffer);
    {
        localConsole console;
        QObject::connect(&buffer, &localCoutBuffer::COUT, &console, &localConsole::COUT);
        console.show();
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            console.putResult(QString::number(i));
        }
        for (auto _ : state) {
            writeLine(u"Молоко, 12 шт. по 89.90");
        }
    }
    std::cout.rdbuf(before);
}
BENCHMARK(lineOfOutput)
    ->Arg(0)
    ->Arg(100000)
    ->ArgName("kept")
    ->Iterations(20000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
