// The widget of table documents: what it shows, where keys and mouse lead, what a program does to
// the sheet meanwhile.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QScrollBar>
#include <QTest>
#include <QThread>
#include <QWheelEvent>

#include <memory>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/editor/localDialogFindString.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localMainWindow.h"
#include "madeOf.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

// A scope that holds the sheet `s`, and a widget that shows it.
class shownSheet {
public:
    explicit shownSheet(const QString& program = {}, QSize size = {500, 300}) {
        run(QStringLiteral("s = CREATEOBJECT(\"TABLEDOCUMENT\"); s.CLEAR(); ") + program);
        widget = new localSxl(*scope->varFind(u"s")->value);
        widget->resize(size);
        widget->show();
        widget->setFocus();
    }
    ~shownSheet() { delete widget.data(); }
    shownSheet(const shownSheet&) = delete;
    shownSheet& operator=(const shownSheet&) = delete;

    // Gives the status.
    int run(const QString& program) {
        int status = localErrorTypeOK;
        textLoad(status, program.toStdU16String(), scope.get());
        return status;
    }
    localSxlSheet& sheet() { return *localSxlSheet::of(*scope->varFind(u"s")->value); }
    QString variable(const std::u16string& name) {
        return QString::fromStdU16String(scope->varToString(name));
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
    }
    QString at() const {
        return QStringLiteral("%1:%2").arg(widget->current().row).arg(widget->current().column);
    }
    QString view() const {
        return QStringLiteral("%1:%2")
            .arg(widget->firstInView().row)
            .arg(widget->firstInView().column);
    }
    QColor pixel(int x, int y) { return widget->grab().toImage().pixelColor(x, y); }

    std::unique_ptr<localContextUTF8> scope = std::make_unique<localContextUTF8>();
    QPointer<localSxl> widget;
};

// The middle of a cell, where all have the size that they have at first.
QPoint middle(int row, int column) {
    return {30 + (column - 1) * 85 + 42, 20 + (row - 1) * 20 + 10};
}

QList<QWidget*> sheetWindows() {
    QList<QWidget*> windows;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<localMainWindow*>(window) != nullptr && window->isVisible()) {
            windows.append(window);
        }
    }
    return windows;
}

const QString picture = QStringLiteral(
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4z8AAAAMBAQDJ/pLvAAAAAElFTkSuQmCC");

}  // namespace

