// What the tests of forms share: form files, forms opened by a program, boxes answered, lines
// written.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <clocale>
#include <memory>
#include <optional>

#include "localForm/edit/localVclWidgetEdit.h"
#include "localForm/element/localFormLayoutDesignerElementWidget.h"
#include "localForm/run/localForm.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localMainWindow.h"
#include "localVCL/window/localVclTurn.h"
#include "madeOf.h"
#include "screenshot.h"
#include "support/recordingHost.h"
#include "testFiles.h"
#include "windowTest.h"

// As in the program, nobody is in the language while events are served: what enters it here takes
// the turn.
class formTest : public QObject {
    Q_OBJECT

protected:
    using Element = localFormLayoutDesignerElementWidget;
    using Button = localReport::Button;

    boxRecordingHost<localVclHost> host_;
    std::optional<outputCapture> output_;
    int status_ = localErrorTypeOK;

    // A form file of 400 by 300 pixels.
    static void write(const QString& name, const QString& widgets, const QString& module = {}) {
        testFiles::write(name, ("<FormMd><Form w=\"400\" h=\"300\"><Widgets>" + widgets +
                                "</Widgets></Form><Module>" + module.toHtmlEscaped() +
                                "</Module></FormMd>")
                                   .toUtf8());
    }
    static QString widget(const QString& kind, const QString& attributes) {
        return "<Widget WidgetType=\"" + kind + "\" " + attributes + "/>";
    }
    static QString place(int row, int width = 180) {
        return QString(" x=\"10\" y=\"%1\" w=\"%2\" h=\"25\" ").arg(10 + 30 * row).arg(width);
    }
    static QString label(int row, const QString& formula, const QString& caption = {}) {
        return widget("Label", place(row) + "Caption=\"" + caption + "\" Formula=\"" +
                                   formula.toHtmlEscaped() + "\"");
    }
    static QString button(int row, const QString& formula) {
        return widget("Button",
                      place(row) + "Caption=\"press\" Formula=\"" + formula.toHtmlEscaped() + "\"");
    }
    static QString edit(int row, const QString& name, const QString& type = "Строка") {
        return widget("Edit", place(row) + "Identifier=\"" + name + "\" Type=\"" + type + "\"");
    }

    // Runs a program in the global context.
    bool run(const QString& program) {
        const localTurn::Hold turn;
        status_ = localErrorTypeOK;
        return textExec(status_, program.toStdU16String(), localContextUTF8::globalContext);
    }
    // The form that the program has opened last; null when there is none.
    static localForm* lastForm() {
        return localForm::opened().empty() ? nullptr : localForm::opened().back();
    }
    localForm* open(const QString& widgets, const QString& module = {}) {
        write("form.xml", widgets, module);
        if (!run("FORMOPEN(\"form.xml\");")) {
            return nullptr;
        }
        return QTest::qWaitForWindowActive(lastForm()->window()) ? lastForm() : nullptr;
    }

    static QString value(const localForm* form, const QString& name) {
        const localTurn::Hold turn;
        return QString::fromStdU16String(form->context()->varToString(name.toStdU16String()));
    }
    static void set(const localForm* form, const QString& name, localText text) {
        const localTurn::Hold turn;
        form->context()->varFind(name.toStdU16String())->value->setVal(std::move(text));
    }
    static Element* element(const localForm* form, int number = 0) {
        return form->elements().at(std::size_t(number));
    }
    static QString shown(const localForm* form, int number = 0) {
        return static_cast<QLabel*>(element(form, number)->carried())->text();
    }
    static void press(const localForm* form, int number = 0) {
        QTest::mouseClick(element(form, number)->carried(), Qt::LeftButton);
    }
    static localVclWidgetEdit* field(const localForm* form, int number = 0) {
        return form->edits().at(std::size_t(number));
    }
    static QLineEdit* line(const localForm* form, int number = 0) {
        return static_cast<QLineEdit*>(field(form, number)->editor());
    }
    // Lines that were written, without their tails.
    QStringList lines() const {
        QStringList all = output_->text().split('\n');
        for (QString& text : all) {
            text = text.left(text.indexOf(" func: "));
        }
        return all;
    }

private:
    QTemporaryDir folder_;
    std::optional<localTurn::Pause> pause_;
    std::unique_ptr<localContextUTF8> global_;

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        addWhatKorvoIsMadeOf();
        localVclTurnInstall();
        QVERIFY(QDir::setCurrent(folder_.path()));
        int status = localErrorTypeOK;
        global_ = localContextUTF8::createGlobal(status);
    }
    void cleanupTestCase() { global_.reset(); }

protected slots:
    void init() {
        pause_.emplace();
        host_.calls.clear();
        host_.reports.clear();
        host_.answers.clear();
        output_.emplace();
    }
    // Every value of a test's forms goes with them.
    void cleanup() {
        const QWidgetList all = QApplication::topLevelWidgets();
        for (const QPointer<QWidget>& window : QList<QPointer<QWidget>>(all.begin(), all.end())) {
            // Dialogs go with their form.
            if (qobject_cast<localMainWindow*>(window.data()) != nullptr) {
                delete window;
            }
        }
        QCOMPARE(localForm::opened().size(), std::size_t{0});
        QVERIFY(QApplication::overrideCursor() == nullptr);
        output_.reset();
        pause_.reset();
    }
};
