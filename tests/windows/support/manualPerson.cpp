#include "manualPerson.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "localConsole/console/localConsole.h"
#include "localConsole/debug/MyThread.h"
#include "localConsole/help/localConsoleHelpBrowser.h"
#include "localDbVcl/manager/localDbManagerTableView.h"
#include "localDbVcl/manager/localDbTree.h"
#include "localForm/run/localForm.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/dialog/localCalendar.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/editor/localDialogFindString.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/grid/localVclGrid200123.h"

namespace {

using manualExample::isAsTold;
using Kind = manualExample::step::Kind;

constexpr int patience = 10000;  // milliseconds until a step counts as impossible
constexpr int lookAgain = 5;     // milliseconds between two looks

const QMap<QString, Qt::Key> keyNames = {
    {"Ввод", Qt::Key_Return},   {"Вверх", Qt::Key_Up},
    {"Вниз", Qt::Key_Down},     {"Влево", Qt::Key_Left},
    {"Вправо", Qt::Key_Right},  {"Home", Qt::Key_Home},
    {"End", Qt::Key_End},       {"Insert", Qt::Key_Insert},
    {"Delete", Qt::Key_Delete}, {"Backspace", Qt::Key_Backspace},
    {"Tab", Qt::Key_Tab},       {"Esc", Qt::Key_Escape},
    {"/", Qt::Key_Slash},       {".", Qt::Key_Period}};

const QMap<QString, Qt::KeyboardModifier> modifierNames = {
    {"Ctrl", Qt::ControlModifier}, {"Alt", Qt::AltModifier}, {"Shift", Qt::ShiftModifier}};

// Key_unknown for a text that names none.
Qt::Key keyNamed(const QString& name) {
    static const QRegularExpression functionKey("^F(\\d+)$");
    const auto function = functionKey.match(name);
    if (function.hasMatch()) {
        return static_cast<Qt::Key>(Qt::Key_F1 + function.captured(1).toInt() - 1);
    }
    if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') {
        return static_cast<Qt::Key>(name[0].unicode());
    }
    return keyNames.value(name, Qt::Key_unknown);
}

template <typename Inner>
bool holds(QWidget& window) {
    return qobject_cast<Inner*>(&window) != nullptr || window.findChild<Inner*>() != nullptr;
}

bool isText(QWidget& window) {
    const auto* const text = window.findChild<QPlainTextEdit*>();
    return text != nullptr && text->isReadOnly() && !holds<localVclWidgetEditor>(window);
}

bool isPicture(QWidget& window) {
    const auto* const scroll = window.findChild<QScrollArea*>();
    const auto* const label = scroll == nullptr ? nullptr : qobject_cast<QLabel*>(scroll->widget());
    return label != nullptr && !label->pixmap().isNull();
}

const QMap<QString, bool (*)(QWidget&)> windowKinds = {
    {"ввода", holds<QInputDialog>},
    {"данных", holds<localDbManagerTableView>},
    {"дерева", holds<localDbTree>},
    {"выбора", holds<localVclQStringListGetItemDialog>},
    {"календаря", holds<localCalendar>},
    {"картинки", isPicture},
    {"поиска", holds<localDialogFindString>},
    {"просмотра", holds<localVclGrid200123>},
    {"документа", holds<localSxl>},
    {"редактора", holds<localVclWidgetEditor>},
    {"руководства", holds<localConsoleHelpBrowser>},
    {"сообщения", holds<QMessageBox>},
    {"текста", isText},
    {"файла", holds<QFileDialog>},
    {"формы", holds<localForm>}};

QString titleOf(const QWidget& window) {
    return window.windowTitle().replace("[*]", window.isWindowModified() ? "*" : "");
}

// A window's name in a fault.
QString nameOf(const QWidget& window) {
    return window.metaObject()->className() + (" [" + titleOf(window) + "]");
}

bool isList(const QWidget* widget) {
    return qobject_cast<const QListWidget*>(widget) != nullptr ||
           qobject_cast<const localDbManagerTableView*>(widget) != nullptr ||
           qobject_cast<const localDbTree*>(widget) != nullptr;
}

// The texts of rows, and of those below them.
QStringList textsOf(const QAbstractItemModel& model, const QModelIndex& parent) {
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            texts += model.index(row, column, parent).data().toString();
        }
        texts += textsOf(model, model.index(row, 0, parent));
    }
    return texts;
}

