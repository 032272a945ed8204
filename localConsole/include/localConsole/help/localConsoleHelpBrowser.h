// The window in which the manual is read: pages of a book, links between them, the way back.
//
// The book is made of values of the language, so the window is made and filled under its turn. A
// link that is followed while another thread has the turn leads on as soon as it is free.
#pragma once

#include <QKeyEvent>
#include <QTextBrowser>
#include <QUrl>

#include <memory>
#include <string>
#include <vector>

#include "localConsole/help/localHelpPages.h"
#include "localVCL/window/localVclTurn.h"

class localConsoleHelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    // An empty book: the browser says that there is no page.
    explicit localConsoleHelpBrowser(QWidget* parent = nullptr);
    ~localConsoleHelpBrowser() override;

    // Makes the pages of a JSON text, or of the items of a list, in the place of those before;
    // nothing else is shown until goTo(). False when the text is no JSON, with the pages as they
    // were.
    bool parseHelpFromJson(const std::u16string& text);
    void pagesFromList(const localValueList& list) { pages_->pagesFromList(list); }

    // Shows a page by key, under the turn; what is no page ends on the list of all pages,
    // "#allPages".
    void goTo(const std::u16string& pageKey);

    // Keys of the pages that were shown, the present one last.
    const std::vector<std::u16string>& history() const { return history_; }

public slots:
    void onAnchorClicked(const QUrl& link);

protected:
    // Pictures of the pages lie where the program's own files are searched for.
    QVariant loadResource(int type, const QUrl& name) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void goBack();
    void pageShow(const std::u16string& html, const std::u16string& pageKey);

    std::shared_ptr<localHelpPages> pages_;
    std::vector<std::u16string> history_;
    localVclTurnWork turnWork_;
};
