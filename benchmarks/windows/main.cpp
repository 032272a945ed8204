// Measurements of windows, without a screen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QByteArray>

#include <clocale>

#include "localInterpretatorUTF8/value/localMemoryManager.h"

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    localMemoryManager::start();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
