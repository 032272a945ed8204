// The hand-drawn grid: a key, and the paint of a window of 60 rows and 10 columns.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>

#include <memory>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localVCL/grid/localVclTestWidgetValueTable200617.h"
#include "localVCL/window/localVclTurn.h"

namespace {

constexpr int rowsShown = 60;
constexpr int columnsShown = 10;

// A value table and a grid over it on a screen of memory.
class shownTable {
public:
    explicit shownTable(std::int64_t rows) {
        localVclTurnInstall();
        auto* const table = new localValueTable;
        localValueDescription value;
        value.objectBind(table, localValueTable::classDeclaration());
        for (int column = 0; column < columnsShown; ++column) {
            table->columnAdd(u"C" + QString::number(column).toStdU16String());
        }
        for (std::int64_t row = 0; row < rows; ++row) {
            table->rowAdd();
            const auto place = static_cast<std::size_t>(row);
            for (std::size_t column = 0; column < columnsShown; ++column) {
                if (column % 2 == 0) {
                    table->cell(place, column).setVal(static_cast<double>(row) * 100);
                } else {
                    table->cell(place, column)
                        .setVal(localText(u"Товар " + QString::number(row).toStdU16String()));
                }
            }
        }
        grid = std::make_unique<localVclTestWidgetValueTable200617>(value, &context_);
        for (int column = 0; column < columnsShown; ++column) {
            auto made = std::make_unique<localVclGridColumn>();
            made->id = u"C" + QString::number(column).toStdU16String();
            made->width = 100;
            made->alignment = column % 2 == 0 ? Qt::AlignRight : Qt::AlignLeft;
            grid->addColumn(std::move(made));
        }
        grid->resize(25 + columnsShown * 106, (rowsShown + 1) * 21);
        grid->show();
        QApplication::processEvents();
    }

    void press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(grid.get(), &event);
    }

    std::unique_ptr<localVclTestWidgetValueTable200617> grid;

private:
    localContextUTF8 context_;
};

void paint(benchmark::State& state) {
    shownTable shown(state.range(0));
    QImage screen(shown.grid->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        shown.grid->render(&screen);
    }
}
BENCHMARK(paint)->Arg(1000)->Unit(benchmark::kMillisecond);

// The cursor goes from cell to cell.
void keyInView(benchmark::State& state) {
    shownTable shown(state.range(0));
    int key = Qt::Key_Right;
    for (auto _ : state) {
        shown.press(key);
        QApplication::processEvents();
        key = key == Qt::Key_Right ? Qt::Key_Left : Qt::Key_Right;
    }
}
BENCHMARK(keyInView)->Arg(1000)->Unit(benchmark::kMillisecond);

// The view moves by a row, texts included.
void keyThatScrolls(benchmark::State& state) {
    shownTable shown(state.range(0));
    shown.press(Qt::Key_PageDown);
    int left = 0;
    int key = Qt::Key_Down;
    for (auto _ : state) {
        if (left-- == 0) {
            left = static_cast<int>(state.range(0)) / 2;
            state.PauseTiming();
            shown.grid->goToStart();
            shown.press(Qt::Key_PageDown);
            QApplication::processEvents();
            state.ResumeTiming();
        }
        shown.press(key);
        QApplication::processEvents();
    }
}
BENCHMARK(keyThatScrolls)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
