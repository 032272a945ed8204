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
    terminal.report({.kind = localReport::Kind::critical, .title = u"save", .text = u"Не вышло"});
    EXPECT_THAT(output.rawLines(), ElementsAre("save: Не вышло"));
    EXPECT_FALSE(terminal.hasScreen());
    EXPECT_FALSE(terminal.showMessage({.text = u"text"}));
    EXPECT_FALSE(terminal.showText(u"title", u"text"));
    EXPECT_FALSE(terminal.showList(u"title", {u"line"}));
    EXPECT_FALSE(terminal.chooseRow(u"title", {u"line"}, 1).has_value());
    EXPECT_FALSE(terminal.chooseDate(u"20261115").has_value());
    EXPECT_EQ(terminal.chooseFile(u"title", u".", {u"*.prg"}), u"");
    EXPECT_THAT(output.rawLines(), testing::SizeIs(1));
    EXPECT_FALSE(terminal.openEditor(u"x.prg", localString::codePageUtf8));
}

TEST(localHost, aTerminalAnswersQuestionsByTheirDefault) {
    const capturedOutput output;
    localReport question{.kind = localReport::Kind::question,
                         .title = u"delete",
                         .text = u"Record will be deleted. <BR/> Are you sure? ",
                         .buttons = {localReport::Button::ok, localReport::Button::cancel},
                         .defaultButton = localReport::Button::cancel,
                         .form = localReport::Form::html};
    EXPECT_EQ(localHost::current().report(question), localReport::Button::cancel);
    EXPECT_THAT(output.rawLines(),
                ElementsAre("delete: Record will be deleted. ", " Are you sure? "));
    question.defaultButton = localReport::Button::ok;
    EXPECT_EQ(localHost::current().report(question), localReport::Button::ok);
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
