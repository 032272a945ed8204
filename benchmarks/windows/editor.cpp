// A key costs work on its own line only, and a long text is on the screen at once.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTextBlock>

#include <memory>

#include "localVCL/editor/localVclWidgetEditor.h"

namespace {

std::u16string program(std::int64_t lines) {
    std::u16string text;
    for (std::int64_t i = 0; i < lines; ++i) {
        text += u"сумма = сумма+Цена(товар, \"розница\"); // строка\n";
    }
    return text;
}

void openText(benchmark::State& state) {
    const std::u16string text = program(state.range(0));
    for (auto _ : state) {
        localVclWidgetEditor editor(u"long.prg", text);
        editor.resize(800, 600);
        editor.show();
        QApplication::processEvents();
    }
}
BENCHMARK(openText)->Arg(100)->Arg(50000)->ArgName("lines")->Unit(benchmark::kMillisecond);

// A letter typed in the middle of the text, until it is on the screen.
void key(benchmark::State& state) {
    localVclWidgetEditor editor(u"long.prg", program(state.range(0)));
    editor.resize(800, 600);
    editor.show();
    editor.lineShow(static_cast<int>(state.range(0) / 2));
    editor.activateWindow();
    editor.setFocus();
    QApplication::processEvents();
    const int line = editor.textCursor().blockNumber();
    const qsizetype length = editor.textCursor().block().text().size();
    std::int64_t typed = 0;
    for (auto _ : state) {
        QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QApplication::sendEvent(&editor, &letter);
        QApplication::processEvents();
        if (++typed % 40 == 0) {  // lines stay of a usual length
            QKeyEvent end(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
            QApplication::sendEvent(&editor, &end);
        }
    }
    if (editor.textCursor().blockNumber() == line &&
        editor.textCursor().block().text().size() == length) {
        state.SkipWithError("no letter came to the text");
    }
}
BENCHMARK(key)->Arg(100)->Arg(50000)->ArgName("lines")->Unit(benchmark::kMicrosecond);

}  // namespace
