#include "localInterpretatorUTF8/host/localHost.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "support/language.h"
#include "support/ownFolder.h"

namespace {

using testing::ElementsAre;

TEST(localHost, theTerminalServesWhereNoneIsInstalled) {
    localHost& terminal = localHost::current();
    {
        recordingHost host;
        EXPECT_EQ(&localHost::current(), &host);
    }
    EXPECT_EQ(&localHost::current(), &terminal);
}

TEST(localHost, aTerminalMakesLinesOfBoxesAndRefusesDialogs) {
    const capturedOutput output;
    localHost& terminal = localHost::current();
    terminal.setCursor(localHost::Cursor::wait);
    terminal.messageBox(localHost::MessageKind::critical, u"save", u"Не вышло");
    EXPECT_THAT(output.rawLines(), ElementsAre("save: Не вышло"));
    EXPECT_FALSE(terminal.showList(u"title", {u"line"}));
    EXPECT_FALSE(terminal.chooseRow(u"title", {u"line"}, 1).has_value());
    EXPECT_FALSE(terminal.openEditor(u"x.prg", localString::codePageUtf8));
}

TEST(localHost, aTerminalListsTheWorkingDirectoryFoldersFirst) {
    const ownFolder folder;
    std::filesystem::create_directory("z folder");
    std::ofstream("b.prg") << "";
    std::ofstream("Ёлка.prg") << "";
    const capturedOutput output;
    localHost::current().showDirectory();
    EXPECT_THAT(output.rawLines(), ElementsAre("z folder/", "b.prg", "Ёлка.prg"));
}

}  // namespace
