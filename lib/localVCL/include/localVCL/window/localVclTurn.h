// The turn of the language (localTurn) as the windows' thread asks for it.
//
// Where a person waits for the outcome, a window takes a localTurn::Hold, which serves the worker
// and paints while it waits, but takes no input. Where a window that stands still would look as if
// it hung - painting, links, lists of names - it asks by a localVclTurnWork: when the turn is
// taken, the window goes on showing what it showed last, and the work is done when the turn is
// free.
#pragma once

#include <QObject>

#include <functional>

// Makes the thread of the windows wait in an event loop. Called on that thread, once is enough.
void localVclTurnInstall();

// Work in the language that may come later. What waits is forgotten when this goes.
class localVclTurnWork : public QObject {
public:
    explicit localVclTurnWork(QObject* parent = nullptr);

    // Does the work under the turn: now when it can be had, else as soon as it is free. Work that
    // still waits gives way to this one.
    void ask(std::function<void()> work);

    // The same for work that belongs to no window, such as letting go of a closed window's values.
    static void askOnce(std::function<void()> work);

private:
    void attempt();

    std::function<void()> waiting_;
};
