// Running forms: what FORMOPEN makes of a file, module and events, formulas, buttons.
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QSizeGrip>
#include <QToolBar>

#include "formTest.h"
#include "localVCL/grid/localVclTestWidgetValueTable200617.h"
#include "localVCL/picture/localVclImage.h"
#include "localVCL/picture/localVclPicture.h"

class formRun : public formTest {
    Q_OBJECT

private slots:
    void filesAreChecked() {
        QVERIFY(!run("FORMOPEN();"));
        QCOMPARE(status_, 31);
        QVERIFY(!run("FORMOPEN(\"a\", 1, 2);"));
        QCOMPARE(status_, 31);
        QVERIFY(!run("FORMOPEN(1);"));
        QCOMPARE(status_, 33);
        QVERIFY(!run("FORMOPEN(\"none.xml\");"));
        QCOMPARE(status_, 23);
        QVERIFY(lastForm() == nullptr);
    }

    void aFormWithoutModuleOpens() {
        write("form.xml", {});
        QVERIFY(run("? FORMOPEN(\" form.xml \", 5);"));
        QCOMPARE(lines().filter("ыполн"), QStringList({"Начинаю выполнять!!!", "Выполнил!!!"}));
        QVERIFY(lines().contains("1"));
        localForm* const form = lastForm();
        QVERIFY(form != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(form->window()));
        QCOMPARE(form->size(), QSize(400, 300));
        QCOMPARE(form->window()->windowTitle(), "classImplementationMethodFunction");
        QVERIFY(form->isModified());
        QVERIFY(form->context()->creator() == form);
        auto* const bar = form->window()->findChild<QToolBar*>("form");
        QCOMPARE(bar->actions().size(), 2);
        QCOMPARE(bar->actions()[0]->text(), "&userSettingsSave");
        QCOMPARE(bar->actions()[0]->statusTip(), "userSettingsSavegrid");
        QCOMPARE(bar->actions()[1]->text(), "&userSettingsReadAct");
        QCOMPARE(bar->actions()[1]->statusTip(), "userSettingsReadActgrid");
        QCOMPARE(bar->actions()[0]->icon().availableSizes(), QList<QSize>({QSize(16, 16)}));
    }

    void aBrokenFileOpensEmpty() {
        testFiles::write("form.xml", "<FormMd><Form");
        QVERIFY(run("FORMOPEN(\"form.xml\");"));
        QCOMPARE(lastForm()->size(), QSize(100, 100));
        QVERIFY(lastForm()->findChildren<Element*>().isEmpty());
    }

    void aFormWithoutSizeTakesHalfTheDesktop() {
        testFiles::write("form.xml", "<FormMd><Form w=\"0\" h=\"50\"/></FormMd>");
        QVERIFY(run("FORMOPEN(\"form.xml\");"));
        QCOMPARE(lastForm()->size(), lastForm()->screen()->availableSize() / 2);
    }

    void aFailingModuleDoesNotStopTheOpening() {
        QVERIFY(open(label(0, "2*21"), "nothing(;") != nullptr);
        QVERIFY(lines().contains("НЕ Выполнил!!!"));
        QCOMPARE(shown(lastForm()), "42");
    }

    void parametersAreVariablesOfTheModule() {
        write("form.xml", label(0, "цена"), "цена = Цена * 2; ? Имя;");
        QVERIFY(run("l = CREATEOBJECT(\"VALUELIST\"); l.VALUEADD(21, \"Цена\"); "
                    "l.VALUEADD(\"Гвоздь\", \"имя\"); FORMOPEN(\"form.xml\", l);"));
        QCOMPARE(shown(lastForm()), "42");
        QVERIFY(lines().contains("Цена = 21"));
        QVERIFY(lines().contains("Гвоздь"));
    }

    void eventsAreCalledOnce() {
        const QString russian =
            "ФУНКЦИЯ СобытиеФормаПриОткрытии()\n? \"russian\";\nВОЗВРАТ 1;\nКОНЕЦФУНКЦИИ;\n";
        const QString english =
            "FUNCTION EventFormAfterCreate()\n? \"english\";\nRETURN 1;\nENDFUNCTION;\n";
        QVERIFY(open({}, english) != nullptr);
        QCOMPARE(lines().filter("english").size(), 1);
        QVERIFY(open({}, english + russian) != nullptr);
        QCOMPARE(lines().filter("english").size(), 1);
        QCOMPARE(lines().filter("russian").size(), 1);
    }

