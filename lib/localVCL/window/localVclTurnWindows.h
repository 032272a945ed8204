// How the windows' thread waits for the turn of the language, and hears that it is free.
#pragma once

#include <QObject>

#include "localInterpretatorUTF8/thread/localTurn.h"

class localVclTurnWindows : public QObject, public localTurn::Windows {
    Q_OBJECT

public:
    // Made at the first call, which must be on the windows' thread.
    static localVclTurnWindows& instance();

    void wait() override;
    void freed() override;

signals:
    // Told on the windows' thread after it had asked for the turn; somebody may have taken it
    // again.
    void becameFree();
};
