// The window operation, in a window of its own and in an MDI area; the picture widget.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localVCL/picture/localVclImage.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/window/localMainWindow.h"
#include "localVCL/window/localVclWindow.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

QPixmap filled(int width, int height, Qt::GlobalColor color) {
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

// A widget with two actions that refuses to close until it is told otherwise.
class contentForTest : public QWidget, public localVclWindowContent {
public:
    contentForTest() {
        const QPixmap icons = localVclPixmap(QStringLiteral("204.bmp"));
        read = new QAction(icons.copy(0, 0, 16, 16), QStringLiteral("read"), this);
        save = new QAction(icons.copy(16, 0, 16, 16), QStringLiteral("save"), this);
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(new QLabel(QStringLiteral("Наименование товара, ёмкость")));
        layout->addWidget(new QLineEdit(QStringLiteral("Широкая электрификация")));
        layout->addStretch();
        resize(300, 200);
    }
    QList<QAction*> windowActions() override { return {read, save}; }
    bool windowMayClose() override {
        ++asked;
        return mayClose;
    }

    QAction* read;
    QAction* save;
    bool mayClose = false;
    int asked = 0;
};

// A main window with an MDI area under the name by which it is found.
struct mdiWindow : QMainWindow {
    mdiWindow() : area(new QMdiArea) {
        area->setObjectName(QStringLiteral("localMdiArea"));
        setCentralWidget(area);
        resize(900, 600);
        show();
    }
    QMdiArea* area;
};

localVclWindowParameters titled(const QString& title) {
    localVclWindowParameters parameters;
    parameters.title = title;
    return parameters;
}

QToolBar* toolBarOf(QWidget* shown) {
    return shown->findChild<QToolBar*>(QStringLiteral("form"));
}

}  // namespace

