// The keys of the editor. They come through its own event filter; what is no key of the editor goes
// on.

#include <QInputDialog>
#include <QKeyEvent>
#include <QMdiArea>
#include <QTextBlock>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/editor/localVclWidgetEditor.h"

namespace {

// The letters of a Russian keyboard on the keys P and S.
constexpr int keyCyrillicP = 0x417;
constexpr int keyCyrillicS = 0x42b;

constexpr int lineAsked = 65535;  // the highest line that can be asked for

}  // namespace

bool localVclWidgetEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::KeyPress &&
        keyPressed(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::eventFilter(watched, event);
}

bool localVclWidgetEditor::keyPressed(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier;
    const bool control = modifiers == Qt::ControlModifier;
    const bool alt = modifiers == Qt::AltModifier;
    const bool controlShift = modifiers == (Qt::ControlModifier | Qt::ShiftModifier);

    switch (event->key()) {
        case Qt::Key_Period:
        case Qt::Key_Slash:
            // On some keyboards, the Russian one among them, a sign needs Shift.
            if (control || controlShift) {
                commentSelection();
                return true;
            }
            break;
        case Qt::Key_F2:
            if (alt) {
                traceLine(timeNow() + u" blockNumber=" +
                              QString::number(textCursor().blockNumber()).toStdU16String(),
                          "eventFilter");
                return true;
            }
            break;
        case Qt::Key_F3:
            if (plain || control) {
                plain ? findTextNextSlot() : findTextSlot();
                return true;
            }
            break;
        case Qt::Key_F:
            if (control) {
                findTextSlot();
                return true;
            }
            break;
        case Qt::Key_F10:
            if (alt) {
                QWidget* const top = window();
                top->isMaximized() ? top->showNormal() : top->showMaximized();
                return true;
            }
            break;
        case Qt::Key_G:
            if (control) {
                lineAskAndShow();
                return true;
            }
            break;
        case Qt::Key_O:
            if (control) {
                // Without a name a person is asked for the file.
                open({}, localString::codePageUtf8);
                return true;
            }
            break;
        case Qt::Key_P:
        case keyCyrillicP:
            if (alt) {
                gotoProcedureSlot();
                return true;
            }
            break;
        case Qt::Key_S:
        case keyCyrillicS:
            if (control || controlShift) {
                control ? saveSlot() : saveAsSlot();
                return true;
            }
            break;
        case Qt::Key_Y:
            // Where the toolkit brings back what was undone by Ctrl+Shift+Z alone, that key is
            // taken below.
            if (control) {
                redo();
                return true;
            }
            break;
        case Qt::Key_Z:
            if (controlShift) {
                // The filter of the editor itself would come back here.
                for (QObject* const other :
                     {static_cast<QObject*>(window()), static_cast<QObject*>(localMdiAreaFind())}) {
                    if (other != nullptr && other != this) {
                        other->eventFilter(this, event);
                    }
                }
                return true;
            }
            break;
        default:
            break;
    }
    return false;
}

void localVclWidgetEditor::commentSelection() {
    const QTextCursor selection = textCursor();
    const QTextBlock last = document()->findBlock(selection.selectionEnd());
    QTextCursor cursor(document()->findBlock(selection.selectionStart()));
    // One step of undo.
    cursor.beginEditBlock();
    for (QTextBlock block = cursor.block();; block = block.next()) {
        cursor.setPosition(block.position());
        cursor.insertText(QStringLiteral("//"));
        if (block == last) {
            break;
        }
    }
    cursor.endEditBlock();
}

void localVclWidgetEditor::lineAskAndShow() {
    bool accepted = false;
    const int line = QInputDialog::getInt(this, QStringLiteral("Введите номер строки %1 :").arg(1),
                                          QStringLiteral("Введите номер строки:"), 1, 0, lineAsked,
                                          1, &accepted);
    if (accepted) {
        lineShow(line);
    }
}
