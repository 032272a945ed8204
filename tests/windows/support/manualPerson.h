// The person of the manual's examples: types on the keyboard, looks at the windows that open.
//
// Keys go to whatever has the keyboard, one at a time, each when the one before has been acted on:
// when a dialog is open, or the console waits for input. A dialog's own event loop does not hold
// the person up.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <vector>

#include "manualExample.h"

class localConsole;

class manualPerson : public QObject {
public:
    // `started` gives the outside programs that were started up to now.
    manualPerson(localConsole& console, std::function<QStringList()> started);

    // Acts out the steps and closes the windows they have left. Empty when each step was possible
    // and showed what is told, else what was not so; dialogs that are open then are rejected.
    QString act(const std::vector<manualExample::step>& steps);

private:
    struct Key {
        Qt::Key key = Qt::Key_unknown;
        Qt::KeyboardModifiers modifiers;
        QString letter;  // that is typed; empty for any other key
    };

    static std::deque<Key> keysOf(const QString& line);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void again(int milliseconds = 0);
    void next();
    void stop(const QString& fault);
    bool isHeldUp() const;
    void press(const Key& key);
    // What is not as a step tells; empty when all is.
    QString look(const manualExample::step& step);
    QString lookAtWindow(const manualExample::step& step);
    // The newest of the windows that the steps have opened, or the console.
    QWidget* front() const;
    QString closeAll();

    localConsole& console_;
    std::function<QStringList()> started_;
    std::vector<manualExample::step> steps_;
    std::size_t at_ = 0;
    std::deque<Key> keys_;
    bool done_ = false;
    QString fault_;
    QElapsedTimer waiting_;                  // for the present step
    std::vector<QPointer<QWidget>> opened_;  // in the order in which they were shown
    std::size_t windowsTold_ = 0;
    qsizetype startsTold_ = 0;
};
