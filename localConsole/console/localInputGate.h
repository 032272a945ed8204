// Keys and mouse while the windows' thread has an event loop of its own in the middle of a command.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>

class QWidget;

// As long as it lives, what a person types and clicks does not come to the windows. Closing a
// window is no such input and is heard at once, which is why the event loop's own way to leave out
// input does not serve: the window system counts a close among it. Where a modal dialog stands, it
// is what is being waited for, and all input goes its way.
class localInputGate : public QObject {
public:
    enum class Fate { comesLater, isDropped };

    // For one window, or for all.
    explicit localInputGate(Fate fate, const QWidget* window = nullptr);
    // What comes later comes now.
    ~localInputGate() override;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Kept {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    bool isClosedFor(const QObject* receiver) const;

    Fate fate_;
    bool all_;
    QPointer<const QWidget> window_;
    std::deque<Kept> kept_;
};
