// A TRACE run: the program runs on the window's thread with a pause before each statement, which is
// shown in an editor.
//
// The statement engine knows nothing of this: the tree's nodes carry localProcess::execute, which
// shows the node and then runs it as ever.
#pragma once

#include <QPointer>

#include <string>

#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"

class localContextUTF8;
class localVclWidgetEditor;

class localProcess {
public:
    // Milliseconds that each statement stands on screen.
    int delay = 1000;

    // Reads the file that the text names, shows it and runs it in the context; comes back when the
    // program has ended. What fails is told by lines on the standard output stream. Statuses 23, 37
    // and those of programs.
    bool trace(int& status, const std::u16string& text, localContextUTF8* context);

    // The editor that shows the program. Null when there was none or its window was closed.
    localVclWidgetEditor* editor() const;

    // The tracing execute function. Without a TRACE under way it shows nothing: a function that a
    // traced program defined may be called later.
    static bool execute(int& status, localContextUTF8* context, const localOperatorCompiled& node,
                        const localArguments& args, localValueDescription*& result);

private:
    void operShow(const localOperatorCompiled& node);

    QPointer<localVclWidgetEditor> editor_;
};
