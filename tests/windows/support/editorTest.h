// What the tests of the editor share: a captured output stream, answers to dialogs.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QTextBlock>

#include <clocale>
#include <functional>

#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/window/localMainWindow.h"
#include "support/recordingHost.h"
#include "testFiles.h"
#include "windowTest.h"

namespace editorTest {

// Answers the next modal dialog, which must be of that kind.
template <typename Dialog>
class answer : public dialogAnswer {
public:
    explicit answer(const std::function<void(Dialog&)>& act)
        : dialogAnswer([this, act](QWidget* dialog) {
              if (auto* const expected = qobject_cast<Dialog*>(dialog)) {
                  ++count;
                  act(*expected);
              }
          }) {}

    int count = 0;
};

class testedEditor : public localVclWidgetEditor {
public:
    using localVclWidgetEditor::localVclWidgetEditor;
    using QPlainTextEdit::firstVisibleBlock;
    using QPlainTextEdit::viewportMargins;

    CloseAnswer nextAnswer = CloseAnswer::cancel;
    int asked = 0;
    bool loses = false;     // the answer to the question about characters that the file cannot hold
    QStringList questions;  // about such characters

protected:
    CloseAnswer closeAsk() override {
        ++asked;
        return nextAnswer;
    }
    bool lossAsk(const QString& question) override {
        questions.append(question);
        return loses;
    }
};

// A key that has no Latin letter comes from a Russian keyboard only.
inline void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&widget, &event);
}

inline QString text(const localVclWidgetEditor& editor) {
    return QString::fromStdU16String(editor.text());
}

inline QString shownTitle(const QWidget& widget) {
    return QString(widget.windowTitle()).replace("[*]", widget.isWindowModified() ? "*" : "");
}

// The format painted over a place of a line.
inline QTextCharFormat formatAt(const localVclWidgetEditor& editor, int line, int column) {
    const QTextBlock block = editor.document()->findBlockByNumber(line);
    for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
        if (column >= range.start && column < range.start + range.length) {
            return range.format;
        }
    }
    return {};
}

inline bool hasColour(const QTextCharFormat& format, Qt::GlobalColor color, bool italic) {
    return format.foreground() == QBrush(color) && format.fontItalic() == italic;
}

using testFiles::read;
using testFiles::write;

inline QString manyLines(int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i) {
        lines.append("if x=" + QString::number(i) + " then // line");
    }
    return lines.join('\n');
}

// A new empty folder as the working directory, and no window left over from one test to the next.
class test : public QObject {
    Q_OBJECT

protected:
    QString path(const QString& name) const { return folder_.filePath(name); }

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        QVERIFY(QDir::setCurrent(folder_.path()));
    }
    void cleanup() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(widget) != nullptr) {
                delete widget;
            }
        }
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

private:
    QTemporaryDir folder_;
};

}  // namespace editorTest