// The lines of text that a window shows.
QStringList linesOf(QWidget& window) {
    QStringList lines;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (auto* const edit = qobject_cast<const QTextEdit*>(widget)) {
            lines += edit->toPlainText().split('\n');
        } else if (auto* const plain = qobject_cast<const QPlainTextEdit*>(widget)) {
            lines += plain->toPlainText().split('\n');
        } else if (isList(widget)) {
            lines += textsOf(*qobject_cast<const QAbstractItemView*>(widget)->model(), {});
        } else if (auto* const label = qobject_cast<const QLabel*>(widget)) {
            const QSize picture = label->pixmap().size();
            lines += label->text().split('\n');
            lines += QString("%1 на %2 точек").arg(picture.width()).arg(picture.height());
        } else if (auto* const calendar = qobject_cast<const QCalendarWidget*>(widget)) {
            lines += calendar->selectedDate().toString("yyyyMMdd");
        }
    }
    for (auto* const grid : window.findChildren<localVclGrid200123*>()) {
        for (unsigned row = 1; row < grid->visibleRows(); ++row) {
            for (unsigned column = 1; column <= grid->columnsCount(); ++column) {
                lines += grid->cellText(row, column);
            }
        }
    }
    return lines;
}

}  // namespace

manualPerson::manualPerson(localConsole& console, std::function<QStringList()> started)
    : console_(console), started_(std::move(started)) {}

QString manualPerson::act(const std::vector<manualExample::step>& steps) {
    steps_ = steps;
    qApp->installEventFilter(this);
    waiting_.start();
    again();
    while (!done_) {
        QTest::qWait(1);
    }
    // Dialogs that were rejected end their loops, and the commands behind them end.
    QTest::qWait(lookAgain);
    if (fault_.isEmpty()) {
        fault_ = closeAll();
    }
    qApp->removeEventFilter(this);
    return fault_;
}

bool manualPerson::eventFilter(QObject* watched, QEvent* event) {
    auto* const window = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (window != nullptr && window->isWindow() && window->windowType() != Qt::Popup &&
        window->windowType() != Qt::ToolTip && window != console_.window() &&
        std::find(opened_.begin(), opened_.end(), window) == opened_.end()) {
        opened_.emplace_back(window);
    }
    return false;
}

// Not one running timer: that would stand still in the event loop of a dialog which its own event
// opened.
void manualPerson::again(int milliseconds) {
    QTimer::singleShot(milliseconds, this, [this] { next(); });
}

void manualPerson::stop(const QString& fault) {
    fault_ = fault;
    done_ = true;
    constexpr int mostDialogs = 20;
    for (int i = 0; i < mostDialogs && QApplication::activeModalWidget() != nullptr; ++i) {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->reject();
        } else {
            QApplication::activeModalWidget()->close();
        }
    }
}

bool manualPerson::isHeldUp() const {
    if (QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    return console_.isBusy() || (console_.thread() != nullptr && console_.thread()->isWorking());
}

void manualPerson::next() {
    if (done_) {
        return;
    }
    if (isHeldUp()) {
        waiting_.hasExpired(patience) ? stop("the console stays busy") : again(lookAgain);
        return;
    }
    if (!keys_.empty() && QApplication::activeWindow() == nullptr) {
        // As a window manager does when a window has gone.
        front()->activateWindow();
        waiting_.hasExpired(patience) ? stop("no window takes the keys") : again(lookAgain);
        return;
    }
    if (!keys_.empty()) {
        const Key key = keys_.front();
        keys_.pop_front();
        waiting_.start();
        again();
        press(key);
        return;
    }
    const bool isEnd = at_ == steps_.size();
    // Nobody types past a window without a look at it.
    if ((isEnd || steps_[at_].kind == Kind::type) && opened_.size() > windowsTold_) {
        const QPointer<QWidget>& window = opened_[windowsTold_];
        stop("a window that the example does not tell: " + (window ? nameOf(*window) : QString()));
        return;
    }
    if (isEnd) {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && !waiting_.hasExpired(patience)) {
            again(lookAgain);
        } else {
            stop(dialog == nullptr ? QString() : "a dialog stays open: " + nameOf(*dialog));
        }
        return;
    }
    const manualExample::step& step = steps_[at_];
    const QString fault = look(step);
    if (!fault.isEmpty()) {
        waiting_.hasExpired(patience) ? stop(fault) : again(lookAgain);
        return;
    }
    if (step.kind == Kind::type) {
        keys_ = keysOf(step.text);
    }
    ++at_;
    waiting_.start();
    again();
}

