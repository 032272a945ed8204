// The hand-drawn grid: painting, the cursor, keys and the mouse.
#include <QtTest>

#include <QApplication>

#include <clocale>
#include <memory>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/grid/localVclGrid200123.h"
#include "localVCL/window/localVclTurn.h"

class grid : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        localVclTurnInstall();
    }

    void shows() {
        localContextUTF8 context;
        localVclGrid200123 shown(&context);
        for (int i = 0; i < 4; ++i) {
            auto column = std::make_unique<localVclGridColumn>();
            column->caption = QString("Колонка%1").arg(i);
            column->width = 100;
            column->alignment = i % 2 ? Qt::AlignRight : Qt::AlignLeft;
            if (i > 1) {
                column->id = i == 2 ? u"A" : u"B";
                column->formula = i == 2 ? u"ROWNUMBER*100000000+COLUMNNUMBER" : u"A+1";
            }
            shown.addColumn(std::move(column));
        }
        shown.resize(500, 300);
        shown.show();
        {
            const localTurn::Pause pause;
            QTest::qWait(50);
            QTest::keyClick(&shown, Qt::Key_Right);
            QTest::keyClick(&shown, Qt::Key_Down, Qt::ShiftModifier);
            QTest::keyClick(&shown, Qt::Key_Down, Qt::ShiftModifier);
            QTest::keyClick(&shown, Qt::Key_Right, Qt::ShiftModifier);
            QTest::keyClick(&shown, Qt::Key_A);
            QTest::qWait(50);
            shown.grab().save(qEnvironmentVariable("KORVO_SCREENSHOTS") + "/grid.png");
        }
    }
};

QTEST_MAIN(grid)
#include "grid.moc"
