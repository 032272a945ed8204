#include "localConsole/help/localConsoleExtension.h"

#include <memory>

#include "localConsole/help/localConsoleHelpBrowser.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/textBrowser/localVclTextBrowser.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclWindow.h"

namespace {

constexpr QSize browserSize{820, 660};  // pixels
constexpr const char16_t* startPage = u"#main";

void showBrowser(std::unique_ptr<QTextBrowser> browser, const QString& title) {
    localVclWindowParameters parameters;
    parameters.title = title;
    browser->resize(browserSize);
    localVclWindowShow(browser.release(), parameters);
}

void showHelp(std::unique_ptr<localConsoleHelpBrowser> browser, const std::u16string& firstPage) {
    browser->goTo(firstPage);
    showBrowser(std::move(browser), QStringLiteral("Help"));
}

// False for a text that is no book of help pages; it is read only when it begins as one.
bool showAsHelp(const std::u16string& text) {
    const std::size_t start = text.find_first_not_of(u" \t\r\n");
    if (start == std::u16string::npos || text[start] != u'{') {
        return false;
    }
    auto browser = std::make_unique<localConsoleHelpBrowser>();
    if (!browser->parseHelpFromJson(text)) {
        return false;
    }
    showHelp(std::move(browser), startPage);
    return true;
}

// ___TEST(text): the help pages that the text describes, or the text itself, or the start page.
bool test(localCall& call) {
    traceLine(u" метод ___test()", "___TEST");
    localVclOnWindowThread([&] {
        if (!call.args.empty() && showAsHelp(std::u16string(call.text(0)))) {
            return;
        }
        auto browser = std::make_unique<localVclTextBrowser>();
        if (!call.args.empty()) {
            browser->setText(localVclQString(call.text(0)));
        }
        showBrowser(std::move(browser), QStringLiteral("textBrowser"));
    });
    return call.done();
}

// ___TEST__TEXTBROWSER(list): the items as pages of HTML, their presentations being the pages'
// names.
bool testTextBrowser(localCall& call) {
    const localValueList& pages = *localValueList::of(*call.args[0]);
    if (pages.size() == 0) {
        writeLine(u" Ошибка! Пустой список значений");
        return call.done();
    }
    localVclOnWindowThread([&] {
        auto browser = std::make_unique<localConsoleHelpBrowser>();
        browser->pagesFromList(pages);
        showHelp(std::move(browser), u"#main.htm");
    });
    return call.done();
}

constexpr localExtensionFunction functions[] = {
    {u"___TEST", test},
    {u"___TEST__TEXTBROWSER", testTextBrowser},
};

}  // namespace

constexpr localExtension localConsoleExtension = {.name = u"localConsole", .functions = functions};