class sheet : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        static localContextUTF8 global;
        localHost::install(&host_);
        addWhatKorvoIsMadeOf();
    }
    void cleanupTestCase() { localHost::install(nullptr); }
    void cleanup() {
        for (QWidget* const window : sheetWindows()) {
            window->close();
        }
        QTRY_VERIFY(sheetWindows().isEmpty());
        QVERIFY(!localTurn::isHeld() || QThread::currentThread() == qApp->thread());
    }

    // --- painting

    void cellsHaveTheirColoursAndPictures() {
        shownSheet shown("s.CELLCOLORSET(2,2,\"red\",\"yellow\",0,\"blue\"); "
                         "s.CELLPIXMAPASBASE64SET(3,3,\"" +
                         picture + "\"); s.CELLCOLORSET(3,3,0,\"cyan\");");
        QCOMPARE(shown.pixel(30 + 85 + 40, 20 + 20 + 10), QColor(255, 255, 0));
        QCOMPARE(shown.pixel(30 + 85 - 1, 20 + 20 + 10), QColor(255, 0, 0));
        QCOMPARE(shown.pixel(30 + 2 * 85 + 40, 20 + 2 * 20 + 10), QColor(0, 255, 255));
        // One pixel, at the cell's top left.
        QCOMPARE(shown.pixel(30 + 2 * 85 + 2, 20 + 2 * 20 + 1), QColor(255, 0, 0));
        QCOMPARE(shown.pixel(30 + 4 * 85 + 40, 20 + 5 * 20 + 10), QColor(255, 255, 255));
    }

    void aChangeShowsByItself() {
        shownSheet shown;
        QVERIFY(QTest::qWaitForWindowExposed(shown.widget));
        const auto color = [&] { return shown.widget->grab().toImage().pixelColor(155, 50); };
        QCOMPARE(color(), QColor(255, 255, 255));
        shown.run("s.CELLCOLORSET(2,2,0,\"red\");");
        QTRY_COMPARE(color(), QColor(255, 0, 0));
    }

    // What is looked at does not grow with the cells that are not in view.
    void paintingCostsWhatIsInView() {
        const auto lookedAt = [](shownSheet& shown) {
            shown.widget->grab();
            const std::int64_t before = shown.sheet().cells().comparedCount();
            shown.widget->grab();
            return shown.sheet().cells().comparedCount() - before;
        };
        shownSheet few;
        shownSheet many;
        for (std::uint32_t i = 0; i < 10; ++i) {
            few.sheet().cellTextSet({i / 5 + 1, i % 5 + 1}, u"x");
            many.sheet().cellTextSet({i / 5 + 1, i % 5 + 1}, u"x");
        }
        for (std::uint32_t i = 10; i < 1000000; ++i) {
            many.sheet().cellTextSet({i / 10 + 100, i % 10 + 1}, u"x");
        }
        const std::int64_t ofFew = lookedAt(few);
        const std::int64_t ofMany = lookedAt(many);
        QVERIFY2(ofFew > 0 && ofMany < 8 * ofFew,
                 qPrintable(QString("%1 %2").arg(ofFew).arg(ofMany)));
    }

    void sizesAtTheirEndsArePainted() {
        shownSheet shown("s.CELLTEXTSET(1,1,\"x\"); s.CELLTEXTSET(4294967295,4294967295,\"y\"); "
                         "s.CELLFONTSET(1,1,\"No such font\",99999999999,15); "
                         "s.CELLALIGMENTSET(1,1,99999999,99999999); s.COLUMNWIDTHSET(2,0-50); "
                         "s.COLUMNWIDTHSET(3,99999999999);");
        shown.widget->grab();
        shown.widget->currentSet({4294967295U, 4294967295U});
        shown.widget->grab();
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_PageUp}) {
            shown.key(key);
            shown.widget->grab();
        }
        for (const char* const height : {"0", "0-7", "99999999999", "1"}) {
            shown.run(QString("s.ROWHEIGHTSET(1,%1);").arg(height));
            shown.widget->grab();
            for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp}) {
                shown.key(key);
            }
        }
        shown.widget->resize(1, 1);
        shown.widget->grab();
        shown.key(Qt::Key_PageDown);
    }

    // --- the cursor

    void keysMoveTheCursor() {
        shownSheet shown({}, {30 + 4 * 85, 20 + 10 * 20});
        QCOMPARE(shown.at(), "1:1");
        shown.key(Qt::Key_Up);
        shown.key(Qt::Key_Left);
        QCOMPARE(shown.at(), "1:1");
        shown.key(Qt::Key_Down);
        shown.key(Qt::Key_Right);
        QCOMPARE(shown.at(), "2:2");
        for (int i = 0; i < 8; ++i) {
            shown.key(Qt::Key_Down);
        }
        QCOMPARE(shown.at(), "10:2");
        QCOMPARE(shown.view(), "1:1");
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.at(), "11:2");
        QCOMPARE(shown.view(), "2:1");
        for (int i = 0; i < 3; ++i) {
            shown.key(Qt::Key_Right);
        }
        QCOMPARE(shown.at(), "11:5");
        QCOMPARE(shown.view(), "2:2");
        for (int i = 0; i < 10; ++i) {
            shown.key(Qt::Key_Up);
        }
        QCOMPARE(shown.at(), "1:5");
        QCOMPARE(shown.view(), "1:2");
        for (int i = 0; i < 9; ++i) {
            shown.key(Qt::Key_Left);
        }
        QCOMPARE(shown.at(), "1:1");
        QCOMPARE(shown.view(), "1:1");
    }

    void pagesEndsAndBeginnings() {
        shownSheet shown("s.CELLTEXTSET(1000000,3,\"x\");", {30 + 4 * 85, 20 + 10 * 20});
        shown.key(Qt::Key_Down);
        shown.key(Qt::Key_PageDown);
        QCOMPARE(shown.view(), "11:1");
        QCOMPARE(shown.at(), "12:1");
        shown.key(Qt::Key_PageUp);
        QCOMPARE(shown.view(), "1:1");
        QCOMPARE(shown.at(), "2:1");
        shown.key(Qt::Key_PageUp);
        QCOMPARE(shown.at(), "1:1");
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(shown.at(), "1000000:1");
        shown.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(shown.at(), "1:1");
        QCOMPARE(shown.view(), "1:1");
        shown.run("s.CLEAR();");
        shown.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(shown.at(), "1:1");
    }

    void hiddenColumnsArePassedOver() {
        shownSheet shown("s.COLUMNWIDTHSET(2,0); s.COLUMNWIDTHSET(3,0);");
        shown.key(Qt::Key_Right);
        QCOMPARE(shown.at(), "1:4");
        shown.key(Qt::Key_Left);
        QCOMPARE(shown.at(), "1:1");
    }

    void aClearedSheetIsShownFromItsBeginning() {
        shownSheet shown;
        shown.widget->currentSet({500, 50});
        shown.run("s.CLEAR();");
        shown.widget->grab();
        QCOMPARE(shown.at(), "1:1");
        QCOMPARE(shown.view(), "1:1");
    }

    void theWheelScrolls() {
        shownSheet shown({}, {30 + 4 * 85, 20 + 10 * 20});
        const auto wheel = [&](QPoint way, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QWheelEvent event(QPointF(100, 100), QPointF(100, 100), {}, way, Qt::NoButton,
                              modifiers, Qt::NoScrollPhase, false);
            QApplication::sendEvent(shown.widget, &event);
        };
        wheel({0, -120});
        QCOMPARE(shown.view(), "4:1");
        QCOMPARE(shown.at(), "4:1");
        wheel({0, -60});
        QCOMPARE(shown.view(), "4:1");
        wheel({0, -60});
        QCOMPARE(shown.view(), "7:1");
        wheel({0, 1200});
        QCOMPARE(shown.view(), "1:1");
        QCOMPARE(shown.at(), "7:1");
        wheel({0, -120}, Qt::ShiftModifier);
        QCOMPARE(shown.view(), "1:2");
        wheel({0, 120}, Qt::ControlModifier);
        QCOMPARE(shown.widget->zoom(), 110);
    }

    void zoomChangesWhatIsShownOnly() {
        shownSheet shown("s.COLUMNWIDTHSET(1,100);");
        shown.key(Qt::Key_Plus, Qt::ControlModifier);
        shown.key(Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(shown.widget->zoom(), 120);
        QCOMPARE(shown.sheet().columnWidth(1), 100);
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(shown.widget->zoom(), 110);
        for (int i = 0; i < 100; ++i) {
            shown.key(Qt::Key_Minus, Qt::ControlModifier);
        }
        QCOMPARE(shown.widget->zoom(), 25);
        shown.key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(shown.widget->zoom(), 100);
        shown.widget->zoomSet(200);
        QTest::mouseClick(shown.widget, Qt::LeftButton, {}, {2 * (30 + 100 + 10), 2 * (20 + 30)});
        QCOMPARE(shown.at(), "2:2");
    }

    void aTextIsCopied() {
        shownSheet shown("s.CELLTEXTSET(2,1,\"Цена\");");
        shown.key(Qt::Key_Down);
        shown.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Цена"));
    }

    void altF10MakesTheWindowLarge() {
        shownSheet shown;
        shown.key(Qt::Key_F10, Qt::AltModifier);
        QVERIFY(shown.widget->isMaximized());
        shown.key(Qt::Key_F10, Qt::AltModifier);
        QVERIFY(!shown.widget->isMaximized());
    }

    // --- the mouse

    void aPressMovesTheCursor() {
        shownSheet shown;
        QTest::mouseClick(shown.widget, Qt::LeftButton, {}, middle(3, 2));
        QCOMPARE(shown.at(), "3:2");
        QTest::mouseClick(shown.widget, Qt::LeftButton, {}, QPoint(5, 100));
        QTest::mouseClick(shown.widget, Qt::LeftButton, {}, QPoint(100, 5));
        QCOMPARE(shown.at(), "3:2");
    }

    void aColumnsBorderIsDrawn() {
        shownSheet shown;
        const QPoint border(30 + 85, 8);
        QTest::mouseMove(shown.widget, border);
        QTRY_COMPARE(shown.widget->cursor().shape(), Qt::SplitHCursor);
        QTest::mousePress(shown.widget, Qt::LeftButton, {}, border);
        QTest::mouseMove(shown.widget, border + QPoint(40, 0));
        QTest::mouseRelease(shown.widget, Qt::LeftButton, {}, border + QPoint(40, 0));
        QCOMPARE(shown.sheet().columnWidth(1), 125);
        QTest::mouseMove(shown.widget, {300, 200});
        QTRY_COMPARE(shown.widget->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(shown.sheet().columnWidth(1), 125);
        QCOMPARE(shown.at(), "1:1");
    }

    void aDoubleClickAsksForTheWidth() {
        shownSheet shown;
        {
            const dialogAnswer answer([](QWidget* dialog) {
                auto* const input = qobject_cast<QInputDialog*>(dialog);
                QVERIFY(input != nullptr);
                QCOMPARE(input->windowTitle(), QStringLiteral("Колонка 2 (2) :"));
                QCOMPARE(input->labelText(), QStringLiteral("Введите ширину:"));
                QCOMPARE(input->intValue(), 85);
                QCOMPARE(input->intMinimum(), 0);
                QCOMPARE(input->intMaximum(), 65535);
                QVERIFY(saveScreenshot(*input, QStringLiteral("sheetWidth")));
                input->setIntValue(123);
                input->accept();
            });
            QTest::mouseDClick(shown.widget, Qt::LeftButton, {}, QPoint(30 + 85 + 40, 8));
            QVERIFY(answer.given());
        }
        QCOMPARE(shown.sheet().columnWidth(2), 123);
        const dialogAnswer answer(
            [](QWidget* dialog) { qobject_cast<QInputDialog*>(dialog)->reject(); });
        QTest::mouseDClick(shown.widget, Qt::LeftButton, {}, QPoint(30 + 85 + 40, 8));
        QVERIFY(answer.given());
        QCOMPARE(shown.sheet().columnWidth(2), 123);
    }

    void theWidthDialogOutlivesTheWidget() {
        shownSheet shown;
        QPointer<QWidget> asking;
        const dialogAnswer answer([&](QWidget* dialog) {
            asking = dialog;
            {
                const localTurn::Hold turn;
                shown.scope.reset();
            }
            qobject_cast<QInputDialog*>(dialog)->accept();
        });
        QTest::mouseDClick(shown.widget, Qt::LeftButton, {}, QPoint(30 + 40, 8));
        QVERIFY(answer.given());
    }

    // --- finding

    void findingGoesToTheFirstCell() {
        shownSheet shown("s.CELLTEXTSET(300,20,\"Гвозди\"); s.CELLTEXTSET(400,1,\"гвозди\");");
        shown.widget->findText(QStringLiteral("гвоз"), Qt::CaseInsensitive);
        QCOMPARE(shown.at(), "300:20");
        QVERIFY(shown.widget->firstInView().row > 290);
        QVERIFY(shown.widget->firstInView().row < 300);
        shown.widget->findText(QStringLiteral("гвоз"), Qt::CaseSensitive);
        QCOMPARE(shown.at(), "400:1");
    }

    void whatIsNowhereIsTold() {
        shownSheet shown;
        shown.widget->currentSet({7, 2});
        const outputCapture output;
        const dialogAnswer answer([](QWidget* dialog) {
            auto* const box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(box != nullptr);
            QCOMPARE(box->windowTitle(), QStringLiteral("Поиск"));
            QCOMPARE(box->text(), QStringLiteral("Не нашел \"нет\""));
            box->accept();
        });
        shown.widget->findText(QStringLiteral("нет"), Qt::CaseInsensitive);
        QVERIFY(answer.given());
        QCOMPARE(output.text(), QStringLiteral("Не нашел... [нет] \n"));
        QCOMPARE(shown.at(), "7:2");
    }

    void ctrlFAsksForTheText() {
        shownSheet shown("s.CELLTEXTSET(9,2,\"Молоток\");");
        const dialogAnswer answer([](QWidget* dialog) {
            QVERIFY(qobject_cast<localDialogFindString*>(dialog) != nullptr);
            dialog->findChild<QComboBox*>()->setCurrentText(QStringLiteral("  молоток "));
            static_cast<QDialog*>(dialog)->accept();
        });
        shown.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(answer.given());
        QCOMPARE(shown.at(), "9:2");
    }

    // --- paper and other programs

    void pagesAreShownBeforePrinting() {
        shownSheet shown("FOR i=1 TO 100 DO s.CELLTEXTSET(i,1,\"Товар \"+STRING(i)); ENDDO;");
        const dialogAnswer answer([](QWidget* dialog) {
            auto* const preview = qobject_cast<QPrintPreviewDialog*>(dialog);
            QVERIFY(preview != nullptr);
            auto* const pages = preview->findChild<QPrintPreviewWidget*>();
            QTRY_COMPARE(pages->pageCount(), 2);
            QVERIFY(saveScreenshot(*preview, QStringLiteral("sheetPrint")));
            preview->reject();
        });
        shown.key(Qt::Key_P, Qt::ControlModifier);
        QVERIFY(answer.given());
    }

    void aSheetIsExported() {
        shownSheet shown("s.CELLTEXTSET(1,1,\"Товар\");");
        const dialogAnswer answer([](QWidget* dialog) {
            auto* const files = qobject_cast<QFileDialog*>(dialog);
            QVERIFY(files != nullptr);
            files->findChild<QLineEdit*>()->setText(QDir::current().filePath("out.csv"));
            QTest::keyClick(files->findChild<QLineEdit*>(), Qt::Key_Return);
        });
        shown.key(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(answer.given());
        QFile file("out.csv");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("\xEF\xBB\xBFТовар\r\n"));
    }

    void whatCannotBeExportedIsTold() {
        shownSheet shown("s.CELLTEXTSET(4000000000,1,\"x\");");
        const outputCapture output;
        const dialogAnswer answer([](QWidget* dialog) {
            auto* const box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(box != nullptr);
            QVERIFY(box->text().contains(QStringLiteral("1048576")));
            box->accept();
        });
        shown.widget->sheetExport("far.xlsx");
        QVERIFY(answer.given());
        QVERIFY(output.text().contains(QStringLiteral("1048576")));
        QVERIFY(!QFile::exists("far.xlsx"));
    }

    // --- Enter

    void enterCallsTheProcedure() {
        shownSheet shown("got = \"\"; FUNCTION EventCellActivate(sheet, row, column) "
                         "got = sheet.CELLTEXTGET(row,column)+STRING(row)+STRING(column); "
                         "RETURN 1; ENDFUNCTION; s.CELLTEXTSET(3,2,\"цена\");");
        shown.widget->currentSet({3, 2});
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.variable(u"got"), QStringLiteral("цена32"));
        shown.run("FUNCTION СобытиеЯчейкаАктивировать(sheet, row, column) "
                  "got = \"first\"; RETURN 1; ENDFUNCTION;");
        shown.key(Qt::Key_Enter);
        QCOMPARE(shown.variable(u"got"), QStringLiteral("first"));
    }

    void enterWithoutAProcedureDoesNothing() {
        shownSheet shown;
        const outputCapture output;
        shown.key(Qt::Key_Return);
        QCOMPARE(output.text(), QString());
    }

    void theProcedureMayDoAnythingToItsSheet_data() {
        QTest::addColumn<QString>("body");
        QTest::newRow("clears") << "sheet.CLEAR();";
        QTest::newRow("lets go") << "s = 1; sheet = 1;";
        QTest::newRow("shows again") << "sheet.SHOW(\"again\");";
        QTest::newRow("fails") << "sheet.NOTHING();";
        QTest::newRow("closes") << "PIXMAPASBASE64SHOW(\"close\");";
        QTest::newRow("closes and lets go") << "PIXMAPASBASE64SHOW(\"close\"); s = 1; sheet = 1;";
    }
    void theProcedureMayDoAnythingToItsSheet() {
        QFETCH(QString, body);
        static QPointer<localSxl> closed;
        constexpr localExtensionFunction closing[] = {{u"PIXMAPASBASE64SHOW", [](localCall& call) {
                                                           delete closed.data();
                                                           return call.done();
                                                       }}};
        localExtensionAdd({.name = u"closing", .functions = closing});
        const outputCapture output;
        shownSheet shown("FUNCTION EVENTCELLACTIVATE(sheet, row, column) " + body +
                         " RETURN 1; ENDFUNCTION; s.CELLTEXTSET(1,1,\"x\");");
        closed = shown.widget;
        shown.key(Qt::Key_Return);
        if (shown.widget) {
            shown.widget->grab();
            shown.key(Qt::Key_Return);
        }
        shown.run("RETURN 1;");
        addWhatKorvoIsMadeOf();
    }

    void enterAfterTheScopeHasEnded() {
        shownSheet shown("FUNCTION EVENTCELLACTIVATE(sheet, row, column) "
                         "sheet.CELLTEXTSET(1,1,\"called\"); RETURN 1; ENDFUNCTION; "
                         "FUNCTION make() RETURN CREATEOBJECT(\"TABLEDOCUMENT\"); ENDFUNCTION; "
                         "made = make();");
        localSxl other(*shown.scope->varFind(u"made")->value);
        QTest::keyClick(&other, Qt::Key_Return);
        QCOMPARE(other.cellText(1, 1), QStringLiteral("called"));
        shown.scope.reset();
        QTest::keyClick(&other, Qt::Key_Return);
        shown.key(Qt::Key_Return);
        other.grab();
    }

    // --- SHOW

    void showOpensAWindow() {
        shownSheet shown("s.CELLTEXTSET(1,1,\"Товар\");");
        delete shown.widget.data();
        QCOMPARE(shown.run("IF s.SHOW(\"Цены\",\"июль\",FALSE) THEN RETURN 1; ENDIF; RETURN 2;"),
                 int(localErrorTypeOK));
        QCOMPARE(sheetWindows().size(), 1);
        QWidget* const window = sheetWindows().first();
        QCOMPARE(window->windowTitle(), QStringLiteral("Цены [июль]"));
        QVERIFY(!window->isModal());
        QVERIFY(window->findChild<localSxl*>() != nullptr);
        shown.run("s.SHOW();");
        QCOMPARE(sheetWindows().size(), 2);
    }

    void aSheetShownTwiceShowsEachChange() {
        shownSheet shown("s.SHOW(\"a\"); s.SHOW(\"b\");");
        QCOMPARE(sheetWindows().size(), 2);
        auto* const first = sheetWindows()[0]->findChild<localSxl*>();
        auto* const second = sheetWindows()[1]->findChild<localSxl*>();
        first->currentSet({5, 5});
        QCOMPARE(second->current().row, 1U);
        shown.run("s.CELLTEXTSET(1,1,\"both\");");
        QCOMPARE(first->cellText(1, 1), QStringLiteral("both"));
        QCOMPARE(second->cellText(1, 1), QStringLiteral("both"));
        // One window goes, the variable is replaced, the scope is left: the other goes on.
        sheetWindows()[0]->close();
        QTRY_COMPARE(sheetWindows().size(), 1);
        shown.run("s.CELLTEXTSET(1,1,\"one\"); s = 5;");
        auto* const left = sheetWindows()[0]->findChild<localSxl*>();
        QCOMPARE(left->cellText(1, 1), QStringLiteral("one"));
        shown.scope.reset();
        QTest::keyClick(left, Qt::Key_Down);
        QTest::keyClick(left, Qt::Key_Return);
        left->grab();
    }

    void aSheetIsShownAgainAfterItsWindowClosed() {
        shownSheet shown("s.SHOW(\"a\");");
        sheetWindows()[0]->close();
        QTRY_VERIFY(sheetWindows().isEmpty());
        shown.run("s.CELLTEXTSET(1,1,\"still\"); s.SHOW(\"b\");");
        QCOMPARE(sheetWindows().size(), 1);
        QCOMPARE(sheetWindows()[0]->findChild<localSxl*>()->cellText(1, 1),
                 QStringLiteral("still"));
    }

    void aSheetFillsItsMdiWindow() {
        QMainWindow main;
        auto* const area = new QMdiArea;
        area->setObjectName(QStringLiteral("localMdiArea"));
        main.setCentralWidget(area);
        main.resize(900, 700);
        main.show();
        shownSheet shown("s.CELLTEXTSET(1,1,\"Товар\"); s.SHOW(\"Цены\",\"июль\");");
        QCOMPARE(area->subWindowList().size(), 1);
        QMdiSubWindow* const window = area->subWindowList().first();
        auto* const widget = window->findChild<localSxl*>();
        window->resize(800, 600);
        QTRY_VERIFY(widget->width() > 780 && widget->height() > 500);
        for (const QScrollBar* const bar : window->findChildren<QScrollBar*>()) {
            QVERIFY(!bar->isVisible());
        }
        QVERIFY(saveScreenshot(main, QStringLiteral("sheetMdi")));
    }

    void aTableIsShown() {
        shownSheet shown(
            "t = CREATEOBJECT(\"VALUETABLE\"); t.COLUMNADD(\"Товар\"); t.COLUMNADD(\"Цена\"); "
            "FOR i=1 TO 30 DO t.ROWADD(); t.VALUESET(i,1,\"Гвозди \"+STRING(i)); "
            "t.VALUESET(i,2,i*10); ENDDO; t.SHOW();");
        QCOMPARE(sheetWindows().size(), 1);
        QWidget* const window = sheetWindows().first();
        QVERIFY(window->windowTitle().startsWith(QStringLiteral("Таблица значений [30:2] adr [")));
        auto* const widget = window->findChild<localSxl*>();
        QCOMPARE(widget->cellText(1, 1), QStringLiteral("ТОВАР"));
        QCOMPARE(widget->cellText(2, 1), QStringLiteral("Гвозди 1"));
        QCOMPARE(widget->cellText(31, 2), QStringLiteral("300"));
        QVERIFY(saveScreenshot(*window, QStringLiteral("sheetTable")));
        shown.run("t = CREATEOBJECT(\"VALUETABLE\"); t.SHOW();");
        QCOMPARE(sheetWindows().size(), 2);
    }

    // --- beside a program

    void aProgramOnAnotherThreadShowsAndChanges() {
        shownSheet shown;
        const localTurn::Pause pause;
        const std::unique_ptr<QThread> program(QThread::create([&] {
            const localTurn::Hold turn;
            shown.run("s.SHOW(\"from there\"); FOR i=1 TO 20000 DO s.CELLTEXTSET(i,1,STRING(i)); "
                      "ENDDO; s.CLEAR(); s.CELLCOLORSET(2,2,0,\"red\");");
        }));
        program->start();
        while (!program->isFinished()) {
            QCoreApplication::processEvents();
            shown.widget->repaint();
            QTest::keyClick(shown.widget, Qt::Key_Down);
        }
        QTRY_COMPARE(shown.widget->grab().toImage().pixelColor(155, 50), QColor(255, 0, 0));
        QCOMPARE(sheetWindows().size(), 1);
    }

    void windowsCloseWhileAProgramChangesTheSheet() {
        shownSheet shown;
        shown.run("FOR i=1 TO 20 DO s.SHOW(STRING(i)); ENDDO;");
        const QList<QWidget*> windows = sheetWindows();
        QCOMPARE(windows.size(), 20);
        const localTurn::Pause pause;
        const std::unique_ptr<QThread> program(QThread::create([&] {
            const localTurn::Hold turn;
            shown.run("FOR i=1 TO 50000 DO s.CELLTEXTSET(i,1,\"x\"); ENDDO; s = 1;");
        }));
        program->start();
        for (QWidget* const window : windows) {
            window->close();
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(program->isFinished());
        shown.widget->grab();
    }

    void theSamplesShowTheirReports_data() {
        QTest::addColumn<QString>("title");
        QTest::newRow("sheetPriceList") << "Прайс-лист [розница]";
        QTest::newRow("sheetStock") << "Остатки [по складам]";
        QTest::newRow("sheetInvoice") << "Накладная [000042]";
    }
    void theSamplesShowTheirReports() {
        QFETCH(QString, title);
        const QString name = QTest::currentDataTag();
        QFile file(qEnvironmentVariable("KORVO_SOURCE") + "/prgTest/" + name + ".prg");
        QVERIFY(file.open(QIODevice::ReadOnly));
        shownSheet shown;
        QCOMPARE(shown.run(QString::fromUtf8(file.readAll())), int(localErrorTypeOK));
        QCOMPARE(sheetWindows().size(), 1);
        QWidget* const window = sheetWindows().first();
        QCOMPARE(window->windowTitle(), title);
        auto* const widget = window->findChild<localSxl*>();
        widget->currentSet({6, 2});
        QTest::keyClick(widget, Qt::Key_Return);
        QVERIFY(saveScreenshot(*window, name));
    }

    // For a person to look at.
    void aReportLooksGood() {
        shownSheet shown(
            "s.COLUMNWIDTHSET(1,220); s.COLUMNWIDTHSET(2,70); s.COLUMNWIDTHSET(3,110); "
            "s.CELLTEXTSET(1,1,\"Прайс-лист на 21 ноября\"); s.CELLFONTSET(1,1,\"\",14,1); "
            "s.CELLCOLORSET(1,1,\"white\"); "
            "FOR c=1 TO 3 DO s.CELLFONTSET(3,c,\"\",-1,1); s.CELLCOLORSET(3,c,0,14870508); "
            "s.CELLALIGMENTSET(3,c,4); ENDDO; s.CELLTEXTSET(3,1,\"Товар\"); "
            "s.CELLTEXTSET(3,2,\"Кол-во\"); s.CELLTEXTSET(3,3,\"Цена\"); "
            "FOR i=4 TO 14 DO s.CELLTEXTSET(i,1,\"Электрочайник, модель \"+STRING(i)); "
            "s.CELLTEXTSET(i,2,STRING(i*3)); s.CELLTEXTSET(i,3,FORMAT(i*1234.5,\"Ч12.2\")); "
            "s.CELLALIGMENTSET(i,2,4); s.CELLALIGMENTSET(i,3,2); ENDDO; "
            "s.CELLCOLORSET(6,3,0,\"yellow\",0,\"red\"); s.CELLFONTSET(8,1,\"\",-1,4); "
            "s.CELLFONTSET(9,1,\"\",-1,2);",
            {720, 420});
        shown.widget->currentSet({7, 2});
        QVERIFY(saveScreenshot(*shown.widget, QStringLiteral("sheet")));
        shown.widget->zoomSet(160);
        QVERIFY(saveScreenshot(*shown.widget, QStringLiteral("sheetZoomed")));
        shown.widget->zoomSet(100);
        shown.widget->currentSet({1234567, 5});
        QVERIFY(saveScreenshot(*shown.widget, QStringLiteral("sheetFarDown")));
    }

private:
    localVclHost host_;
};

QTEST_MAIN(sheet)
#include "sheet.moc"
