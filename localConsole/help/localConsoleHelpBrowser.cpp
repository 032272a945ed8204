#include "localConsole/help/localConsoleHelpBrowser.h"

#include <QImage>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr const char16_t* notFound = u"Страница не найдена!";

// A link's text with everything readable: a key may hold letters that a URL writes as numbers.
QString textOf(const QUrl& link) {
    return QUrl::fromPercentEncoding(link.toEncoded());
}

}  // namespace

localConsoleHelpBrowser::localConsoleHelpBrowser(QWidget* parent)
    : QTextBrowser(parent), pages_(std::make_shared<localHelpPages>()) {
    setWindowIcon(localVclProgramIcon());
    // The pages' colours are made for white paper, whatever the desktop is like.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    connect(this, &QTextBrowser::anchorClicked, this, &localConsoleHelpBrowser::onAnchorClicked);
    setOpenLinks(false);
    setHtml(localVclQString(notFound));
}

localConsoleHelpBrowser::~localConsoleHelpBrowser() {
    // The pages are values of the language and go under its turn, be it later.
    localVclTurnWork::askOnce([pages = std::move(pages_)] {});
}

bool localConsoleHelpBrowser::parseHelpFromJson(const std::u16string& text) {
    return pages_->parseHelpFromJson(text);
}

void localConsoleHelpBrowser::pageShow(const std::u16string& html, const std::u16string& pageKey) {
    setHtml(localVclQString(html));
    if (history_.empty() || history_.back() != pageKey) {
        history_.push_back(pageKey);
    }
}

void localConsoleHelpBrowser::goTo(const std::u16string& pageKey) {
    turnWork_.ask([this, pageKey] {
        const std::u16string html = pages_->page(pageKey);
        if (!html.empty()) {
            pageShow(html, pageKey);
            return;
        }
        pageShow(notFound, u"#404");
        pageShow(pages_->allPages(), u"#allPages");
        activateWindow();
    });
}

// The page before the present one is taken off too: going there enters it again. From the list that
// stands for a missing page the way back leads to that page, and so to the list. Meant.
void localConsoleHelpBrowser::goBack() {
    constexpr std::size_t fewestForBack = 4;
    if (history_.size() < fewestForBack) {
        return;
    }
    history_.pop_back();
    const std::u16string before = history_.back();
    history_.pop_back();
    goTo(before);
}

void localConsoleHelpBrowser::onAnchorClicked(const QUrl& link) {
    const QString text = textOf(link);
    goTo(pages_->keyOfLink(localVclText(text)));
}

QVariant localConsoleHelpBrowser::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(type, name);
    }
    const std::u16string file = name.fileName().toStdU16String();
    const std::u16string folder = localStd::fileSearch(file);
    return folder.empty() ? QVariant() : QImage(localVclQString(localStd::pathJoin(folder, file)));
}

void localConsoleHelpBrowser::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Backspace) {
        QTextBrowser::keyPressEvent(event);
        return;
    }
    turnWork_.ask([this] { goBack(); });
}
