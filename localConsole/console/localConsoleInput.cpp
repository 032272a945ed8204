// Keys, mouse and clipboard of the console: whatever comes in goes to the input line.
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextBlock>

#include <algorithm>
#include <string>
#include <utility>

#include "localConsole/console/localConsole.h"

namespace {

// Latin, digits and signs, Russian letters.
bool isPrintable(const QString& text) {
    if (text.size() != 1) {
        return false;
    }
    const char16_t unit = text.front().unicode();
    return (unit >= 32 && unit <= 126) || unit == u'Ё' || unit == u'ё' ||
           (unit >= u'А' && unit <= u'я');
}

}  // namespace

void localConsole::keyCommandsFill() {
    const std::pair<int, const char*> defaults[] = {
        {1, "help"}, {2, "trying"}, {4, "dir"}, {7, "display memory"}, {8, "clear memory"}};
    for (const auto& [key, command] : defaults) {
        keyCommands_[static_cast<std::size_t>(key - 1)] = command;
    }
    for (std::size_t i = 0; i < keyCommands_.size(); ++i) {
        const std::string name = "F" + std::to_string(i + 1);
        if (const auto command = settings_.command(std::u16string(name.begin(), name.end()))) {
            keyCommands_[i] = *command;
        }
    }
}

bool localConsole::functionKey(const QKeyEvent& event) {
    const int key = event.key() - Qt::Key_F1 + 1;
    if (key < 1 || key > 12) {
        return false;
    }
    const auto modifiers = event.modifiers();
    const bool plain = modifiers == Qt::NoModifier;
    const bool manual =
        key == 1 && (modifiers == Qt::AltModifier || modifiers == Qt::ControlModifier ||
                     modifiers == Qt::ShiftModifier);
    // F11 and F12 do not look at modifiers. Meant.
    if (!plain && !manual && key < 11) {
        return false;
    }
    const QString command = manual ? QString("manual") : keyCommand(key);
    if (command.isEmpty()) {
        return false;
    }
    setBusy(true);
    cmdExec(command);
    return true;
}

void localConsole::historyShow(const std::optional<QString>& line) {
    if (!line) {
        return;
    }
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.setPosition(inputStart(), QTextCursor::KeepAnchor);
    cursor.insertText(*line, inputFormat_);
    setTextCursor(cursor);
}

void localConsole::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (busy_ || functionKey(*event)) {
        return;
    }
    const auto modifiers = event->modifiers();
    const bool plain = modifiers == Qt::NoModifier;
    const bool control = modifiers == Qt::ControlModifier;
    switch (event->key()) {
        case Qt::Key_F1:
            if (plain) {
                underTurn([this] { commandHelpAsPrg(); });
                putOutputLine({});
            }
            return;
        case Qt::Key_F10:
            if (modifiers == Qt::AltModifier) {
                window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
            }
            return;
        case Qt::Key_C:
        case Qt::Key_Stop:
            if (control) {
                putOutputLine({});  // stops nothing: a fresh prompt, no more. Meant.
                return;
            }
            break;
        case Qt::Key_Up:
            if (plain) {
                historyShow(history_.back());
            }
            return;
        case Qt::Key_Down:
            if (plain) {
                historyShow(history_.forward());
            }
            return;
        default:
            break;
    }
    editKey(event);
}

void localConsole::editKey(QKeyEvent* event) {
    const bool plain = event->modifiers() == Qt::NoModifier;
    const bool plainOrControl = plain || event->modifiers() == Qt::ControlModifier;
    const bool typing =
        !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier));

    switch (event->key()) {
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_Right:
        case Qt::Key_Left:
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
        case Qt::Key_Return:
            break;
        default:
            if (typing && isPrintable(event->text())) {
                cursorToInput();
                QPlainTextEdit::keyPressEvent(event);
            }
            return;
    }
    // Home and End, on the keypad too, do not look at modifiers; neither selects.
    const bool anyModifier = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    if (!plainOrControl && !anyModifier) {
        return;
    }
    cursorToInput();
    QTextCursor cursor = textCursor();
    // A selection lies within the input here, so that leaving or removing it stays within, too.
    const bool mayGoLeft = cursor.hasSelection() || cursor.position() > inputStart();
    switch (event->key()) {
        case Qt::Key_Home:
            cursor.setPosition(inputStart());
            setTextCursor(cursor);
            break;
        case Qt::Key_End:
            moveCursor(QTextCursor::End);
            break;
        case Qt::Key_Right:
            QPlainTextEdit::keyPressEvent(event);
            break;
        case Qt::Key_Left:
            if (mayGoLeft) {
                QPlainTextEdit::keyPressEvent(event);
                // Ctrl goes by words and may have gone into the prompt.
                cursor.setPosition(std::max(textCursor().position(), inputStart()));
                setTextCursor(cursor);
            }
            break;
        case Qt::Key_Backspace:
            if (plain && mayGoLeft) {
                QPlainTextEdit::keyPressEvent(event);
            }
            break;
        case Qt::Key_Delete:
            if (plain) {
                QPlainTextEdit::keyPressEvent(event);
            }
            break;
        case Qt::Key_Return:
            if (plain) {
                returnPressed();
            }
            break;
    }
}

void localConsole::returnPressed() {
    moveCursor(QTextCursor::End);
    if (textCursor().position() == inputStart()) {
        putPrompt(PromptPlace::newBlock);
        return;
    }
    const QString command = textCursor().block().text().mid(promptLength_).trimmed();
    if (command.isEmpty()) {
        history_.goToEnd();
    } else {
        history_.enter(command);
    }
    setBusy(true);
    cmdExec(command);
}

int localConsole::inputStart() const {
    const QTextBlock line = document()->lastBlock();
    return line.position() + std::min(promptLength_, line.length() - 1);
}

void localConsole::cursorToInput() {
    if (textCursor().selectionStart() < inputStart()) {
        moveCursor(QTextCursor::End);
    }
}

void localConsole::inputMethodEvent(QInputMethodEvent* event) {
    event->ignore();
}

void localConsole::mousePressEvent(QMouseEvent* event) {
    // A press on a selection would start to drag it, and a drag may move text out of the history.
    if (event->button() == Qt::LeftButton && textCursor().hasSelection()) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    QPlainTextEdit::mousePressEvent(event);
}

// The usual menu less what would cut or delete history.
void localConsole::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    menu.addAction(tr("&Copy"), this, &QPlainTextEdit::copy)
        ->setEnabled(textCursor().hasSelection());
    menu.addAction(tr("&Paste"), this, &QPlainTextEdit::paste)->setEnabled(canPaste());
    menu.addSeparator();
    menu.addAction(tr("Select All"), this, &QPlainTextEdit::selectAll);
    menu.exec(event->globalPos());
}

bool localConsole::canInsertFromMimeData(const QMimeData* source) const {
    return !busy_ && source->hasText();
}

// Text of the clipboard, or dropped by the mouse, becomes one line of input and is not acted on.
void localConsole::insertFromMimeData(const QMimeData* source) {
    if (!canInsertFromMimeData(source)) {
        return;
    }
    cursorToInput();
    QTextCursor cursor = textCursor();
    cursor.insertText(source->text().simplified(), inputFormat_);
    setTextCursor(cursor);
}
