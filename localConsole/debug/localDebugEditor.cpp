#include "localConsole/debug/localDebugEditor.h"

#include <QGuiApplication>
#include <QScreen>

#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/editor/localVclWidgetEditor.h"

bool localDebugFileRead(int& status, const std::u16string& command, std::u16string& fileName,
                        std::u16string& text, const char* function) {
    localInterpretatorUTF8::localPosition pos = 0;
    fileName = localInterpretatorUTF8::scanStringGetFileName(status, command, pos);
    if (fileName.empty()) {
        status = localErrorTypeSYNTAX;
    } else if (loadFileToText(status, fileName, text, u"Utf8")) {
        return true;
    }
    writeLine(u"Error! ");
    traceLine(statusMessage(status), function);
    return false;
}

localVclWidgetEditor* localDebugEditorShow(const std::u16string& fileName,
                                           const std::u16string& text) {
    const QRect desktop = QGuiApplication::primaryScreen()->availableGeometry();
    auto* editor = new localVclWidgetEditor(fileName, text);
    editor->resize(desktop.width() / 2, qRound(desktop.height() * 0.95));
    editor->openWindow(QPoint(desktop.width() / 4, 10));
    return editor;
}
