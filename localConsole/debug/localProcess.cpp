#include "localConsole/debug/localProcess.h"

#include <QElapsedTimer>

#include <utility>

#include "debug/localDebugCompile.h"
#include "debug/localDebugVariable.h"
#include "localConsole/debug/localDebugEditor.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "localVCL/editor/localVclWidgetEditor.h"

namespace {
localProcess* running = nullptr;
}

bool localProcess::trace(int& status, const std::u16string& text, localContextUTF8* context) {
    constexpr const char* functionName = "trace";
    std::u16string fileName;
    std::u16string program;
    if (!localDebugFileRead(status, text, fileName, program, functionName)) {
        return false;
    }
    editor_ = localDebugEditorShow(fileName, program);
    localOperatorCompiled root(&localProcess::execute);
    if (!localDebugCompile(status, program, root)) {
        traceLine(statusMessage(status), functionName);
        return false;
    }
    traceLine(u"trace СТАРТ!!!!!!: ", functionName);
    if (editor_ != nullptr) {  // the line above has let the window close
        editor_->positionShow(root.operators.front().pos);
    }
    traceLine(u"СТАРТ!!!!!!: ", functionName);
    localDebugVariablePut(*context, u"thisProcess", this);
    writeLine(context->varDisplay(u"thisProcess"));
    localProcess* const outer = std::exchange(running, this);
    localSlot result;
    const bool done =
        root.executeFunction(status, context, root, localArguments(), result.asResult());
    running = outer;
    if (!done) {
        traceLine(statusMessage(status), functionName);
    }
    return done;
}

localVclWidgetEditor* localProcess::editor() const {
    return editor_;
}

bool localProcess::execute(int& status, localContextUTF8* context,
                           const localOperatorCompiled& node, const localArguments& args,
                           localValueDescription*& result) {
    if (running != nullptr) {
        running->operShow(node);
    }
    return localOperatorCompiled::execute(status, context, node, args, result);
}

void localProcess::operShow(const localOperatorCompiled& node) {
    traceLine(numberToString(node.pos) + u" type: " + numberToString(node.type) +
                  u" operShow!!!!!!: ",
              "operShow");
    const bool isPlainBlock =
        node.type == localCompiledOperatorTypeBLOCK && trimLeft(node.expression()).empty();
    if (node.type == localCompiledOperatorTypeNONE || isPlainBlock) {
        return;
    }
    if (editor_ != nullptr) {
        editor_->positionShow(node.pos);
    }
    // No sleep and no events: the run keeps step with the eye, and the line above has let windows
    // paint.
    QElapsedTimer shown;
    shown.start();
    while (shown.elapsed() < delay) {}
}
