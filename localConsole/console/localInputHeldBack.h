// Keys and mouse wait while the windows' thread waits for something in an event loop.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>

// As long as it lives, what a person types and clicks is set aside for every window, and comes to
// the windows behind it. Closing a window is no such input and is heard at once, which is why the
// event loop's own way to leave out input does not serve: the window system counts a close among
// it. A modal dialog is what is being waited for, and gets its input.
class localInputHeldBack : public QObject {
public:
    localInputHeldBack();
    ~localInputHeldBack() override;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    std::deque<Held> held_;
};
