// What the language asks of the program around it, answered by windows.
//
// A program may run on a thread of its own while windows live on the main one, so each operation
// that shows something goes to the window's thread and the caller waits for it. Before there is an
// application boxes are not shown: the halt has written its message as a line already.
#pragma once

#include "localInterpretatorUTF8/host/localHost.h"

class localVclHost : public localHost {
public:
    void setCursor(Cursor cursor) override;
    void messageBox(MessageKind kind, std::u16string_view title, std::u16string_view text) override;
    void haltBox(std::u16string_view title, std::u16string_view text) override;
    bool showList(std::u16string_view title, const std::vector<std::u16string>& lines) override;
    std::optional<std::size_t> chooseRow(std::u16string_view title,
                                         const std::vector<std::u16string>& lines,
                                         std::size_t startRow) override;
    // Where the desktop can tell its editor of texts, and the person has not named one by VISUAL,
    // that one is taken: the editor named by EDITOR mostly needs a terminal.
    bool openOutsideEditor(std::u16string_view fileName) override;
    // A window of its own for each file. True also for a file that cannot be read, which a line
    // tells: there is an editor, only nothing to show.
    bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage) override;
};