class vclWindow : public QObject {
    Q_OBJECT

private slots:
    void cleanup() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            delete window;
        }
    }

    void parametersComeFromAList() {
        localValueList list;
        list.valueAppend(localText(u"Заголовок"), u"title");
        list.valueAppend(1.0, u"modal");
        list.valueAppend(localText(u"AAAA"), u"iconAsBase64");
        const localVclWindowParameters parameters = localVclWindowParametersOf(list);
        QCOMPARE(parameters.title, QStringLiteral("Заголовок"));
        QVERIFY(parameters.modal);
        QCOMPARE(parameters.iconAsBase64, QStringLiteral("AAAA"));
    }

    void missingAndWrongParametersAreDefaults() {
        localValueList list;
        list.valueAppend(7.0, u"title");
        list.valueAppend(localText(u"1"), u"modal");
        localVclWindowParameters parameters = localVclWindowParametersOf(list);
        QVERIFY(parameters.title.isEmpty());
        QVERIFY(!parameters.modal);
        QVERIFY(parameters.iconAsBase64.isEmpty());
        list.clear();
        list.valueAppend(0.0, u"modal");
        QVERIFY(!localVclWindowParametersOf(list).modal);
        list.clear();
        list.valueAppend(-1.0, u"modal");
        QVERIFY(!localVclWindowParametersOf(list).modal);
    }

    void aWidgetGetsAMainWindowOfItsSize() {
        auto* const text = new QPlainTextEdit(QStringLiteral("Текст"));
        text->resize(400, 250);
        QWidget* const shown = localVclWindowShow(text, titled(QStringLiteral("Окно")));
        auto* const window = qobject_cast<localMainWindow*>(shown);
        QVERIFY(window != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->windowTitle(), QStringLiteral("Окно"));
        QCOMPARE(window->centralWidget(), text);
        QCOMPARE(text->size(), QSize(400, 250));
        QCOMPARE(window->windowModality(), Qt::NonModal);
        QVERIFY(!window->windowIcon().isNull());
        QToolBar* const bar = toolBarOf(window);
        QVERIFY(bar != nullptr);
        QCOMPARE(bar->windowTitle(), QStringLiteral("form"));
        QCOMPARE(bar->height(), 16);
        QCOMPARE(bar->width(), 400);
        QCOMPARE(bar->iconSize(), QSize(16, 16));
        QVERIFY(shown->testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(text->testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(bar->testAttribute(Qt::WA_DeleteOnClose));
        const QPointer<QWidget> guard(text);
        window->close();
        QTRY_VERIFY(guard.isNull());
    }

    // Forms and sheets are objects of the language as well, which may be destroyed while they are
    // shown.
    void contentMayGoBeforeItsWindow() {
        auto* const content = new contentForTest;
        const QPointer<QWidget> alone = localVclWindowShow(content, titled({}));
        delete content;
        QVERIFY(alone->close());
        mdiWindow main;
        auto* const inner = new contentForTest;
        const QPointer<QWidget> sub = localVclWindowShow(inner, titled({}));
        delete inner;
        QVERIFY(sub->close());
        QTRY_VERIFY(alone.isNull() && sub.isNull());
    }

    void aModalWindowIsModal() {
        localVclWindowParameters parameters;
        parameters.modal = true;
        QWidget* const shown = localVclWindowShow(new QWidget, parameters);
        QVERIFY(shown->isModal());
    }

    void theIconComesFromTheParameters() {
        localVclWindowParameters parameters;
        parameters.iconAsBase64 = localVclPixmapToBase64(filled(16, 16, Qt::red));
        QWidget* const shown = localVclWindowShow(new QWidget, parameters);
        QCOMPARE(shown->windowIcon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
    }

    void aBrokenIconLeavesTheProgramsOwn() {
        localVclWindowParameters parameters;
        parameters.iconAsBase64 = QStringLiteral("это не картинка");
        QWidget* const shown = localVclWindowShow(new QWidget, parameters);
        QCOMPARE(shown->windowIcon().pixmap(32, 32).toImage(),
                 localVclProgramIcon().pixmap(32, 32).toImage());
    }

    void contentPutsItsActionsIntoTheToolBar() {
        auto* const content = new contentForTest;
        content->mayClose = true;
        QWidget* const shown = localVclWindowShow(content, titled(QStringLiteral("Форма")));
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        QToolBar* const bar = toolBarOf(shown);
        QCOMPARE(bar->actions(), QList<QAction*>({content->read, content->save}));
        for (QWidget* const button : bar->findChildren<QToolButton*>()) {
            if (button->isVisible()) {
                QVERIFY(button->height() <= 16);
            }
        }
        QVERIFY(saveScreenshot(*shown, QStringLiteral("vclMainWindow")));
    }

    void contentMayRefuseToClose() {
        auto* const content = new contentForTest;
        const QPointer<QWidget> shown = localVclWindowShow(content, titled({}));
        QVERIFY(!shown->close());
        QCOMPARE(content->asked, 1);
        QVERIFY(shown->isVisible());
        content->mayClose = true;
        QVERIFY(shown->close());
        QTRY_VERIFY(shown.isNull());
    }

    void withoutAnMdiAreaLookupsGiveNothing() {
        QVERIFY(localMdiAreaFind() == nullptr);
        QVERIFY(localMessagePanelFind() == nullptr);
    }

    void lookupsFindByName() {
        mdiWindow main;
        QCOMPARE(localMdiAreaFind(), main.area);
        auto* const panel = new QWidget;
        panel->setObjectName(QStringLiteral("localMessagePanel"));
        QCOMPARE(localMessagePanelFind(), panel);
        delete panel;
    }

    void aWidgetGetsASubWindow() {
        mdiWindow main;
        auto* const content = new contentForTest;
        QWidget* const shown = localVclWindowShow(content, titled(QStringLiteral("Форма")));
        auto* const window = qobject_cast<QMdiSubWindow*>(shown);
        QVERIFY(window != nullptr);
        QCOMPARE(main.area->subWindowList(), QList<QMdiSubWindow*>({window}));
        // And the height of the tool bar, which holds actions here.
        QCOMPARE(window->widget()->size(), QSize(311, 211 + 16));
        QCOMPARE(window->windowTitle(), QStringLiteral("Форма"));
        QCOMPARE(window->focusPolicy(), Qt::StrongFocus);
        auto* const scroll = window->findChild<QScrollArea*>();
        QVERIFY(scroll != nullptr);
        QCOMPARE(scroll->widget(), content);
        QCOMPARE(content->size(), QSize(300, 200));
        QCOMPARE(scroll->parentWidget(), window->widget());
        QCOMPARE(window->widget()->layout()->contentsMargins(), QMargins());
        QCOMPARE(toolBarOf(window)->actions().size(), 2);
        QTest::qWait(50);
        QVERIFY(saveScreenshot(main, QStringLiteral("vclSubWindow")));

        QVERIFY(!window->close());
        QCOMPARE(content->asked, 1);
        content->mayClose = true;
        const QPointer<QWidget> guard(content);
        QVERIFY(window->close());
        QTRY_VERIFY(guard.isNull());
    }

    void aSubWindowScrollsOnlyWhatIsCut() {
        mdiWindow main;
        auto* const content = new QWidget;
        content->resize(300, 200);
        auto* const window = qobject_cast<QMdiSubWindow*>(
            localVclWindowShow(content, titled(QStringLiteral("Таблица"))));
        QCOMPARE(window->widget()->size(), QSize(311, 211));
        QCOMPARE(content->size(), QSize(300, 200));
        QVERIFY(!toolBarOf(window)->isVisible());
        auto* scroll = window->findChild<QScrollArea*>();
        const auto bars = [&] {
            return std::pair(scroll->horizontalScrollBar()->isVisible(),
                             scroll->verticalScrollBar()->isVisible());
        };
        QTRY_VERIFY(bars() == std::pair(false, false));
        QVERIFY(saveScreenshot(main, QStringLiteral("vclSubWindowPlain")));
        window->resize(window->width() - 40, window->height() + 40);
        QTRY_VERIFY(bars() == std::pair(true, false));

        auto* const withActions = new contentForTest;
        QWidget* const form = localVclWindowShow(withActions, titled(QStringLiteral("Форма")));
        scroll = form->findChild<QScrollArea*>();
        QTRY_VERIFY(bars() == std::pair(false, false));
        withActions->mayClose = true;
    }

    void aSubWindowStandsWhereTheFocusWas() {
        mdiWindow main;
        QVERIFY(QTest::qWaitForWindowActive(&main));
        auto* const first = new QWidget;
        auto* const field = new QLineEdit(first);
        field->move(40, 70);
        first->resize(300, 200);
        QWidget* const shown = localVclWindowShow(first, titled({}));
        auto* const firstWindow = qobject_cast<QMdiSubWindow*>(shown);
        firstWindow->move(100, 60);
        field->setFocus();
        QCOMPARE(main.area->activeSubWindow(), firstWindow);
        QCOMPARE(firstWindow->focusWidget(), field);
        const QPoint wanted = main.area->viewport()->mapFromGlobal(field->mapToGlobal(QPoint()));
        QWidget* const second = localVclWindowShow(new QWidget, titled({}));
        QCOMPARE(second->pos(), wanted);
    }

    void pictureTextsGoThereAndBack() {
        const QPixmap pixmap = filled(5, 3, Qt::darkCyan);
        const QString text = localVclPixmapToBase64(pixmap);
        QVERIFY(text.startsWith(QStringLiteral("iVBORw0KGgo")));
        QCOMPARE(localVclPixmapFromBase64(text).toImage(), pixmap.toImage());
        QVERIFY(localVclPixmapToBase64(QPixmap()).isEmpty());
        QVERIFY(localVclPixmapFromBase64({}).isNull());
        QVERIFY(localVclPixmapFromBase64(QStringLiteral("ёж")).isNull());
        QVERIFY(localVclPixmapFromBase64(text.left(text.size() / 2)).isNull());
    }

    void aMissingPictureIsNull() {
        QVERIFY(localVclPixmap(QStringLiteral("missing.png")).isNull());
        QCOMPARE(localVclPixmap(QStringLiteral("logoKV_3232.png")).size(), QSize(32, 32));
        QCOMPARE(localVclPixmap(QStringLiteral("204.bmp")).size(), QSize(32, 16));
    }

    void imageDrawsAFrameAndThePictureInItsSize() {
        localVclImage image;
        image.resize(60, 40);
        const QImage empty = image.grab().toImage();
        QCOMPARE(empty.pixelColor(0, 0), image.palette().color(QPalette::WindowText));
        QCOMPARE(empty.pixelColor(59, 39), image.palette().color(QPalette::WindowText));
        QCOMPARE(empty.pixelColor(30, 20), image.palette().color(QPalette::Window));
        QPixmap halves = filled(2, 1, Qt::blue);
        QPainter(&halves).fillRect(1, 0, 1, 1, Qt::yellow);
        image.pictureAsBase64Set(localVclPixmapToBase64(halves));
        const QImage drawn = image.grab().toImage();
        QCOMPARE(drawn.pixelColor(5, 20), QColor(Qt::blue));
        QCOMPARE(drawn.pixelColor(55, 20), QColor(Qt::yellow));
        image.pictureAsBase64Set(QStringLiteral("broken"));
        QCOMPARE(image.grab().toImage(), empty);
    }
};

QTEST_MAIN(vclWindow)
#include "vclWindow.moc"