std::deque<manualPerson::Key> manualPerson::keysOf(const QString& line) {
    static const QRegularExpression bracketed("\\[((?:(?:Ctrl|Alt|Shift)\\+)*)([^\\[\\]+]+)\\]");
    std::deque<Key> keys;
    for (qsizetype at = 0; at < line.size();) {
        const auto found = bracketed.match(line, at, QRegularExpression::NormalMatch,
                                           QRegularExpression::AnchorAtOffsetMatchOption);
        const Qt::Key named = found.hasMatch() ? keyNamed(found.captured(2)) : Qt::Key_unknown;
        if (named == Qt::Key_unknown) {
            const auto letterKey = static_cast<Qt::Key>(line[at].toUpper().unicode());
            keys.push_back({letterKey, Qt::NoModifier, line[at]});
            ++at;
            continue;
        }
        Key key{named, Qt::NoModifier, {}};
        for (const QString& modifier : found.captured(1).split('+', Qt::SkipEmptyParts)) {
            key.modifiers |= modifierNames[modifier];
        }
        keys.push_back(key);
        at = found.capturedEnd();
    }
    return keys;
}

QWidget* manualPerson::front() const {
    for (auto window = opened_.rbegin(); window != opened_.rend(); ++window) {
        if (!window->isNull() && (*window)->isVisible()) {
            return *window;
        }
    }
    return console_.window();
}

void manualPerson::press(const Key& key) {
    if (key.key == Qt::Key_F4 && key.modifiers == Qt::AltModifier) {
        QApplication::activeWindow()->close();
        return;
    }
    QWidget* receiver = QApplication::activePopupWidget();
    receiver = receiver == nullptr ? QApplication::focusWidget() : receiver;
    receiver = receiver == nullptr ? QApplication::activeWindow() : receiver;
    if (key.letter.isEmpty()) {
        QTest::keyClick(receiver, key.key, key.modifiers);
    } else {
        QTest::sendKeyEvent(QTest::Click, receiver, key.key, key.letter, key.modifiers, 0);
    }
}

QString manualPerson::look(const manualExample::step& step) {
    QWidget* const window = front();
    const auto* const editor = window->findChild<localVclWidgetEditor*>();
    switch (step.kind) {
        case Kind::type:
            return {};
        case Kind::window:
            return lookAtWindow(step);
        case Kind::seen: {
            const QStringList lines = linesOf(*window);
            for (const QString& line : lines) {
                if (isAsTold(line.trimmed(), step.text.trimmed())) {
                    return {};
                }
            }
            return "[" + step.text + "] is not seen, but [" + lines.join('|') + "]";
        }
        case Kind::editorLine: {
            if (editor == nullptr) {
                return "no editor shows line " + step.detail;
            }
            const QTextBlock block = editor->textCursor().block();
            const QString number = QString::number(block.blockNumber() + 1);
            const bool told = number == step.detail && isAsTold(block.text().trimmed(), step.text);
            return told ? QString() : "the editor stands in line " + number + ": " + block.text();
        }
        case Kind::selected: {
            const QString text =
                editor == nullptr ? QString() : editor->textCursor().selectedText();
            return text == step.text ? QString()
                                     : "selected is [" + text + "], not [" + step.text + "]";
        }
        case Kind::maximized: {
            const QString state = window->isMaximized() ? "да" : "нет";
            return state == step.text ? QString() : "the window fills the screen: " + state;
        }
        case Kind::started: {
            const QStringList calls = started_();
            if (calls.size() <= startsTold_) {
                return "not started: [" + step.text + "]";
            }
            const QString& call = calls[startsTold_];
            startsTold_ += call == step.text ? 1 : 0;
            return call == step.text ? QString()
                                     : "started is [" + call + "], not [" + step.text + "]";
        }
    }
    return "a step of no kind";
}

QString manualPerson::lookAtWindow(const manualExample::step& step) {
    const auto isKind = windowKinds.value(step.detail, nullptr);
    if (isKind == nullptr) {
        return "no kind of windows: " + step.detail;
    }
    if (opened_.size() <= windowsTold_) {
        return "no window opened: " + step.detail + " [" + step.text + "]";
    }
    const QPointer<QWidget>& window = opened_[windowsTold_];
    if (window.isNull() || !window->isVisible()) {
        return "the window is no longer there: [" + step.text + "]";
    }
    if (!isKind(*window) || !isAsTold(titleOf(*window).trimmed(), step.text.trimmed())) {
        return "no window [" + step.detail + ": " + step.text + "], but " + nameOf(*window);
    }
    ++windowsTold_;
    return {};
}

QString manualPerson::closeAll() {
    for (const QPointer<QWidget>& window : opened_) {
        if (window.isNull() || !window->isVisible()) {
            continue;
        }
        // A question comes back as a fault: an example saves what it changes.
        QTimer::singleShot(0, this, [] {
            if (auto* const question = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                question->reject();
            }
        });
        const QString title = titleOf(*window);
        if (!window->close()) {
            return "a window does not close: " + title;
        }
        QTest::qWait(0);
        if (!window.isNull() && window->isVisible()) {
            return "a window stays open: " + title;
        }
    }
    return {};
}