    // A failing event is no matter of the program that opens the form.
    void aFailingEventIsNotReported() {
        QVERIFY(open({}, "FUNCTION EventFormAfterCreate()\nRETURN 1/0;\nENDFUNCTION;\n") !=
                nullptr);
    }

    void everyKindStandsAtItsPlace() {
        localForm* const form = open(label(0, {}, "Надпись") + button(1, {}) +
                                     widget("Frame", place(2) + "Caption=\"Рамка\"") +
                                     widget("Image", place(3)) + edit(4, "поле"));
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(element(form, i)->geometry(), QRect(5, 5 + 30 * i, 190, 35));
            QCOMPARE(element(form, i)->carried()->geometry(), QRect(5, 5, 180, 25));
            QVERIFY(element(form, i)->findChildren<QSizeGrip*>().isEmpty());
        }
        QCOMPARE(field(form)->geometry(), QRect(10, 130, 180, 25));
        QCOMPARE(shown(form), "Надпись");
        QVERIFY(saveScreenshot(*form->window(), "formKinds"));
    }

    void fontsAndColoursAreThoseOfTheFile() {
        const QString look = "Caption=\"c\" fontFamily=\"Courier\" fontPointSizeF=\"14\" "
                             "fontBold=\"1\" fontItalic=\"1\" fontColor=\"#102030\"";
        localForm* const form = open(widget("Label", place(0) + look) +
                                     widget("Button", place(1) + look) + widget("Label", place(2)));
        for (int i = 0; i < 2; ++i) {
            const QWidget* const carried = element(form, i)->carried();
            QCOMPARE(carried->font().family(), "Courier");
            QCOMPARE(carried->font().pointSizeF(), 14.0);
            QVERIFY(carried->font().bold() && carried->font().italic());
            QCOMPARE(carried->palette().color(carried->foregroundRole()), QColor("#102030"));
        }
        QCOMPARE(element(form, 2)->carried()->palette().color(QPalette::WindowText),
                 QPalette().color(QPalette::WindowText));
    }

    void labelsFollowTheirFormulas() {
        localForm* const form = open(label(0, " a + 1 ") + label(1, "1/0", "kept") +
                                         label(2, "unknown") + button(3, "a = 41;"),
                                     "a = 1;");
        QCOMPARE(shown(form), "2");
        QCOMPARE(shown(form, 1), "kept");
        QCOMPARE(shown(form, 2), "");
        press(form, 3);
        QCOMPARE(shown(form), "42");
    }

    void picturesFollowTheirFormulas() {
        QPixmap red(4, 4);
        red.fill(Qt::red);
        localForm* const form = open(widget("Image", place(0) + "Formula=\"p\"") +
                                         button(1, "p = \"" + localVclPixmapToBase64(red) + "\";"),
                                     "p = \"\";");
        auto* const image = qobject_cast<localVclImage*>(element(form)->carried());
        QVERIFY(image->pixmap().isNull());
        press(form, 1);
        QCOMPARE(image->pixmap().toImage().pixelColor(1, 1), QColor(Qt::red));
    }

    void whatAProgramChangesShowsAtTheNextPaint() {
        localForm* const form =
            open(button(2, {}) + label(0, "a") + edit(1, "a"), "a = \"before\";");
        QCOMPARE(shown(form, 1), "before");
        QTest::qWait(50);
        set(form, "a", u"after");
        form->update();
        QTRY_COMPARE(shown(form, 1), "after");
        QTRY_COMPARE(line(form)->text(), "after");
    }

    // A formula that gives something else each time is not painted without end.
    void aFormulaThatNeverStaysIsShownNowAndThen() {
        localForm* const form =
            open(label(0, "count()"), "n = 0;\nFUNCTION count()\nn = n + 1;\nRETURN n;\n"
                                      "ENDFUNCTION;\n");
        QTest::qWait(300);
        QVERIFY2(shown(form).toInt() < 20, qPrintable(shown(form)));
    }

    void buttonsRunStatements() {
        localForm* const form =
            open(button(0, " a = a + 1; b = a * 2; ") + label(1, "b"), "a = 1; b = 0;");
        QSignalSpy changed(element(form), &Element::varValueChanged);
        press(form);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(value(form, "b"), "4");
        QCOMPARE(shown(form, 1), "4");
        QCOMPARE(static_cast<QPushButton*>(element(form)->carried())->text(), "press");
    }
    void aButtonThatFailsSaysSo_data() {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << ""
                              << "press";
        QTest::newRow("blanks") << " \n"
                                << "press";
        QTest::newRow("syntax") << "a = ;"
                                << "Error!!!";
        QTest::newRow("run") << "a = 1/0;"
                             << "Error!!!";
        QTest::newRow("unknown") << "nothing();"
                                 << "Error!!!";
        QTest::newRow("terminator") << "ENDIF;"
                                    << "Error!!!";
        QTest::newRow("return") << "RETURN 5;"
                                << "press";
    }
    void aButtonThatFailsSaysSo() {
        QFETCH(QString, formula);
        localForm* const form = open(button(0, formula));
        QSignalSpy changed(element(form), &Element::varValueChanged);
        press(form);
        QTEST(static_cast<QPushButton*>(element(form)->carried())->text(), "text");
        QCOMPARE(changed.size(), 1);
    }

    void methodsOfTheClassArePlainNames() {
        localForm* const form =
            open(button(0, "a = 2; r = REFRESH(); t = TOSTRING(); s = СТРОКА(5); ОБНОВИТЬ();") +
                     label(1, "a") + button(2, "REFRESH(1);"),
                 "a = 1;");
        press(form);
        QCOMPARE(shown(form, 1), "2");
        QCOMPARE(value(form, "r"), "0");
        QCOMPARE(value(form, "s"), "5");
        QCOMPARE(value(form, "t"),
                 "Форма adr [" + QString::fromStdU16String(addressText(form)) + "] ");
        press(form, 2);
        QCOMPARE(static_cast<QPushButton*>(element(form, 2)->carried())->text(), "Error!!!");
    }

    void theClassHasItsStatuses() {
        QVERIFY(open({}) != nullptr);
        const localTurn::Hold turn;
        localClassDeclaration& declaration = *localForm::classDeclaration();
        QCOMPARE(localVclQString(declaration.summary()), "ФОРМА (FORM)  - класс Форма ");
        const auto call = [&](void* object, std::u16string_view name) {
            int status = localErrorTypeOK;
            localSlot result;
            const localArguments none;
            declaration.methodExec(status, localContextUTF8::globalContext, object, name, &none,
                                   result.asResult());
            return status;
        };
        void* const form = lastForm();
        QCOMPARE(call(form, u"REFRESH"), 54);
        QCOMPARE(call(form, u"СТРОКА"), 54);
        QCOMPARE(call(form, u"OTHER"), 27);
        QCOMPARE(call(localContextUTF8::globalContext, u"REFRESH"), 16);
        QVERIFY(lines().contains("Can not determine the FORM object!"));
        QCOMPARE(call(nullptr, u"REFRESH"), 29);
        QVERIFY(!run("CREATEOBJECT(\"FORM\");"));
        QCOMPARE(status_, 11);
        QVERIFY(lines().contains(
            " localForm::classImplementationMethodFunction() CONSTRUNCTOR not AVAILABLE!"));
    }

    void theMarkLandsOnTheWindowThatIsActive() {
        QMainWindow main;
        auto* const area = new QMdiArea;
        area->setObjectName("localMdiArea");
        main.setCentralWidget(area);
        QMdiSubWindow* const other = area->addSubWindow(new QLabel("other"));
        other->setWindowTitle("other");
        main.resize(600, 500);
        main.show();
        QVERIFY(QTest::qWaitForWindowActive(&main));
        write("form.xml", edit(0, "a"));
        QVERIFY(run("FORMOPEN(\"form.xml\");"));
        QCOMPARE(other->windowTitle(), "[!] other");
        QMdiSubWindow* const own = area->subWindowList().last();
        QTest::keyClicks(line(lastForm()), "x");
        QTest::keyClick(line(lastForm()), Qt::Key_Return);
        QCOMPARE(own->windowTitle(), "classImplementationMethodFunction");
        QVERIFY(saveScreenshot(main, "formInMdiArea"));
        host_.answers = {Button::yes};
        own->close();
        QVERIFY(localForm::opened().empty());
    }

    void settingsAreADialogThatDoesNothing() {
        localForm* const form = open({});
        for (QAction* const action : form->windowActions()) {
            const dialogAnswer answer([](QWidget* dialog) {
                QCOMPARE(dialog->findChild<QLabel*>()->text(), "Это диалог сохранения настроек");
                static_cast<QDialog*>(dialog)->accept();
            });
            action->trigger();
            QVERIFY(answer.given());
        }
        QVERIFY(output_->text().contains("func: userSettingsSaveSlot"));
        QVERIFY(output_->text().contains("func: userSettingsReadSlot"));
    }

    // The order of the elements is that of the keyboard; nothing needs the mouse.
    void tabFollowsTheElements() {
        localForm* const form =
            open(edit(3, "a") + widget("Frame", place(4)) + button(1, "b = \"pressed\";") +
                 edit(0, "b") + edit(2, "n", "Число"));
        const auto focus = [] { return QApplication::focusWidget(); };
        QCOMPARE(focus(), line(form, 0));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), element(form, 1)->carried());
        QTest::keyClick(focus(), Qt::Key_Space);
        QCOMPARE(value(form, "b"), "pressed");
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), line(form, 1));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), line(form, 2));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), line(form, 0));
        QTest::keyClick(focus(), Qt::Key_Backtab);
        QCOMPARE(focus(), line(form, 2));
        form->setFocus();
        QCOMPARE(focus(), line(form, 0));
    }

    // A table shows the value table of its variable, whichever that is now.
    void tablesShowValueTables() {
        const QString layout = "{'grid':{'columns':[{'id':'ТОВАР','caption':'Товар','width':120},"
                               "{'formula':'Цена*2','caption':'Дважды','width':80}],"
                               "'dataSource':{'varName':'т'}}}";
        localForm* const form =
            open(widget("Table", "x=\"10\" y=\"10\" w=\"300\" h=\"120\" details=\"" +
                                     QString(layout).replace('\'', '"').toHtmlEscaped() + "\"") +
                     button(5, "fill(\"Болт\");"),
                 "т = 0;\nFUNCTION fill(name)\nт = CREATEOBJECT(\"VALUETABLE\");\n"
                 "т.COLUMNADD(\"Товар\"); т.COLUMNADD(\"Цена\");\n"
                 "т.ROWADD(); т.VALUESET(1, \"Товар\", name); т.VALUESET(1, \"Цена\", 21);\n"
                 "RETURN 1;\nENDFUNCTION;\n"
                 "fill(\"Гвоздь\");");
        QVERIFY(form != nullptr);
        auto* const grid =
            qobject_cast<localVclTestWidgetValueTable200617*>(element(form)->carried());
        QVERIFY(grid != nullptr);
        QCOMPARE(grid->geometry(), QRect(5, 5, 300, 120));
        QCOMPARE(grid->columnsCount(), std::size_t{2});
        const auto cell = [&](unsigned column) {
            const localTurn::Hold turn;
            return grid->cellText(1, column);
        };
        QCOMPARE(cell(1), "Гвоздь");
        QCOMPARE(cell(2), "42");
        press(form, 1);
        QCOMPARE(cell(1), "Болт");
        QTest::qWait(50);
        QVERIFY(saveScreenshot(*form->window(), "formTable"));
        QSignalSpy changed(element(form), &Element::varValueChanged);
        QTest::mouseClick(grid, Qt::LeftButton, {}, grid->cellRectangle(1, 1).center());
        QVERIFY(changed.size() > 0);
        QTest::qWait(100);
        QVERIFY2(changed.size() < 10, qPrintable(QString::number(changed.size())));
        QCOMPARE(element(form)->description().details,
                 QString(layout).replace('\'', '"').toStdU16String());
    }
    void aTableWithoutLayoutOrVariable() {
        localForm* const form =
            open(widget("Table", place(0) + "details=\"broken\"") + widget("Table", place(3)) +
                 widget("Table", place(5) + "details=\"{&quot;grid&quot;:{&quot;dataSource&quot;:"
                                            "{&quot;varName&quot;:&quot;made&quot;}}}\""));
        QVERIFY(form != nullptr);
        QCOMPARE(element(form, 0)->findChildren<QPushButton*>().value(0)->text(), "Column1");
        QCOMPARE(element(form, 1)->findChildren<QPushButton*>().value(0)->text(), "Column1");
        QVERIFY(value(form, "made").startsWith("Таблица значений"));
    }

    // Elements lie close to each other; the space around one takes no clicks from its neighbour.
    void neighboursGetTheirClicks() {
        localForm* const form =
            open(widget("Button", "x=\"10\" y=\"10\" w=\"50\" h=\"20\" Formula=\"a=1;\"") +
                     widget("Label", "x=\"61\" y=\"10\" w=\"50\" h=\"20\""),
                 "a = 0;");
        QTest::mouseClick(form->window()->windowHandle(), Qt::LeftButton, {},
                          form->mapTo(form->window(), QPoint(58, 20)));
        QCOMPARE(value(form, "a"), "1");
    }
};

QTEST_MAIN(formRun)
#include "formRun.moc"
