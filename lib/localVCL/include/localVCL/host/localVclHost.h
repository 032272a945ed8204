// What the language asks of the program around it, answered by windows.
//
// A program may run on a thread of its own while windows live on the main one, so each operation
// that shows something goes to the windows' thread and the caller waits for it. Before there is an
// application there is no screen: reports become lines as in a terminal, and the box of the halt is
// left out, its message being a line already.
#pragma once

#include "localInterpretatorUTF8/host/localHost.h"

class localVclHost : public localHost {
public:
    bool hasScreen() const override;
    void setCursor(Cursor cursor) override;
    void beep() override;

    localReport::Button report(const localReport& report) override;
    // An empty title means the application's name.
    bool showMessage(const localReport& message) override;
    void haltBox(std::u16string_view title, std::u16string_view text) override;

    std::optional<std::size_t> chooseRow(std::u16string_view title,
                                         const std::vector<std::u16string>& lines,
                                         std::size_t startRow) override;
    std::optional<std::u16string> chooseDate(std::u16string_view start) override;
    std::u16string chooseFile(std::u16string_view title, std::u16string_view folder,
                              const std::vector<std::u16string>& filters) override;

    bool showText(std::u16string_view title, std::u16string_view text) override;
    bool showList(std::u16string_view title, const std::vector<std::u16string>& lines) override;
    // A window of its own for each file. True also for a file that cannot be read, which a line
    // tells: there is an editor, only nothing to show.
    bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage) override;

    // Where the desktop can tell its editor of texts, and the person has not named one by VISUAL,
    // that one is taken: the editor named by EDITOR mostly needs a terminal.
    bool openOutsideEditor(std::u16string_view fileName) override;
};
